#pragma once
// A seat on the felt: its cards, its name, its caption, the winner's mark. Seats 1..4. All is drawn from the state;
// nothing of it is written but a caption that has blinked, which is cleared.

#include <string>

// Everything of the seat painted anew; a caption that blinks does so first.
void RedibujarAsiento(int asiento);
// JugadorActual blinks twice; from then on its name is lit.
void ResaltarAsiento();

// One name is lit, and marked: that of the seat on turn (JugadorActual), of the seat to which the trick goes, or none.
void EnciendeTurno();
void EnciendeBaza(int asiento);
void ApagaNombre();

// Words before the raised cards of a seat, over the bare felt there; and the felt again. Draws only.
void MuestraCante(int asiento, const std::string& texto);
void QuitaCante(int asiento);

// The caption of the seat's serie on show.
void MostrarRotulo(int asiento);
// The caption of the seat's serie on show as a reader says it; "" without one.
std::string RotuloDicho(int asiento);
// The names of the active seats, from now on also whenever a seat is painted.
void MostrarNombres();

// The winner's mark of a seat, shown until it is taken away or the table is cleared.
void MarcaGanador(int asiento, bool visible);
// The mark after its blinks, until the table is cleared for the next hand.
void DejaMarcaGanador(int asiento);
