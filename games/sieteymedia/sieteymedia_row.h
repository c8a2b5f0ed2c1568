#pragma once
// The game's row in the table of games.

struct FilaJuego;

// Siete y media, for the list in games/game_rows.cpp.
const FilaJuego& FilaSieteYMedia();
