#pragma once
// The cards of a hand in the order in which the hand is read.

#include "core/tabla.h"

// Analyses the seat's first serie, moves the cards that make its best category to the front, those of the category
// first, by swaps of whole cards, and redraws the seat.
void OrdenaCartasSeat(Integer asiento);
