#pragma once
// The end of a hand of Siete y media: who has sung, the results, the money, and the bank that passes on.

#include "core/tabla.h"

// The seat before the bank, round from JugadorMano, that has sung first: writes NuevaBanca, 0 for nobody.
void BuscaNuevaBanca();

// What the seat's serie gets when it wins: its stake, twice that for the seat that is NuevaBanca, whichever of its
// series sang.
Integer PremioDe(Integer asiento, Integer serie);

// Whether the bank passes to another seat, and why: to the first that sang, unless the bank stands at seven and a half
// too, or to the next seat with chips when the bank has none left; nowhere with one such seat alone. Tells it. Writes
// CambiaBanca and, in the second case, NuevaBanca.
void CambiaLaBanca();

// From the last card to the record of the hand. False when the match was left.
[[nodiscard]] bool CierreDeMano();
