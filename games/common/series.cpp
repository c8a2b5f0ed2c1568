#include "games/common/series.h"

#include "core/game_state.h"
#include "core/text.h"

EstadoSeries series;

namespace {

constexpr Integer kAs = 1;
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
