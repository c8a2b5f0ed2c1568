#pragma once
// A finished match enters the history of its game.

#include "storage/history.h"

// The match that has just ended, as its record: the winners (partida.ganadores of the row, or GanadorPartida's seat or
// team) and the other active seats, each with the hands won, or with what the chips gained or lost; the platform's date
// and time. Reads the seats, JuegosGanados and the chips.
PartidaTerminada RecuerdaPartida();

// The question whether the history is brought up to date, and on a yes the record. A write that fails is told and asked
// about again.
void PreguntaPorHistorico();
