#pragma once
// The count of a serie in the two games with a bank, Black Jack and Siete y media.

#include <string>

#include "games/common/series_state.h"

// The points of a seat's serie (1..4), 0 for an empty one: the sum of ValorCarta, to which an As adds ten in
// Black Jack where that does not pass 21. Reads Mano, NumCartas, ValorCarta and JuegoActivo; writes ManoBlanda
// and ManoDura, both false outside Black Jack. A valor outside the deck throws IndiceFuera.
float PuntosSerie(int asiento, int serie);

// The sort text of a card in both games: by value, then by suit.
std::string ClaveDeSerie(Integer palo, Integer valor);
