#pragma once
// The cards of the Spanish deck in Tute, Brisca and Cinquillo: their names, points and strength.

#include "core/game_state.h"

inline constexpr Integer kTres = 3, kCinco = 5, kSiete = 7, kSota = 10, kCaballo = 11, kRey = 12;

// What a card gains in a trick over its order: of the suit led, and of trumps, which beat every other suit.
inline constexpr Integer kPotenciaPaloSalida = 10, kPotenciaTriunfo = 20;

// ValorCarta and OrdenCarta: As 11 points, 3 gives 10, Rey 4, Caballo 3, Sota 2; order As, 3, Rey, Caballo, Sota, 7, 6,
// 5, 4, 2.
void PonValoresDeBazas();
