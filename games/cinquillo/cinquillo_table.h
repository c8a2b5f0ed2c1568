#pragma once
// Where a laid card lies on the felt.

#include "table/layout.h"

// The corner of the card's place in its suit's column, for the table's size.
Punto LugarTendido(Integer palo, Integer valor);
