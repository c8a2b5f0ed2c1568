#pragma once
// Chips on the table: placing them, taking them back, and the board on which a manual seat ends its turn. Seats 1..4,
// denominations 1..6, amounts in points. How the game takes bets is in its row (dinero.reglas).

#include "platform/platform.h"

// One chip of JugadorActual's stack, or of another seat's, goes to where the game wants it: the pot, or the seat's bet
// place. False when it is refused; a limit is told with its message, the rest in silence.
bool PonFicha(Integer asiento, Integer denominacion);
// An amount in the fewest chips, one after the other with their pauses; what is refused is missing from the total.
void ColocaApuesta(Integer asiento, Integer cantidad);
// The chips of this turn come back, from the last to the first.
void AnulaApuestas(Integer asiento);

// The pot goes to the seats with a prize, denomination by denomination.
void PagaBote();
// The bank pays a seat; no more than it has.
void PagaDeBanca(Integer asiento, Integer cantidad);
// The chips placed by a seat on SerieActual go to destino (a seat). modo 1 all, 2 the insurance, 3 all but the
// insurance.
void DevuelveApuesta(Integer asiento, Integer destino, Integer modo);

// The pot with its chips and its number, drawn anew; the chips of a seat at its bet place with their label.
void RedibujaBote();
void RedibujaApuesta(Integer asiento);

// The board for JugadorActual, its displays, and away with it.
void MuestraApostadora();
void ActualizaApostadora();
void OcultaApostadora();
// A button of the board pressed (2) or up (1), with its caption.
void EstadoBoton(Control control, int indice, int estado_boton);

// A click on a button of the board. A click on the chip under the pointer, while ModoApuesta is on.
void PulsaApostadora(Control control);
void PulsaFicha();
// The pointer over a chip that the seat on turn may place: FichaBajoCursor, 0 none.
void DetectaFicha(int x, int y);
