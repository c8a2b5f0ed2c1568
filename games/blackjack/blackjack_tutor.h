#pragma once
// The tutor of Black Jack.

// For JugadorActual, at level 100 while TutorPulsado is set: in the bets the caption "Apostar " and the sum; in play the
// first of its advices by a flash of "Seguro", the caption "Abrir el par", a flash of "Doblar", "Servido" or "Carta".
// Writes what DecideBlackJack does, SerieActual and the caption.
void AconsejaBlackJack();
