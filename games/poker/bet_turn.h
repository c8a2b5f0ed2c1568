#pragma once
// The turn of a seat in a round of bets of Póker.

// JugadorActual bets, passes or folds: by hand on the board, or as CalculaApuesta proposes. Draws AzarTurno; writes
// what it has done into ApuestaColocada, the seat's caption, and, when it raises, MaximaApuesta, UltimoSubidor and
// TurnosRonda. False when the match was left.
[[nodiscard]] bool TurnoDeApuesta();
