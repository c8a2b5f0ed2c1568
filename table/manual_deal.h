#pragma once
// The manual deal: the deck lies spread on the table and the player hands the cards out with the mouse.

#include "core/tabla.h"

// Lays the spread, waits until every seat in the hand holds its cards and makes the rest the deck. False when
// the match was left. A change of SistemaReparto or of the deck's size ends the wait early: the hands are then
// not complete, and the hand start deals again.
[[nodiscard]] bool RepartirAMano();

// True when every seat in the hand has its cards.
bool RepartoCompleto();

// True when the point lies in the spread's box.
bool EnElReparto(int x, int y);

// The card at FilaReparto, ColumnaReparto hangs on the pointer: ArrastraReparto, its place blank. False, with
// nothing changed, when no card lies there.
bool TomaDelReparto();

// The hanging card enters the seat's hand if the seat takes it: Mano, NumCartas, CartaEnReparto, UltimoRecibe,
// ArrastraReparto. False, with nothing changed, when it does not.
bool DaCartaA(Integer asiento);

// The hanging card goes back to its place.
void DevuelveAlReparto();

// Place lugar of the seat's hand goes back to the spread.
void RecogeDeMano(Integer asiento, int lugar);

// The spread painted anew from CartaEnReparto.
void PintaReparto();

// The hanging card as it is drawn at the pointer; palo 0 when none hangs.
struct CartaColgada {
    Integer palo = 0, valor = 0;
};
CartaColgada LaCartaColgada();
