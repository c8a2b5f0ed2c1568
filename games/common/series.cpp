#include "games/common/series.h"

#include <algorithm>

#include "betting/bet_state.h"
#include "betting/chips.h"
#include "betting/phases.h"
#include "core/game_state.h"
#include "core/numeric.h"
#include "core/text.h"
#include "table/messages.h"
#include "table/seat_drawing.h"
#include "table/sounds.h"

EstadoSeries series;

namespace {

// An As may count ten more up to this sum: eleven of them still stand at 21 or less.
constexpr Currency kTopeBlanda = 11, kMasPorAs = 10;

struct Suma {
    Currency puntos;
    bool hay_as = false;
};

Suma SumaCartas(int asiento, int serie) {
    Suma suma;
    for (int lugar = 1; lugar <= estado.NumCartas(asiento, serie); ++lugar) {
        const Integer valor = estado.Mano(asiento, serie, lugar, kValor);
        suma.puntos += estado.ValorCarta(valor);
        suma.hay_as = suma.hay_as || valor == kAs;
    }
    return suma;
}

void VuelveBocaArriba(int asiento, int serie) {
    for (int lugar = 1; lugar <= estado.NumCartas(asiento, serie); ++lugar) {
        estado.Mano(asiento, serie, lugar, kCara) = kDescubierta;
        estado.Mano(asiento, serie, lugar, kTapada) = 0;
    }
    RedibujarAsiento(asiento);
    Sonido(0, sonido::kPosa);
}

// The second card of a serie becomes the only one of another.
void PasaSegundaCarta(int asiento, int serie, int nueva) {
    for (int campo = kPalo; campo <= kTapada; ++campo) {
        estado.Mano(asiento, nueva, 1, campo) = estado.Mano(asiento, serie, 2, campo);
        estado.Mano(asiento, serie, 2, campo) = 0;
    }
    estado.NumCartas(asiento, serie) = 1;
    estado.NumCartas(asiento, nueva) = 1;
}

void IgualaApuesta(int asiento, int serie, int nueva) {
    for (const Integer fase : kFasesConApuesta)
        apuestas.Apuesta(asiento, nueva, fase) = apuestas.Apuesta(asiento, serie, fase);
    for (int ficha = 1; ficha <= kMaximoFichasPuestas; ++ficha) {
        apuestas.FichasPuestas(asiento, nueva, ficha) =
            apuestas.FichasPuestas(asiento, serie, ficha);
    }
    apuestas.NumFichasPuestas(asiento, nueva) = apuestas.NumFichasPuestas(asiento, serie);
    const int queda = RestoDe(asiento) - ApuestaTotal(asiento, serie);
    AsignarResto(asiento, EnteroDe(std::max(queda, 0)));
}

} // namespace

float PuntosSerie(int asiento, int serie) {
    Suma suma = SumaCartas(asiento, serie);
    const bool con_blandas = estado.JuegoActivo == kBlackJack;
    series.ManoBlanda = con_blandas && suma.hay_as && suma.puntos <= kTopeBlanda;
    series.ManoDura = con_blandas && !series.ManoBlanda;
    if (series.ManoBlanda)
        suma.puntos += kMasPorAs;
    return static_cast<float>(suma.puntos.Real());
}

std::string ClaveDeSerie(Integer palo, Integer valor) {
    return Formato(valor, "00") + Formato(palo, "0");
}

int LugarTapada(int asiento, int serie) {
    for (int lugar = 1; lugar <= estado.NumCartas(asiento, serie); ++lugar) {
        if (estado.Mano(asiento, serie, lugar, kTapada) == kTapadaSi)
            return lugar;
    }
    return 0;
}

void AbreSerie() {
    const Integer asiento = estado.JugadorActual;
    const Integer serie = estado.SerieActual;
    const auto nueva = static_cast<Integer>(estado.SeriesJugador(asiento) + 1);
    if (nueva > kMaximoSeries)
        LanzaIndiceFuera(2, nueva, kMaximoSeries);
    VuelveBocaArriba(asiento, serie);
    estado.SeriesJugador(asiento) = nueva;
    PasaSegundaCarta(asiento, serie, nueva);
    if (estado.JuegoActivo == kBlackJack)
        IgualaApuesta(asiento, serie, nueva);
    series.PuedeAbrir = false;
    RedibujarAsiento(asiento);
}
