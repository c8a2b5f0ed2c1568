#pragma once
// What the table believes of a seat after its discard: nobody sees its cards, everybody sees how many it threw away.

#include "core/tabla.h"

// The seat (1..4) has thrown away that many cards, 0..5: writes its JugadaCreidaMin and JugadaCreidaMax, categories of
// the deck in play; 0 for a whole new hand. IndiceFuera for another number.
void AnotaJugadaCreida(Integer asiento, Integer descartadas);
