#include "table/deck.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "core/game_state.h"
#include "core/numeric.h"
#include "core/random.h"
#include "table/game_row.h"
#include "table/layout.h"
#include "table/messages.h"
#include "table/pile.h"
#include "table/seat_drawing.h"
#include "table/sounds.h"
#include "table/trace.h"

namespace {

constexpr Integer kValorComodin = 90; // 91 and 92 are the jokers

// A free place of 1..total. A taken place draws again: the order of the cards is a rejection fill.
int LugarLibre(int total) {
    int lugar = AzarEntre(total);
    while (estado.Baraja(lugar, 1) != kSinCarta)
        lugar = AzarEntre(total);
    return lugar;
}

void MeteEnBaraja(Integer palo, Integer valor) {
    const int lugar = LugarLibre(estado.TotalBaraja);
    estado.Baraja(lugar, 1) = palo;
    estado.Baraja(lugar, 2) = valor;
}

void MeteValor(Integer palo, Integer valor) {
    for (int mazo = 0; mazo < estado.MazosBaraja; ++mazo)
        MeteEnBaraja(palo, valor);
}

struct CartaConClave {
    std::string clave;
    std::array<Integer, 6> campos{};
};

} // namespace

void ConstruirBaraja() {
    const FilaJuego& juego = JuegoEnMesa();
    juego.baraja.prepara();
    plataforma().CargaBaraja(estado.CarpetaTrabajo + (estado.TipoBaraja == kBarajaEspanola
                                                          ? "/Baraja02.bmp"
                                                          : "/Baraja01.bmp"),
                             estado.ColumnasBaraja);
}

void Barajar() {
    Sonido(1, sonido::kBaraja);
    Pausa(400);
    estado.CartasEnMazo = estado.TotalBaraja;
    estado.NumDescartes = 0;
    estado.PosicionMazo = 1;
    if (!JuegoEnMesa().baraja.seguida)
        DibujarMazo(estado.MazoX, estado.MazoY, estado.TotalBaraja);
    estado.Baraja.Borra();
    SiembraDelReloj(plataforma().Reloj());
    for (Integer palo = kOros; palo <= kBastos; ++palo) {
        for (Integer valor = 1; valor <= estado.ColumnasBaraja; ++valor) {
            if (estado.ValorEnBaraja(valor))
                MeteValor(palo, valor);
        }
    }
    for (int comodin = 1; comodin <= estado.ComodinesBaraja; ++comodin)
        MeteEnBaraja(kComodin, EnteroDe(kValorComodin + comodin));
}

void PonCarta(Integer asiento, Integer serie, int lugar, Carta carta, Integer cara) {
    estado.Mano(asiento, serie, lugar, kPalo) = carta.palo;
    estado.Mano(asiento, serie, lugar, kValor) = carta.valor;
    estado.Mano(asiento, serie, lugar, kCara) = cara;
    estado.Mano(asiento, serie, lugar, kAltura) = kEnLinea;
    estado.Mano(asiento, serie, lugar, kTapada) = 0;
}

void CompactarMano(Integer asiento) {
    using Manos = decltype(estado.Mano);
    constexpr int kLugares = Manos::kTopes[2];
    constexpr int kCampos = Manos::kTopes[3] + 1;
    // The places of a serie lie one behind the other.
    Integer* carta = &estado.Mano(asiento, estado.SerieActual, 1, 0);
    Integer* libre = carta;
    for (int lugar = 1; lugar <= kLugares; ++lugar, carta += kCampos) {
        if (carta[kPalo] == kSinCarta)
            continue;
        if (libre != carta) {
            std::copy_n(carta, kCampos, libre);
            std::fill_n(carta, kCampos, Integer{0});
        }
        libre += kCampos;
    }
}

void OrdenarMano(Integer asiento) {
    const FilaJuego& juego = JuegoEnMesa();
    if (juego.baraja.ordena_mano != nullptr) {
        juego.baraja.ordena_mano(asiento);
        return;
    }
    if (juego.baraja.clave_orden == nullptr)
        return;
    const Integer serie = estado.SerieActual;
    CompactarMano(asiento);
    std::vector<CartaConClave> cartas;
    for (int lugar = 1; lugar <= estado.NumCartas(asiento, serie) &&
                        estado.Mano(asiento, serie, lugar, kPalo) != kSinCarta;
         ++lugar) {
        CartaConClave carta;
        for (int campo = 0; campo <= 5; ++campo) {
            carta.campos[static_cast<std::size_t>(campo)] =
                estado.Mano(asiento, serie, lugar, campo);
        }
        carta.clave = juego.baraja.clave_orden(carta.campos[kPalo], carta.campos[kValor]);
        cartas.push_back(carta);
    }
    std::ranges::stable_sort(cartas, {}, &CartaConClave::clave);
    for (std::size_t i = 0; i < cartas.size(); ++i) {
        for (int campo = 0; campo <= 5; ++campo) {
            estado.Mano(asiento, serie, static_cast<int>(i) + 1, campo) =
                cartas[i].campos[static_cast<std::size_t>(campo)];
        }
    }
    RedibujarAsiento(asiento);
}
