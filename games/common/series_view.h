#pragma once
// The side buttons and the green button's captions of the games with a bank.

#include <string>

// Shows what the seat on turn may press, hides the rest: to ask for a card and to stand for a manual seat that
// plays the serie on show, to browse when it holds several series. Does nothing for any other seat.
void PonBotonesDeSerie(int asiento);

// The caption of an automatic seat's turn: "Apuesta" or "Juega" by FaseApuesta, and its name, with the number of
// the serie behind it when the seat holds several. A manual seat's caption stays.
void RotuloDeSerie(std::string& primera, std::string& segunda);
