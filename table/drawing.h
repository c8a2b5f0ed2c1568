#pragma once
// Pieces drawn on `mesa` and its controls, in pixels of the surface.

#include <string_view>

#include "platform/platform.h"

// A card at (x, y) of a control.
void DibujarCarta(Control control, int x, int y, int orientacion, int palo, int valor, int cara,
                  int realce);
// A box of the table back to bare felt.
void DibujarCaja(int x, int y, int ancho, int alto);

// A number in digit images of 10 by 17, right-aligned in the control's columnas places at (x, y). Other characters
// than digits leave their place dark.
void PintarNumero(Control control, int indice, int x, int y, std::string_view numero, int columnas);

// A frame bar in the middle of the box at (x, y), as wide as the box: the 5-pixel end, the 1-pixel strip repeated, the
// other end.
void PintarMarco(Control control, int indice, int x, int y, int ancho, int alto);
