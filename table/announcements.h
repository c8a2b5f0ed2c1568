#pragma once
// What happens on the table, told in words while it happens, for who does not see it. Only what everybody at the table
// can see: of a covered card no more than that it is there. Captions at a seat and boxes are told by themselves
// (RedibujarAsiento, Mensaje). Seats 1..4.

#include <string>
#include <vector>

#include "core/game_state.h"

// The words as they are.
void Di(const std::string& texto);
// "Ana " and what the seat does, as "gana la baza".
void DiDe(Integer asiento, const std::string& que_hace);

// "la Sota de Oros", "el As de Picas".
std::string ConArticulo(Carta carta);
// "el As de Oros, la Sota de Copas y el Rey de Bastos"; "" without cards.
std::string Enumera(const std::vector<Carta>& cartas);

// The cards of those places of SerieActual that lie face up; what the others hold is nobody's business.
std::vector<Carta> ALaVista(Integer asiento, int desde, int cuantas);

// A wait begins: whose turn it is, when a person has to do something, with the points that the score plate shows; or
// that the hand is over. Nothing when the program only waits to be told to play on. Reads JugadorActual, ManoEnCurso.
void DiAQuienSeEspera();
