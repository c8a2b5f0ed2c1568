#pragma once
// Questions about a seat's hand that the games of laying cards share. They read the hand's places 1 to
// MaxCartasMano of the first series, whatever gaps it has, and write only what is said here.

#include "core/tabla.h"

// Looks the seat's hand over. Writes MapaMano (palo, valor), TuteEnMano (12 with the four Reyes, else 11
// with the four Caballos, else 0), PaloCantable of each suit whose Caballo and Rey are both in the hand
// and that nobody has sung (PaloCantado), and HayCante when there is one.
void ExaminaMano(Integer asiento);

// How many cards of the suit the seat holds; 0 for a palo that is no suit.
Integer CuentaPalo(Integer asiento, Integer palo);

// True when the seat holds that card: LugarCarta is then its place in the hand, otherwise 0.
bool BuscaCarta(Integer asiento, Integer palo, Integer valor);

// What a card is worth against the trick on the table: OrdenCarta of its rank, 10 more when it is of
// PaloSalida, 20 more instead when it is of PaloTriunfo. Writes nothing.
Integer PotenciaCarta(Integer palo, Integer valor);
