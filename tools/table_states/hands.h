#pragma once
// Cards in the hands of a table that is only looked at.

#include "core/game_state.h"

// A match and a hand of the game are on, with the names on show.
void PonPartida(Integer juego);

// The seat holds so many cards of the active deck, one after the other from the given one (0 the first).
void PonCartas(Integer asiento, int cartas, int desde, Integer cara);

// The n-th card of the active deck, suit by suit, from 0 and round again.
Carta NesimaCarta(int n);
