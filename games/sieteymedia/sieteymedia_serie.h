#pragma once
// A serie of Siete y media as the rules see it. Seats 1..4, series 1..4; nothing is written but what PuntosSerie does.

#include "core/tabla.h"

// Seven and a half, and whether a seat's serie (1..4) stands there or beyond.
inline constexpr float kSieteYMediaJusto = 7.5F;
bool EsSieteYMedia(Integer asiento, Integer serie);
bool SePasa(Integer asiento, Integer serie);
// At seven and a half with no covered card: it is sung, or will be.
bool EstaCantada(Integer asiento, Integer serie);

// The points that everybody sees: the cards of the serie whose face shows.
float PuntosDescubiertos(int asiento, int serie);
