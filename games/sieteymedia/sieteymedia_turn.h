#pragma once
// A seat's turn in Siete y media: serie by serie the bet and the cards; then the bank's.

// JugadorActual, not the bank, bets on and plays all its series, those too that it opens meanwhile, and shows its first
// one again. False when the match was left.
[[nodiscard]] bool TurnoDeAsiento();

// The bank shows its card and, when somebody else is still in the hand, plays. Writes JugadoresEnMano. False when the
// match was left.
[[nodiscard]] bool TurnoDeLaBanca();
