#pragma once
// Stakes of the games with money.

// The hand in play is void: every seat's chips (and the pot's) as they were when it began, through AsignarResto
// of RestoPrevio, and its bets of serie 1 from ApuestaPrevia. Writes Fichas and Apuesta.
void RestauraMano();
