#pragma once
// The stock: the card that is turned up at its bottom, and the draw after a trick.

// Shows the trump card after the deal: the next card of the deck turned up under the pile, or, in Tute with
// three or four seats, the last card dealt, which stays in its hand. Writes PaloTriunfo, ValorTriunfo and, with
// a pile, CartasEnMazo and PosicionMazo.
void DescubreTriunfo();

// The draw after a trick, from GanadorBaza on, one card each; who finds the pile empty takes the turned card.
// Then the winner is to lead: JugadorSalida is GanadorBaza and JugadorActual one seat before it, also without
// a stock. Writes Mano, NumCartas, CartasEnMazo, PosicionMazo and, for the turned card, Baraja.
void RobaCartas();
