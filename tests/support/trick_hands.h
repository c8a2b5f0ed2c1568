#pragma once
// Makers of hands and tricks for the tests of Tute, Brisca and Cinquillo.

#include <vector>

#include "core/game_state.h"
#include "games/common/trick_values.h"

namespace prueba {

using ::Carta;

using ::kAs, ::kTres, ::kSota, ::kCaballo, ::kRey;

// A clean table for a game of 2 to 4 seats (three seats leave seat 4 out, two seats play 2 and 4): deck
// fields and values of the game, direct sense, all seats automatic, level 50, character 2, no trump.
void MesaDeBazas(Integer juego, Integer jugadores);

// The seat's whole hand, from place 1.
void PonMano(Integer asiento, const std::vector<Carta>& cartas);

// The seat's card on the table; the first one laid gives PaloSalida and JugadorSalida.
void EnMesa(Integer asiento, Carta carta);

// It is the seat's turn: JugadorActual and CartasEnBaza. With a bare table the seat leads.
void TocaA(Integer asiento);

// The cards have been played in this hand, by seat 1.
void YaJugadas(const std::vector<Carta>& cartas);

// All cards of the deck have been played but those in the hands and on the table.
void SoloQuedanLasManos();

// The suit of the trump card and its rank.
void Pinta(Carta carta);

} // namespace prueba
