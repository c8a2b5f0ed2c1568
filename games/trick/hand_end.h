#pragma once
// The end of a hand of Tute or Brisca.

// Finds GanadorMano, tells the result and waits; then writes the hand's record (Juegos, JuegosGanados).
// Individual: the most tantos, and of equals who took the later trick. Pairs: the team with more, and of equals
// the team of the last trick. A Tute wins whatever the tantos. Clears ManoEnCurso. False when the match was left
// during the wait: then nothing is recorded.
[[nodiscard]] bool FinalMano();
