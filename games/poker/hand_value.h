#pragma once
// What a read hand counts at showdown, and how it is called. Both take a category that the last AnalizaJugada found.

#include <string>

#include "core/tabla.h"

// The order number of a category 7..17 of the seat: the higher one wins, equal ones tie. Reads Jugadas and
// CuentaJugada. 0 for a draw.
Long ValorJugada(Integer categoria, Integer asiento);

// "Full de Reyes y Doses", "Escalera a la Dama".
std::string TextoJugada(Integer asiento, Integer categoria);

// C(n, k); 0 when k is not in 0..n. Desbordamiento outside 16 bits.
Integer Combinaciones(Integer n, Integer k);
