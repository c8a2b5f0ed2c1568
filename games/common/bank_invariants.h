#pragma once
// What must hold in both games with a bank, whatever was played. InvarianteRoto when something does not.

// At any moment of a hand, and between two hands: nobody holds fewer than no chips, and what all hold and have at stake
// is what they had when the hand began.
void RevisaDineroDeBanca();

// Play has ended: cards as the rules deal them, bust series, and nothing left at stake by them.
void RevisaSeriesDeBanca();

// A finished match: all the money is there, every record fits its columns, and the last hands' results are in them.
void RevisaRegistrosDeBanca();
