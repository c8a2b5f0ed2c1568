#pragma once
// The spread of the manual deal: the deck's small cards in rows, the one that hangs on the pointer, and their way
// into a hand and back.

#include "core/game_state.h"
#include "platform/canvas.h"

// The spread in the middle of the table: writes ReparteX, ReparteY. Painted anew from CartaEnReparto.
void CentraReparto();
void PintaReparto();
// One place of it, and all places that the deck has a card for, row by row.
void PintaLugarDelReparto(int fila, int columna);
template <class F>
void PorElReparto(F&& visita);

// The seat (1..4) gets cards in this hand.
bool RecibeAMano(Integer asiento);

// The card of a place: the fifth row holds the jokers.
Carta CartaDelReparto(int fila, int columna);
// The deck has a card for the place.
bool EstaEnLaBaraja(int fila, int columna);

// The box of a place on the felt.
Rectangulo LugarEnReparto(int fila, int columna);
// True when the point lies in the spread's box.
bool EnElReparto(int x, int y);

// The card at FilaReparto, ColumnaReparto hangs on the pointer: ArrastraReparto, its place blank. False, with
// nothing changed, when no card lies there.
bool TomaDelReparto();
// The hanging card, kSinCarta when none hangs.
Carta LaCartaColgada();
// The seat would take the hanging card.
bool AdmiteLaColgada(Integer asiento);
// It enters the seat's hand if the seat takes it: Mano, NumCartas, CartaEnReparto, UltimoRecibe, ArrastraReparto.
// False, with nothing changed, when it does not.
bool DaCartaA(Integer asiento);
// It goes back to its place.
void DevuelveAlReparto();

// Place lugar of the seat's hand goes back to the spread.
void RecogeDeMano(Integer asiento, int lugar);

template <class F>
void PorElReparto(F&& visita) {
    for (int fila = 1; fila <= estado.FilasReparto; ++fila) {
        for (int columna = 1; columna <= estado.ColumnasBaraja; ++columna) {
            if (EstaEnLaBaraja(fila, columna))
                visita(fila, columna);
        }
    }
}
