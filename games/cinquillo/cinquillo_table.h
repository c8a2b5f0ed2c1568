#pragma once
// Where a laid card lies on the felt.

#include <vector>

#include "table/targets.h"

// The corner of the card's place in its suit's column, for the table's size.
Punto LugarTendido(Integer palo, Integer valor);

// The laid cards, suit by suit from the Rey down, those at which a suit goes on told so.
void AgregaTendidas(std::vector<Objetivo>& todos);
