#pragma once
// What must hold in Siete y media: the cards and the stakes as a hand ends, and its settlement, reckoned here apart from
// the code that pays and looked at when the next hand, or the match, has ended.

// The hand whose results are being told. InvarianteRoto when something is wrong with it or with what the hand before it
// was paid.
void RevisaManoSiete();
// The money, the winner and the records of the match that has just ended.
void RevisaPartidaSiete(int manos);
