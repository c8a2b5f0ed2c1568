#pragma once
// One turn of a trick.

// The next seat that holds cards plays one: JugadorActual steps, the seat's rights and choice are worked out, a
// manual seat (or every seat, with the pause between moves) is waited for, and the card goes from its hand to the
// table. Writes CartasEnBaza, AzarTurno, CartaCambio, CartaElegida, CartaEnMesa, JugadaBaza, PaloSalida,
// FallaPalo, the hand. False when the match was left.
[[nodiscard]] bool TurnoDeBaza();
