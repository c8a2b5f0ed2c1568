#pragma once
// The flight of a card.

#include "core/game_state.h"

// Where a card lies, its corner in pixels of the table, and how: turned to its seat, which side up.
struct Sitio {
    int x = 0, y = 0;
    Integer orientacion = 1;
    Integer cara = kDescubierta;
};

// The card flies from one place to the other as it will lie there, and stays; a covered card is half covered by its
// back. Returns after the flight.
void MueveCarta(Carta carta, const Sitio& desde, const Sitio& hasta, bool tapada = false);
