#pragma once
// Chips placed one by one and taken back, in SerieActual and FaseApuesta. Seats 1..4. No limit is tested here:
// JuzgaFicha (betting/limits.h) comes first.

#include <vector>

#include "betting/limits.h"
#include "betting/moves.h"

// A seat's turn to bet begins: nothing placed, nothing proposed, and the chips of its serie can no longer be taken
// back. In the games with a bank a serie bets but once in a hand, so its list is still empty then, and from
// there on keeps every chip of the hand for the settlement; the pot needs no list.
void EmpiezaTurnoDeApuesta(Integer asiento);

// The chip leaves the seat's stack, which is regrouped, and is at stake. Writes Apuesta, ApuestaEnCurso, Fichas
// (of the pot too, in a game that has one) and appends to FichasPuestas; IndiceFuera when that is full.
FichaMovida AnotaFicha(Integer asiento, int d, const ReglasApuesta& reglas);

// Takes back every chip of the seat's list, the last one first, and leaves the list empty. The stack is regrouped
// once all are back. Writes what AnotaFicha writes.
void AnulaApuestas(Integer asiento, const ReglasApuesta& reglas, const AlMoverFicha& al_mover);

// The denominations, the largest first, with which a seat puts in an amount: the fewest chips, and never more
// than the seat has. None for 0 or less. Writes DesgloseFichas.
std::vector<int> FichasParaApostar(Integer asiento, Integer cantidad);
