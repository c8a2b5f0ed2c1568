#pragma once
// What is on disk follows the match: at its start, after each finished hand, at its end.

#include "core/tabla.h"

// Writes both settings files. The first write that fails in a run of the program is told in a message; play goes
// on. True when both were written, or the platform keeps no matches.
bool GuardarPartida();

// The exit, and the change of game: a hand in play is void. Gives back what it has moved and ends a manual deal.
void AnulaMano();

// Another game: the file of the one that is left is written, JuegoActivo takes the new id, the general file is
// written. Failures are told as above; a platform that keeps no matches writes neither.
void GuardarYCambiar(Integer juego);
