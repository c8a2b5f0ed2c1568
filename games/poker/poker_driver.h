#pragma once
// Póker: five cards, a round of bets, a discard, a second round, and the best hand takes the pot. Where this table
// departs from common play, on purpose: five figures (As, Jota, Dama, Rey) are a hand of their own; with forty cards or
// fewer Trío beats Figuras and Color beats Full; who has nothing to say in a round keeps the cards; a round in which
// nobody bets ends the hand, with the pot left for the next one; what a short winner cannot win of the others' bets goes
// to the second, who may be short too.

#include <string>

// The whole match, hand after hand, until one seat alone has chips.
void ManoPoker();

// The ante of every seat with chips, from JugadorMano round the table: ApuestaSalida, or what the seat has left or may
// still bet in this hand. Writes FaseApuesta and what ColocaApuesta writes.
void PonApuestaDeSalida();
// The table of a hand that begins: what LimpiaManoConDinero clears, and no discards.
void LimpiaManoDePoker();
// One active seat alone has chips: GanadorPartida, the last one that has, and true.
bool AcabaPoker();
// The words of the end of the match; in pairs the winner's partner has won too.
std::string TextoFinalPoker();
