#pragma once
// The game's row in the table of games.

struct FilaJuego;

// Póker, for the list in games/game_rows.cpp.
const FilaJuego& FilaPoker();
