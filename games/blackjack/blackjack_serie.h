#pragma once
// A serie of Black Jack as the rules see it. Seats 1..4, series 1..4; nothing is written but what PuntosSerie does.

#include <string>

#include "core/tabla.h"

inline constexpr int kVeintiuna = 21;

int PuntosBlackJack(Integer asiento, Integer serie);

// 21 in the two cards of the seat's only serie.
bool EsBlackJack(Integer asiento, Integer serie);

// The serie takes no further choice: 21 or more, one card after a doubling, or the one card that split Ases get. An As
// on a split As is no such card: the two may be opened again, or played like any hand.
bool SerieParada(Integer asiento, Integer serie);

// What the serie has come to: for the message at the end of the hand, and for the record.
std::string ResultadoDeSerie(Integer asiento, Integer serie);
std::string ApunteDeSerie(Integer asiento, Integer serie);
