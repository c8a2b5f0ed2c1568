#pragma once
// Seats of Póker for the tests of its decisions: cards by their letters, bets and chips in points, no window.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/game_state.h"
#include "platform/headless/headless_platform.h"
#include "tests/support/trick_hands.h"

namespace prueba {

// Cards as they are written at a table, "Ao 10c Je 7b ##": the rank (A, 2 to 10, J, Q, K) and the suit (o, c, e, b);
// # is the first joker, ## the second.
std::vector<Carta> Cartas(const std::string& escritas);

class AsientosDePoker : public testing::Test {
protected:
    // A deck of 52 without jokers, no law of opening, at most 100 points a hand; four seats without cards, of 200
    // points in chips, Medio, level 50; seat 1 on turn, in the first round, with 0.5 as its number.
    AsientosDePoker();

    // 52, 48, 44, 40, 36 or 32 cards, and so many jokers.
    static void Baraja(int cartas, int comodines = 0);
    // The seat's hand; "" takes it away.
    static void Da(Integer asiento, const std::string& cartas);
    // Rivals with a hand of nothing, of that character.
    static void Rivales(const std::vector<Integer>& asientos, Integer caracter);
    // A bet of the seat in that round: 2 the ante, 3 the first, 5 the second.
    static void Apuesta(Integer asiento, Integer fase, Integer puntos);
    static void Ronda(Integer fase, Integer maxima, double azar);
    static Integer Propuesta();

    // The places of the hand of JugadorActual that its decision throws away, as "1..45" of five.
    static std::string Descarta();

    PlataformaSinPantalla p;
};

} // namespace prueba
