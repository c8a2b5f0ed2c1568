#pragma once
// The controls that stand on `mesa`: hiding them, and the pointer over them.

#include "platform/platform.h"

// The pointer's shape over a control.
void CambiarCursor(Control control, int indice, Puntero puntero);

// A control hidden; all Pic_Tantos hidden.
void Oculta(Control control, int indice = 0);
void OcultaTantos();
