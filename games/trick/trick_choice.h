#pragma once
// The choice of a card that the program plays for a seat.

// Chooses for JugadorActual by the rules of the game on the table, and never a card that may not be played: the
// exact search may propose a place of a hand that has been put in another order since. Writes what the choice of
// the game writes; CartaElegida is then the best legal card.
void EligeParaJugar();
