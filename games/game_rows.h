#pragma once
// The list of the games. A new game is one line here.

#include <vector>

#include "table/game_row.h"

// The rows, in the order of their numbers.
const std::vector<const FilaJuego*>& LosJuegos();
