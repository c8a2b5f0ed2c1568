#pragma once
// The rivals of a seat in a hand of Póker: the other seats that still hold cards. The seat is JugadorActual.

#include "core/tabla.h"

// The seat (1..4) holds cards and is not JugadorActual. Reads NumCartas.
bool EsRival(Integer asiento);

// The mean of the rivals' CaracterJugador, to the nearest, halves to the even; 0, which weighs nothing, without rivals.
Integer ActitudMesa();

// No rival has chips left: all of them are all-in, or there is none. Reads Fichas.
bool RivalesSinResto();
