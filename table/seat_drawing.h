#pragma once
// A seat on the felt: its cards, its name, its caption, the winner's mark. Seats 1..4. All is drawn from the state;
// nothing of it is written but a caption that has blinked, which is cleared.

#include <string>

// Everything of the seat painted anew; a caption that blinks does so first.
void RedibujarAsiento(int asiento);
// JugadorActual blinks twice.
void ResaltarAsiento();
// The caption of the seat's serie on show.
void MostrarRotulo(int asiento);
// The caption of the seat's serie on show as a reader says it; "" without one.
std::string RotuloDicho(int asiento);
// The names of the active seats, from now on also whenever a seat is painted.
void MostrarNombres();

// The winner's mark of a seat, shown or taken away.
void MarcaGanador(int asiento, bool visible);
