#pragma once
// What stands beside a seat in the games of series and chips: the buttons to ask for a card, to stand, to browse
// the series, to double or insure; the score plate; the stacks of chips. state 1 is up, 2 pressed. Seats 1..4.

#include <string>
#include <string_view>

#include "platform/platform.h"

// Pic_BotLateral(index) on the seat: 1 the serie before, 2 the next one.
void BotonLateral(int asiento, int state, int index);
// Pic_BotSuperior(index) on the seat: 1 "  C a r t a", 2 "S e r v i d o"; on the bank with the pile between them.
void BotonSuperior(int asiento, int state, int index);
// Pic_BotDobSeg on the seat, with "D o b l a r" or "S e g u r o".
void BotonDobSeg(int asiento, int state, const std::string& texto);

// The score plate Pic_Tantos(asiento) with the count of SerieActual.
void MostrarPuntos(int asiento);

// A number in digit images of 10 by 17, right-aligned in the control's columnas places at (x, y). Other characters
// than digits leave their place dark.
void PintarNumero(Control control, int indice, int x, int y, std::string_view numero, int columnas);

// A frame bar in the middle of the box at (x, y), as wide as the box: the 5-pixel end, the 1-pixel strip repeated, the
// other end.
void PintarMarco(Control control, int indice, int x, int y, int ancho, int alto);

// The seat's stacks of chips (0 the pot), at the chip places of an area.
void PintarFichas(int asiento, int area);
