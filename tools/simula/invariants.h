#pragma once
// What must hold at the end of each hand and of each match, whatever was played: what every game has in common, and
// what the row of the game looks at. InvarianteRoto when something does not.

// At any moment of a match. Reads the state only.
void RevisaPaso();

// The cards and the points of the hand that has just ended. Reads the state only.
void RevisaFinalDeMano();

// The games won, the records and the winner of the match that has just ended after so many hands: of a long one the
// records are fewer.
void RevisaFinalDePartida(int manos);
