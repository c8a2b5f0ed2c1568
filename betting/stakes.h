#pragma once
// Stakes of the games with money.

#include "core/tabla.h"

// The seat (1..4) has chips left. The number of seats that have.
bool TieneResto(Integer asiento);
Integer CuentaConResto();

// The hand in play is void: every seat's chips (and the pot's) as they were when it began, through AsignarResto
// of RestoPrevio, and its bets of serie 1 from ApuestaPrevia. Writes Fichas and Apuesta.
void RestauraMano();
