#pragma once
// The game's row in the table of games.

struct FilaJuego;

// Tute and Brisca, for the list in games/game_rows.cpp.
const FilaJuego& FilaTute();
const FilaJuego& FilaBrisca();
