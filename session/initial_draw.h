#pragma once
// The draw for the first player.

// Cards are dealt face up, one by one, until an As falls: its seat becomes JugadorMano, or JugadorBanca where the
// game says so (its pile then moves to the bank). When the active seats get none of the four, the cards are mixed
// again; std::logic_error when no active seat takes part. Writes Baraja, JugadorActual. False when the match was left.
[[nodiscard]] bool SorteoInicial();
