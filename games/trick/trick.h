#pragma once
// One trick, from the lead to the points.

// Plays a trick that JugadorSalida leads (JugadorActual stands one seat before it): the exact search if the
// leader's hand is small enough, a turn a seat, then the winner, the points and the log of the trick. Writes
// NumBaza, Arrastre, GanadorBaza, TantosBaza, TantosJugador, GanadorDeBaza, TantosDeBaza, RegistroBazas,
// CartaJugada. False when the match was left.
[[nodiscard]] bool JuegaBaza();
