#pragma once
// A read hand in the order in which it is shown.

#include "core/tabla.h"

// JugadaOrdenada and CartasClave: the hand with the cards of that category, which must be active, in front.
void OrdenaJugada(Integer asiento, Integer categoria);
