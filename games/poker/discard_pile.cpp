#include "games/poker/discard_pile.h"

#include <algorithm>

#include "core/game_state.h"
#include "core/numeric.h"
#include "core/random.h"
#include "games/poker/poker_state.h"
#include "platform/platform.h"
#include "table/deck.h"
#include "table/flight.h"
#include "table/layout.h"
#include "table/messages.h"
#include "table/seat_drawing.h"

namespace {

constexpr int kCartasPorDorso = 4; // as the pile shows them
constexpr int kBajada = 13;

Punto LugarDeDescartes() {
    return {estado.AnchoMesa - estado.MazoX - kAnchoCarta, estado.MazoY + kBajada};
}

// The other cards keep their places until all have gone.
void TiraCarta(Integer asiento, int lugar) {
    const auto campo = [&](int cual) -> Integer& {
        return estado.Mano(asiento, kSeriePoker, lugar, cual);
    };
    const Carta carta{campo(kPalo), campo(kValor)};
    ColocarCarta(asiento, lugar, estado.NumCartas(asiento, kSeriePoker));
    const Sitio mano{estado.CartaX, estado.CartaY, OrientacionDe(asiento), campo(kCara)};
    for (int cual = 0; cual <= kTapada; ++cual)
        campo(cual) = 0;
    RedibujarAsiento(asiento);
    const Punto monton = LugarDeDescartes();
    MueveCarta(carta, mano, {monton.x, monton.y, 1, kDorso});
    ++estado.NumDescartes;
    estado.Descartes(estado.NumDescartes, 1) = carta.palo;
    estado.Descartes(estado.NumDescartes, 2) = carta.valor;
    PintaDescartes();
}

Integer Tira(Integer asiento, bool (*se_va)(Integer altura)) {
    Integer tiradas = 0;
    for (int lugar = 1; lugar <= estado.NumCartas(asiento, kSeriePoker); ++lugar) {
        if (!se_va(estado.Mano(asiento, kSeriePoker, lugar, kAltura)))
            continue;
        TiraCarta(asiento, lugar);
        ++tiradas;
    }
    CompactarMano(asiento);
    Integer& cartas = estado.NumCartas(asiento, kSeriePoker);
    cartas = EnteroDe(cartas - tiradas);
    RedibujarAsiento(asiento);
    return tiradas;
}

// What is left of an earlier mixing moves to the first places behind the deck: those already dealt are free.
int JuntaLoQueQueda() {
    int detras = estado.TotalBaraja + 1;
    if (estado.PosicionMazo <= detras)
        return detras;
    for (int i = 0; i < estado.CartasEnMazo; ++i, ++detras) {
        for (int campo = 1; campo <= 2; ++campo)
            estado.Baraja(detras, campo) = estado.Baraja(estado.PosicionMazo + i, campo);
    }
    estado.PosicionMazo = EnteroDe(estado.TotalBaraja + 1);
    return detras;
}

} // namespace

Integer TiraLasLevantadas(Integer asiento) {
    return Tira(asiento, [](Integer altura) { return altura == kLevantada; });
}

Integer TiraLaMano(Integer asiento) {
    return Tira(asiento, [](Integer) { return true; });
}

void MezclaDescartes(Integer /*asiento*/, Integer n) {
    Mensaje(
        "Mezclar cartas descartadas",
        "Como  no hay suficientes cartas en el mazo para cubrir los descartes de este jugador se "
        "va a proceder a mezclar las cartas de los descartes anteriores.",
        3, 1);
    const int mezcladas = std::max(estado.NumDescartes - n, 0);
    const int primero = JuntaLoQueQueda();
    for (int lugar = primero; lugar < primero + mezcladas; ++lugar)
        estado.Baraja(lugar, 1) = kSinCarta;
    for (int i = 1; i <= mezcladas; ++i) {
        int lugar = 0;
        do {
            lugar = primero - 1 + AzarEntre(mezcladas);
        } while (estado.Baraja(lugar, 1) != kSinCarta);
        estado.Baraja(lugar, 1) = estado.Descartes(i, 1);
        estado.Baraja(lugar, 2) = estado.Descartes(i, 2);
    }
    // The seat's own discards are the first of the new pile.
    for (int i = 1; i <= estado.NumDescartes - mezcladas; ++i) {
        for (int campo = 1; campo <= 2; ++campo)
            estado.Descartes(i, campo) = estado.Descartes(mezcladas + i, campo);
    }
    estado.NumDescartes = n;
    estado.CartasEnMazo = EnteroDe(estado.CartasEnMazo + mezcladas);
    PintaDescartes();
}

void AgregaDescartes(std::vector<Objetivo>& todos) {
    if (estado.NumDescartes == 0)
        return;
    const Punto monton = LugarDeDescartes();
    todos.push_back({.clase = ClaseObjetivo::Rotulo,
                     .lugar = kRotuloDescartes,
                     .donde = {monton.x, monton.y, kAnchoCarta, kAltoCarta},
                     .toque = {monton.x + kAnchoCarta / 2, monton.y + kAltoCarta / 2},
                     .nombre = "Montón de descartes"});
}

void BorraDescartes() {
    estado.NumDescartes = 0;
}

void PintaDescartes() {
    if (!plataforma().HayPantalla())
        return;
    Lienzo& mesa = plataforma().LienzoDe(Control::Mesa, 0);
    const Punto monton = LugarDeDescartes();
    for (int k = 0; k * kCartasPorDorso < estado.NumDescartes; ++k)
        mesa.Carta(monton.x + k, monton.y - k, {.cara = kDorso, .orientacion = 1});
}
