#pragma once
// The series of the two games with a bank, Black Jack and Siete y media: their count, and how a hand becomes two.

#include <string>

#include "games/common/series_state.h"

// Series that a seat can hold.
inline constexpr Integer kMaximoSeries = 4;
// CartaTapada of a card that was dealt covered and not yet turned.
inline constexpr Integer kTapadaSi = 1;

// The points of a seat's serie (1..4), 0 for an empty one: the sum of ValorCarta, to which an As adds ten in
// Black Jack where that does not pass 21. Reads Mano, NumCartas, ValorCarta and JuegoActivo; writes ManoBlanda
// and ManoDura, both false outside Black Jack. A valor outside the deck throws IndiceFuera.
float PuntosSerie(int asiento, int serie);

// The sort text of a card in both games: by value, then by suit.
std::string ClaveDeSerie(Integer palo, Integer valor);

// The first place (1..NumCartas) of a covered card in a seat's serie; 0 when all lie open.
int LugarTapada(int asiento, int serie);

// Opens SerieActual of JugadorActual, which holds two cards, in two of one card each: both face up, the second one
// moved to a new last serie. In Black Jack the new serie gets the same stake and list of chips, which the seat pays
// out of its funds, down to 0 and no further; in Siete y media no money moves. Writes Mano, NumCartas,
// SeriesJugador, PuedeAbrir, and in Black Jack Apuesta, Fichas and the chips placed; draws the seat. IndiceFuera,
// with nothing written, for a fifth serie.
void AbreSerie();
