#pragma once
// The side buttons and the green button's captions of the games with a bank.

#include <string>

#include "platform/platform.h"

// Shows what the seat on turn may press, hides the rest: to ask for a card and to stand for a manual seat that
// plays the serie on show, to browse when it holds several. Does nothing for any other seat.
void PonBotonesDeSerie(int asiento);

// The caption of an automatic seat's turn: "Apuesta" or "Juega" by FaseApuesta, and its name, with the number of
// the serie behind it when the seat holds several. A manual seat's caption stays.
void RotuloDeSerie(std::string& primera, std::string& segunda);

// The pointer over place lugar of SerieActual of the seat on turn: a covered card may be turned, out of the bets;
// nothing else is done by a click on a card.
Puntero PunteroDeSerie(int lugar);
