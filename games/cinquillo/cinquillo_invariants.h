#pragma once
// What must hold at the end of a hand of Cinquillo, told from its log alone: the log is played again turn by
// turn under the rules, apart from the code that played it.

// The hand that has just ended: cards, turns, passes, winner. InvarianteRoto when one is wrong.
void RevisaManoCinquillo();
// The records and the games won of the match of so many hands that has just ended.
void RevisaPartidaCinquillo(int manos);
