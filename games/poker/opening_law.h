#pragma once
// The law of opening (Ley de apertura) of Póker: whoever opens the first round of bets needs a pair of LeyApertura + 1
// at least, or better. An As always opens, whatever the law asks for.

// JugadorActual may bet. False only in the first round, with nobody's bet on the table, for a seat without the
// pair. Reads LeyApertura (14: no law), FaseApuesta, MaximaApuesta; reads the seat's hand anew, which rewrites its
// Jugadas and MejorJugada, unless there is no law.
bool LeyAperturaCumplida();

// The same, and the player is told when the law stands against a chip.
bool LeyPermiteFicha();
