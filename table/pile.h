#pragma once
// The pile of cards.

#include "platform/canvas.h"

// The pile of n cards at (x, y), on its cleared box; what the game keeps under the pile is drawn first.
void DibujarMazo(int x, int y, int n);
// The box of the pile at its place (MazoX, MazoY), the turned card under it included.
Rectangulo CajaDelMazo();

// What of the pile is to be seen on the felt; without size when none is on show.
Rectangulo LugarDelMazo();
