#pragma once
// Black Jack. Six French decks that run on from hand to hand; seat 2 holds the bank for good. The seats bet before the
// deal, two cards each and one for the bank, all open. Each seat plays for 21: it may insure against an As of the bank,
// open a pair in up to four series, double on 9, 10 or 11. The bank draws to 17. A natural pays one and a half.
//
// On purpose this is not common play: the bank has no hidden card, so that its natural is known only at its turn; split
// Ases get one card each, unless that is an As; against a seat's second to fourth serie the bank's natural counts as a
// plain 21.

#include <string>
#include <vector>

#include "core/tabla.h"

// A match, from the first bets to its end; returns when the match was left, too.
void ManoBlackJack();

// The match ends when the bank or all the seats against it have run out of chips. Writes GanadorPartida: the bank, or
// the seat with the most chips.
bool AcabadaBlackJack();
std::string TextoFinalBlackJack();
// The seats against the bank that have chips left, in seat order; the bank when none has.
std::vector<Integer> GanadoresBlackJack();

// A match or a session begins: a new shoe, nothing offered.
void NuevaBlackJack();
