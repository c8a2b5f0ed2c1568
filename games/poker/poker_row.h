#pragma once
// The game's row in the table of games.

struct FilaJuego;

const FilaJuego& FilaPoker();
