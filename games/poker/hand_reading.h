#pragma once
// What a hand of five cards is worth: which of the seventeen categories it fills, with which cards, how good each
// draw is. Pure reading of serie 1 of a seat; a joker is valor 91 or 92.
//
// Two jokers are worth less than elsewhere on purpose: a pair with two of them is a Trío, three suited cards no
// Color, three cards in a row no Escalera.

#include "core/tabla.h"

// Rewrites Jugadas(asiento, 1..17) and MejorJugada(asiento) from places 1..5 of the seat's first serie; empty places
// are passed over. JugadaOrdenada and CartasClave change when a draw is compared with the figures.
void AnalizaJugada(Integer asiento);

// As, Jota, Dama or Rey, by valor.
bool EsFigura(Integer valor);

// The seat's first serie holds a joker.
bool TieneComodin(Integer asiento);
