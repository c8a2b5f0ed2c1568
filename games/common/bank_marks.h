#pragma once
// What blinks on the bet places in the two games with a bank. Drawn only, but for the pauses and the sounds. Seats 1..4.

// The bet place of JugadorActual blinks twice.
void ParpadeaApuesta();

// The seat has gone over: twice the burst on its bet place, with sound 11; the burst stays.
void DestellaBust(int asiento);
