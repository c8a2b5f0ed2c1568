#pragma once
// Putting a hand in order by mouse: a card is taken, follows the pointer inside its seat's band and is put back
// at another place.

#include "core/tabla.h"

// Takes the card: ArrastraCarta, CartaMovida; the seat is redrawn without it.
void TomaParaOrdenar(Integer asiento, Integer lugar);
// The card follows the pointer.
void MueveArrastrada(int x, int y);
// The card is put down where its picture stands; the other cards move up by one place.
void SueltaArrastrada();
// The card of a place goes to another one (1..NumCartas), at once, with no card in the air.
void MueveEnLaMano(Integer asiento, int desde, int hasta);
// The taken card goes back to its own place (the match was left, the drag was broken).
void AbandonaArrastre();
// The end of putting in order, before a hand changes: a taken card would be put down by a place that may no
// longer hold it. Clears ModoOrdenar.
void DejaDeOrdenar();
// ModoOrdenar, with the words on the table that go with it.
void PonModoOrdenar(bool activo);

// The small card that follows the pointer, its corner at (x, y).
void PonMover(Integer palo, Integer valor, int x, int y);
// Repaints it where it stands, if a card is held.
void PintaMover();
