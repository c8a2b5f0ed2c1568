#pragma once
// Which cards a seat of Póker throws away: those that do not serve the category it plays for. No random number enters.

#include "core/tabla.h"

// The cards that do not serve a category of the seat's last analysis, whoever plays: writes MarcaDescarte. A draw also
// rewrites JugadaOrdenada and CartasClave.
void MarcaLoQueSobra(Integer asiento, Integer categoria);

// The discards of JugadorActual. Analyses its hand (rewrites its Jugadas and MejorJugada) and writes JugadaObjetivo and
// MarcaDescarte, 1 for each place 1..5 of the hand whose card is to go and 0 for the others. Reads the seat's character
// and level, 100 under TutorPulsado. A draw also rewrites JugadaOrdenada and CartasClave.
void DecideDescarte();
