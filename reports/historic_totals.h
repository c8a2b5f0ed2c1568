#pragma once
// What the players have won in all the matches of a history, summed by name and by pair of names.

#include <array>
#include <string>
#include <vector>

#include "storage/history.h"

inline constexpr int kPestanas = 4;

// The tabs, by their numbers.
inline constexpr int kPartidasDeJugador = 1, kFigurasDeJugador = 2, kPartidasDePareja = 3,
                     kFigurasDePareja = 4;

// segundo: the other name of a pair.
struct Total {
    std::string primero, segundo;
    int cuenta = 0;
    friend bool operator==(const Total&, const Total&) = default;
};
using Totales = std::array<std::vector<Total>, kPestanas>; // by tab, from index 0

// The four tabs, each from the largest count down; equal ones in descending order of the names as they stand
// right-aligned in their columns. Six columns hold a count: what is beyond them stops there. Only winners are counted;
// the tabs of the pairs take the matches in pairs alone.
Totales CuentaTotales(const Historico& historico);
