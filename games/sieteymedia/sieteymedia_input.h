#pragma once
// What a person can do with the own cards in Siete y media, and the buttons beside them.

#include "platform/platform.h"

// The tips that offer the change of the four, to open two halves, to turn the covered card, and to sing by turning it.
inline constexpr int kTipCuatro = 32, kTipMedias = 33, kTipTapada = 34, kTipCantar = 36;

// The pointer over place lugar of SerieActual of the seat on turn: a Four to change, also in the bets; in play two medias
// to open, a covered card to turn. Nothing on a serie that is only looked at.
Puntero PunteroDeSiete(int lugar);

// A click with that pointer; false when it means nothing here. The covered card that is turned ends the turn when it
// makes seven and a half. Writes Mano, and for the others what CambiaCuatro and AbreSerie do.
bool ClicDeSiete(Puntero puntero, int lugar);

// The buttons of the series; there is no card to ask for at seven and a half, nor a button beyond it. Draws only.
void PonBotonesDeSiete(int asiento);
