#pragma once
// What stands beside a seat in the games of series: the buttons to ask for a card, to stand, to browse the series, to
// double or insure; the score plate. state 1 is up, 2 pressed. Seats 1..4.

#include <string>

#include "core/tabla.h"
#include "platform/platform.h"

// Pic_BotLateral(index) on the seat: 1 the serie before, 2 the next one.
void BotonLateral(int asiento, int state, int index);
// Pic_BotSuperior(index) on the seat, with the words of the game (1 "  C a r t a", 2 "S e r v i d o"); where a pile lies
// before the seat, with it between them.
void BotonSuperior(int asiento, int state, int index);
// Pic_BotDobSeg on the seat, with "D o b l a r" or "S e g u r o".
void BotonDobSeg(int asiento, int state, const std::string& texto);

// The serie that the seat shows: SerieActual on its turn; in the games with a bank everybody else shows the last.
Integer SerieALaVista(int asiento);

// The score plate Pic_Tantos(asiento) with the count of the serie on show. There is none for a count of 0, nor for the
// bank out of its turn. Writes what it says into vista.tantos, "" for no plate.
void MostrarPuntos(int asiento);
