#pragma once
// Makers of hands, stakes and funds for the tests of Black Jack and Siete y media.

#include <vector>

#include "core/game_state.h"
#include "games/common/series.h"
#include "tests/support/trick_hands.h"

namespace prueba {

inline constexpr Integer kReina = 12, kReyFrances = 13;

// A clean table of one of the two games, with the values of its cards: seat 2 holds the bank, seat 4 is on turn in its
// only serie, in the stage of play. All seats have 200 points, level 100 and character Medio; 200 to begin with, 25 the
// highest bet, chance in the middle.
void MesaDeBanca(Integer juego);

// The cards of a serie of a seat, from place 1, all open; the seat holds as many series at least.
void PonSerie(Integer asiento, Integer serie, const std::vector<Carta>& cartas);
// The same in a hand whose first card is covered.
void PonSerieTapada(Integer asiento, Integer serie, const std::vector<Carta>& cartas);

// The seat is on turn, in its first serie.
void TocaJugar(Integer asiento);
// The bet of a serie.
void Apuesta(Integer asiento, Integer serie, Integer puntos);
// Chance as it fell.
void Azar(double azar);
// The next card of the deck.
void SiguienteDelMazo(Carta carta);
// No card is left.
void MazoAgotado();

} // namespace prueba
