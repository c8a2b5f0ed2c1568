#pragma once
// Tute and Brisca: two to four seats, alone or in two pairs, win tricks with a Spanish deck of 40 cards, of 36
// without the Doses for three seats. The As is worth 11 tantos, the Tres 10, Rey 4, Caballo 3, Sota 2, and that is
// the order of the cards, too, ahead of 7, 6, 5, 4, 2. A trump beats every other suit. Who has most tantos takes
// the hand, and the hands taken decide the match.
//
// Brisca: three cards each, a new one after every trick, and no card is ever forbidden.
// Tute: the whole deck in hand with three or four seats, six cards and a stock with two. Once there is no stock a
// follower has to go over the card led, else follow suit, else trump. The winner of a trick may sing a Caballo and
// Rey of one suit for 20 tantos, 40 in trumps, or end the hand with the four Reyes or Caballos; the last trick is
// worth 10 more.
//
// Departures from common play, on purpose: only the card led has to be beaten, not the best one; nobody is excused
// because the partner wins; of equals the later trick decides; and the right to exchange the trump card is carried
// from the last trick of a hand into the next one.

// The whole match, hand after hand; returns when it is over or was left.
void ManoTute();
void ManoBrisca();
