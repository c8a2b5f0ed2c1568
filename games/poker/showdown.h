#pragma once
// The end of a hand of Póker: who wins, what is said, what is written down, who is paid.

// The showdown of those who hold cards; one alone wins unseen. Writes PuestoJugador, Ganadores, GanadorMano (0 when the
// hand is shared), PremioJugador, the record of the game, and the chips; the files are written. False when the match
// was left in the wait on "Continuar" that ends it.
[[nodiscard]] bool FinalDeMano();
