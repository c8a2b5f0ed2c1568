#pragma once
// The pot at the showdown of Póker, where a hand has only serie 1. Seats 1..4.

#include "betting/moves.h"

// What each seat receives of the pot, in points: writes PremioJugador, 0 for who receives nothing. Reads PuestoJugador
// (1 the best, 0 no cards), Apuesta, Fichas and NumCartas; how many share rank 1 is counted, not read. The prizes
// always sum to the pot; without a seat at rank 1 there are none.
void RepartePremios();

// The pot goes to the seats with a PremioJugador. al_mover hears one chip a winner for each denomination that the
// pot shows, al_vaciar that those chips are gone from it: the pot is a display, and what is paid is PremioJugador,
// in the fewest chips, once all have been told. Writes Fichas. Without prizes the pot stays where it is.
void PagaBote(const AlMoverFicha& al_mover, const std::function<void()>& al_vaciar);
