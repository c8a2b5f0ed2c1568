#pragma once
// The discards of Póker: what is thrown away lies covered on the other side of the pot from the pile, and is mixed
// again when the pile runs out. Seats 1..4; Descartes and NumDescartes are written.

#include <vector>

#include "table/targets.h"

// The raised cards of the seat, or its whole hand, fly to the discards. How many.
Integer TiraLasLevantadas(Integer asiento);
Integer TiraLaMano(Integer asiento);

// The pile holds less than the n cards that the seat wants: the earlier discards, but for the last n, are mixed behind
// the deck, after a message. Writes Baraja, PosicionMazo, CartasEnMazo.
void MezclaDescartes(Integer asiento, Integer n);

// None lies there any more.
void BorraDescartes();

// The discards as they lie.
void PintaDescartes();
// It is told when there is one; nobody looks into it.
void AgregaDescartes(std::vector<Objetivo>& todos);
