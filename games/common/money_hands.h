#pragma once
// What the hands of the games with money share: who leads, and what is cleared and noted at their start.

#include "core/tabla.h"

// From the second game of the match on JugadorMano moves on, to the next seat that has chips; in the first one it does
// so only off a seat that has none.
void PasaLaManoConResto();

// The bank of this hand: NuevaBanca when CambiaBanca is set; the row's own seat where the computer always holds it.
// JugadorMano is the next seat with chips after it. Writes JugadorBanca, JugadorMano.
void PasaLaBanca();

// The start of a hand: FaseApuesta 1, RestoPrevio and ApuestaPrevia as the money stands, the bets cleared unless a pot
// was left by a hand in which nobody bet, the lists of chips placed and SerieTerminada.
void LimpiaManoConDinero();

// The seat after the given one, round the table, that has chips; the given one when no other has.
Integer SiguienteConResto(Integer asiento);
