#pragma once
// The bet board: where a manual seat ends its turn of bets, and the chips that it clicks. Whoever takes bets finds here
// all that it needs of the chips on the table.

#include "platform/platform.h"
#include "table/chip_moves.h"
#include "table/chips.h"

// The board for JugadorActual, its displays, and away with it.
void MuestraApostadora();
void ActualizaApostadora();
void OcultaApostadora();
// The board where it belongs at the table's size, if it shows. Draws only.
void RepintaApostadora();
// A button of the board pressed (2) or up (1), with the caption TextoBoton(indice).
void EstadoBoton(Control control, int indice, int estado_boton);

// The chips of this turn come back, from the last to the first, and the displays tell it.
void AnulaApuestas(Integer asiento);

// A click on a button of the board. A click on the chip under the pointer, while ModoApuesta is on. Neither does
// anything once the seat has ended its turn.
void PulsaApostadora(Control control);
void PulsaFicha();
// Chips may be clicked: the seat on turn bets by hand, with nothing else going on.
bool SePuedenPonerFichas();
// The pointer over a chip that the seat on turn may place: FichaBajoCursor, 0 none.
void DetectaFicha(int x, int y);
