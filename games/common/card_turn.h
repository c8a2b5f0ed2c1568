#pragma once
// The turn of a seat that plays a card, in Tute, Brisca and Cinquillo: its choice is opened, waited for and closed, and
// the chosen card leaves the hand.

#include "core/game_state.h"
#include "table/flight.h"

bool EsManual(Integer asiento);

// Nothing is chosen yet; a manual seat may click its cards and ask the tutor. Writes JugadaHecha and EligeCarta, and
// ends an ordering by hand.
void AbreEleccion(Integer asiento);
// A manual seat, or any with a pause between the moves, is waited for; what it has not chosen by then elige chooses
// anew, for its hand may have changed. The choice stands in CartaElegida. False when the match was left.
[[nodiscard]] bool EsperaEleccion(Integer asiento, void (*elige)());
void CierraEleccion();

// The chosen card of the seat, and the way out of the hand: it is shown, its place is closed up, and it flies to where
// hasta says. Writes Mano and NumCartas.
Carta CartaElegidaDe(Integer asiento);
void JuegaElegida(Integer asiento, const Sitio& hasta);
