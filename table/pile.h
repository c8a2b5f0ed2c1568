#pragma once
// The pile of cards.

// The pile of n cards at (x, y), on its cleared box; what the game keeps under the pile is drawn first.
void DibujarMazo(int x, int y, int n);
