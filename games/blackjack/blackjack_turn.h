#pragma once
// A turn of Black Jack, between the deal and the settlement.

#include "core/tabla.h"

// The seat plays all its series, of which it may open more: the person by the buttons beside the seat, the cards and the
// green button, an automatic seat by its decision. False when the match was left.
[[nodiscard]] bool JuegaAsiento(Integer asiento);

// The bank draws up to 17, a soft one too, unless no serie of a seat stands against it. Writes JugadoresEnMano, and the
// bank's SerieTerminada when it has gone over.
void JuegaLaBanca();
