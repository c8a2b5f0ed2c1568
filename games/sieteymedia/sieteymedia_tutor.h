#pragma once
// The tutor of Siete y media.

// For JugadorActual, at level 100 while TutorPulsado is set: in the bets, and to the bank in play, the caption "Cambiar
// el cuatro" where that is to be done, otherwise in the bets "Apostar " and the sum; in play "Abrir la jugada", or a
// flash of "Servido" or "Carta", with the covered card uncovered for its time when it should be turned. Writes what
// DecideSiete does, SerieActual and the caption.
void AconsejaSiete();
