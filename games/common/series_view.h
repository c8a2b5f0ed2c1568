#pragma once
// The side buttons of the games with a bank.

// Shows what the seat on turn may press, hides the rest: to ask for a card and to stand for a manual seat that
// plays the serie on show, to browse when it holds several series. Does nothing for any other seat.
void PonBotonesDeSerie(int asiento);
