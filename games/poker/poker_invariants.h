#pragma once
// What must hold in Póker, told from the cards and chips alone. InvarianteRoto when something does not.

// At any moment: all the chips of the match are there, and during a hand every card is in one place.
void RevisaPasoPoker();
// The showdown, with the pot not paid yet: full hands, ranks, and prizes that are the pot.
void RevisaManoPoker();
// The match of so many hands that has just ended: one seat has all the chips, and every record fits its columns.
void RevisaPartidaPoker(int manos);
