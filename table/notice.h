#pragma once
// One plate of words that says what the table is doing when it is not playing: cards are put in order, or dealt, by
// hand.

// Shown, painted anew or hidden, as ModoOrdenar and RepartoEnCurso are.
void RefrescaAviso();
