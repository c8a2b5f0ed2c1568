#pragma once
// How much the seat on turn puts in, in a round of bets of Póker: a strong hand raises by the seat's character and the
// mood of the table, a middling one stays as long as staying is cheap, a weak one folds but for a bluff now and then.
// Two departures from common play, on purpose: a raise of under a quarter becomes one of a fifth, and seats of a high
// level know who really has better.

// The proposal for JugadorActual, an automatic seat or one that asks the tutor. Reads the turn (AzarTurno, FaseApuesta,
// MaximaApuesta, the seats' bets, chips, cards, characters and levels, what is believed of them); writes
// ApuestaPropuesta (points to add; 0 passes, negative folds), TopeApuesta, and the readings of the hands that it looks
// at. Places no chips. With TutorPulsado the level counts as 100. Out of the two rounds of bets it proposes nothing of
// its own, a 0.
void CalculaApuesta();
