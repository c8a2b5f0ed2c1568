#pragma once
// One plate of words that says what the table is doing when it is not playing: cards are put in order, or dealt, by
// hand; a match has ended, and another one can begin.

// Shown, painted anew or hidden, as ModoOrdenar, RepartoEnCurso and PartidaEnCurso are, the last one as long as the names
// of the finished match stand on the table.
void RefrescaAviso();
