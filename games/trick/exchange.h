#pragma once
// The exchange of the trump card.
//
// The right belongs to the winner of the last trick on its own turn, also when that trick was the last one of
// the hand before: GanadorBaza is not reset between hands, on purpose.

// CartaCambio for JugadorActual's turn: the 7 of trumps when the trump card scores points, else the lowest
// card of the game, if the seat holds it, has the right, and the stock is large enough; otherwise 0.
void MiraCambio();

// JugadorActual's card of CartaCambio takes the place of the trump card, which goes to its place in the hand.
// Writes PaloTriunfo, ValorTriunfo, Mano, CartaCambio 0, and chooses anew (CartasJugables, CartaElegida).
// Nothing happens when the seat does not hold that card or CartaCambio is 0.
void CambiaTriunfo();
