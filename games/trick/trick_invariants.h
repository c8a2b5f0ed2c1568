#pragma once
// What must hold at the end of a hand of Tute or Brisca, told from its log alone: the log is played again trick
// by trick under the rules, apart from the code that played it.

// The hand that has just ended: cards, leaders, legal cards, winners, points. InvarianteRoto when one is wrong.
void RevisaManoBazas();
// The records and the games won of the match of so many hands that has just ended.
void RevisaPartidaBazas(int manos);
