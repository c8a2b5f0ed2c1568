#pragma once
// A round of bets of Póker, the first or the second by FaseApuesta: from JugadorMano round the table until everybody
// has met the last raise or folded, or all have passed.

// Writes UltimoSubidor, MaximaApuesta, TurnosRonda, JugadoresEnMano as it began, and ManoNula: nobody has bet though
// somebody could, which ends the hand with the pot where it is. False when the match was left.
[[nodiscard]] bool RondaDeApuestas();
