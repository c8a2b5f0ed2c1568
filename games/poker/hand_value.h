#pragma once
// What a read hand counts at showdown. The category is one that the last AnalizaJugada found.

#include "core/tabla.h"

// The order number of a category 7..17 of the seat: the higher one wins, equal ones tie. Reads Jugadas and
// CuentaJugada. 0 for a draw.
Long ValorJugada(Integer categoria, Integer asiento);
