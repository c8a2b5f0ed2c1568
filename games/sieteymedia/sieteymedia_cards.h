#pragma once
// The cards of Siete y media that lie covered, and the Four that may be changed.

#include "core/tabla.h"

// Turns every card of the seat's serie face up and uncovers it, draws the seat and pauses 220; of all four seats for
// seat 0. A seat without cards there is left alone. Writes Mano.
void DestapaSerie(Integer asiento, Integer serie);

// The seat holds one card in its only serie, a Four, and some card is left to change it with.
bool OfreceCambiarCuatro(Integer asiento);

// The Four of JugadorActual, its first card, for one at a random place of what is still to deal, where it goes itself;
// both fly. The new card lies open. Decides anew, and withdraws PuedeCambiarCuatro unless it is a Four again. Nothing
// happens when the deck is used up. Writes Mano, Baraja, PuedeCambiarCuatro and what DecideSiete does.
void CambiaCuatro();

// What a seat does that plays by itself: it shows its Four and changes it, until it has another card or means to keep
// the Four (ConservaCuatro). Does nothing unless PuedeCambiarCuatro.
void CambiaCuatroSolo();
