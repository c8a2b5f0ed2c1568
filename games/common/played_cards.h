#pragma once
// What the statistics of Tute, Brisca and Cinquillo tell of the cards that have been laid.

#include "games/common/deck_table.h"

// Tricks, or rounds, that the log of a hand has room for.
inline constexpr Integer kBazasAnotadas = 40;

// The card that the seat (1..4) laid in a trick or round, by RegistroBazas; palo 0 when it laid none.
Carta CartaEnBaza(Integer asiento, Integer baza);

// The table of the deck with each card's number, of what CartaJugada says is played in dark red. Answers the y below it.
int ImprimeCartasJugadas(PaginaImpresa& pagina, int y);
