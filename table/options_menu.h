#pragma once
// The pop-up Pic_SelOpciones: entries 4 and 5 of TextoOrdenar, to put a hand in order.

#include <string>

#include "platform/canvas.h"

// Which entries are on show: Opciones(4), Opciones(5); all others off. Writes NumOpciones.
void PonOpciones(bool ordenar);
// Draws and shows the pop-up at the last press, to the right of it or else to the left, and moved up to stay on the table;
// nothing without entries.
void MuestraOpciones();
// Line n (1..NumOpciones) of the open pop-up: its words, its box from the pop-up's corner, and whether it carries a mark.
std::string TextoDeOpcion(int n);
Rectangulo LugarDeOpcion(int n);
bool OpcionMarcada(int n);
// Repaints the pop-up where it stands, if it is open.
void PintaOpciones();
// The highlight goes out when the pointer leaves the pop-up.
void ApagaOpcion();
// The pointer is at (x, y) of the pop-up: for the table it is where that lies.
void ApuntaEnOpciones(int x, int y);
// The pointer moved to, or the button was released over, row y of the pop-up.
void Opciones_MouseMove(int y);
void Opciones_MouseUp();
