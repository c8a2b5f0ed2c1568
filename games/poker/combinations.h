#pragma once
// How many ways there are to take some cards out of many.

#include "core/tabla.h"

// C(n, k); 0 when k is not in 0..n. Desbordamiento outside 16 bits.
Integer Combinaciones(Integer n, Integer k);
