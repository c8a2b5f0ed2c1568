#pragma once
// Direction and deck are chosen at any time and never change in the middle of a hand: with a hand on they wait
// for the next one.

// SentidoJuego has changed. Writes PasoSentido, or Sesion's flag while a hand is on.
void CambiaSentido();

// CartasBaraja or ComodinesJuego have changed. Builds the deck anew, or sets Sesion's flag while a hand is on; a
// manual deal takes the new deck at once and starts again.
void CambiaBaraja();

// The deck for the seats and rules as they are now. No flag is left.
void RehazBaraja();

// The start of a hand or of a match: what was waiting comes into force.
void AplicaReglasPendientes();

// +1 or -1: the direction in which the next hand will go.
int PasoDeLaProximaMano();
