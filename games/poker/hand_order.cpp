#include "games/poker/hand_order.h"

#include <utility>

#include "core/game_state.h"
#include "games/poker/hand_reading.h"
#include "games/poker/poker_state.h"
#include "table/seat_drawing.h"

namespace {

constexpr int kCartas = 5;

// How many valores lead the order of a category, and whether each brings all of its cards.
struct Guia {
    int valores = kCartas;
    bool todas = false;
};

Guia GuiaDe(Integer categoria) {
    if (categoria == poker.Repoker || categoria == poker.Poker)
        return {1, true};
    if (categoria == poker.Full || categoria == poker.Trio || categoria == poker.DoblePareja)
        return {2, true};
    if (categoria == poker.Pareja)
        return {3, true};
    return {};
}

void CambiaCartas(Integer asiento, int una, int otra) {
    for (int campo = 0; campo <= kTapada; ++campo)
        std::swap(estado.Mano(asiento, 1, una, campo), estado.Mano(asiento, 1, otra, campo));
}

// Brings the cards of a valor to the front, from place libre on; the next free place.
int Adelanta(Integer asiento, Integer valor, int libre, bool todas) {
    for (int lugar = libre; lugar <= kCartas; ++lugar) {
        if (estado.Mano(asiento, 1, lugar, kValor) != valor)
            continue;
        CambiaCartas(asiento, lugar, libre);
        ++libre;
        if (!todas)
            break;
    }
    return libre;
}

} // namespace

void OrdenaCartasSeat(Integer asiento) {
    AnalizaJugada(asiento);
    const Integer mejor = poker.MejorJugada(asiento);
    const Guia guia = GuiaDe(mejor);
    int libre = 1;
    for (int i = 1; i <= guia.valores; ++i) {
        const Integer valor = poker.Jugadas(asiento, mejor).Cartas(i);
        if (valor != 0)
            libre = Adelanta(asiento, valor, libre, guia.todas);
    }
    RedibujarAsiento(asiento);
}
