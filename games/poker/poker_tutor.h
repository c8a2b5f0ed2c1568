#pragma once
// The tutor of Póker: what a seat of level 100 and the same character would do. Its button sets TutorPulsado around it.

#include <string>

// Advises JugadorActual. In the bets (FaseApuesta 2, 3, 5) it decides and blinks the advice in green as the seat's
// caption; in the discards (4) it puts the raised cards back in line, decides, and flashes twice the cards that should
// go, or "Servido" when none should. Leaves no card raised and no caption. Writes what CalculaApuesta and
// DecideDescarte write, and EsperandoJugada stays.
void ConsejoTutor();

// The advice on the bet, in words, of ApuestaPropuesta, MaximaApuesta and the bet and chips of JugadorActual.
std::string TextoConsejo();
