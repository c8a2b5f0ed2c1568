#pragma once
// Dealing: a hand at its start, and further cards during a hand.

#include "core/tabla.h"

// The deal of a hand, by SistemaReparto. False when the match was left meanwhile.
[[nodiscard]] bool Repartir();

// n more cards for SerieActual of the seat, covered or not. Writes Mano, NumCartas, CartasEnMazo, PosicionMazo.
void RobarCartas(Integer asiento, Integer n, Integer tapada);
