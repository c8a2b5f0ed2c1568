#pragma once
// What flies over the felt: a card, and the path of whatever else does.

#include <functional>

#include "core/game_state.h"
#include "table/layout.h"

// Where a card lies, its corner in pixels of the table, and how: turned to its seat, which side up.
struct Sitio {
    int x = 0, y = 0;
    Integer orientacion = 1;
    Integer cara = kDescubierta;
};

// The card flies from one place to the other as it will lie there, and stays; a covered card is half covered by its
// back. Returns after the flight.
void MueveCarta(Carta carta, const Sitio& desde, const Sitio& hasta, bool tapada = false);

// The steps of a flight, each with its pause: al_pasar draws the corner's new place. Nothing without a way to go.
void RecorreVuelo(const Punto& desde, const Punto& hasta,
                  const std::function<void(const Punto&)>& al_pasar);
