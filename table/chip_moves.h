#pragma once
// Chips that change hands before everybody's eyes. Seats 1..4, denominations 1..6, amounts in points.
// How the active game takes bets is in its row (dinero.reglas). Chips in flight take no input.

#include "core/tabla.h"

// One chip of the seat's stack goes to where the game wants it: the pot, or the seat's bet place. False when it is
// refused; a limit is told with its message, the rest in silence.
bool PonFicha(Integer asiento, Integer denominacion);
// An amount in the fewest chips, one after the other with their pauses; what is refused is missing from the total.
void ColocaApuesta(Integer asiento, Integer cantidad);

// The pot goes to the seats with a prize, denomination by denomination.
void PagaBote();
// The bank pays a seat; no more than it has.
void PagaDeBanca(Integer asiento, Integer cantidad);
// The chips placed by a seat on SerieActual go to destino (a seat). modo 1 all, 2 the insurance, 3 all but the
// insurance; IndiceFuera for another.
void DevuelveApuesta(Integer asiento, Integer destino, Integer modo);
