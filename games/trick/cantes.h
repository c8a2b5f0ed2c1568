#pragma once
// Cantes and Tutes.

#include "core/tabla.h"

// After a trick: the winner, and in pairs then its partner, shows a Tute, or sings the suit of which it holds
// fewest cards, the trump suit before an equal one. Reads GanadorBaza and the hands; writes JugadorCante,
// TuteCantado, TantosBaza, TantosJugador, TantosDeBaza, PaloCantado and RegistroBazas. A Tute sets TuteCantado
// and JugadorCante, and nobody sings after it.
void CantaTrasBaza();

// The seat that was dealt the four Reyes, otherwise the four Caballos; 0 when nobody was.
Integer AsientoConTute();
