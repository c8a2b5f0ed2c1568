#pragma once
// Chips on the felt: the stacks beside the seats, the pot in the middle, what is at stake before each seat, and a chip
// on its way. All is drawn from the money's state; vista.fichas_de_mas says what the show is ahead or behind. Seats 1..4.

#include <vector>

#include "betting/moves.h"
#include "core/tabla.h"
#include "platform/canvas.h"
#include "table/sheet_layout.h"

// The seat's stacks of chips (0 the pot), at the chip places of an area.
void PintarFichas(int asiento, int area);

// The pot with its chips and its number, drawn anew; the chips of a seat at its bet place with their label. Where
// chips go into the pot the label stands alone, and only as long as there is a pot.
void RedibujaBote();
void RedibujaApuesta(Integer asiento);

// A mark of 32 by 32 on the seat's bet place, in its middle or, where chips lie, at the end of their row, until the
// place is drawn anew. The one of a serie that has gone over (SerieTerminada) is drawn with the place.
void MarcaApuesta(Integer asiento, const lamina::Recorte& marca);

// One chip flies from place to place; returns after the flight.
void MueveFicha(const FichaMovida& ficha);

// What a click on the seat's chips of a denomination has to hit: the chip at the foot of the stack, and as much as the
// others stand out above it. Without size when the seat has none.
Rectangulo PilaDe(Integer asiento, int d);

// All that chips, their plates and their marks can take of the felt in the game on the table.
std::vector<Rectangulo> LugaresDeFichas();
// What the pot takes on the felt, with the plate of its number.
Rectangulo LugarDelBote();
