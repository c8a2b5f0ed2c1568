#pragma once
// Siete y media: a Spanish deck of 40 cards, a bank, and a card that stays covered. Each seat bets with that one card in
// hand and draws towards seven and a half; who passes loses the stake at once. A first Four may be changed for another
// card, as often as one comes. Two medias may be opened into two series, each with a bet of its own. Who shows seven and
// a half has sung it: the first of them is paid double, and takes the bank unless the bank has it too. Departures from
// common play, on purpose: a tie is the bank's, seven and a half under a covered card is not sung, and the double pay
// holds for every serie of who sang.

// The whole match, hand after hand; returns when it is over or was left.
void ManoSieteYMedia();
