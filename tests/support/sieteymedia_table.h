#pragma once
// A live table of Siete y media: deals that are known, chances that are known, money that is counted.

#include <string>
#include <vector>

#include "betting/bet_state.h"
#include "betting/chips.h"
#include "betting/phases.h"
#include "games/common/series.h"
#include "tests/support/bank_table.h"
#include "tests/support/live_table.h"

namespace prueba {

struct MesaDeSiete : MesaViva {
    // Seat 2 holds the bank, seat 3 leads. Everybody has 100 points, plays alone at level 0 and stands on 5; nobody
    // waits and no time passes. A match is on and no hand is.
    MesaDeSiete();

    // The next hand: the first cards in the order of the deal (3, 4, 1, 2), then what is drawn. And the numbers of chance
    // that follow the shuffle: two for a seat that bets and stands at once.
    void Saldra(const std::vector<Carta>& orden, const std::vector<double>& azar = {});
    // A person plays the seat, and sees its cards.
    static void Persona(Integer asiento);
    // Only so many points for a seat.
    static void Tiene(Integer asiento, Integer puntos) { AsignarResto(asiento, puntos); }
    // Seats with a stake of a hand that is all played but the end.
    void ManoJugada();
    static void Apuesta(Integer asiento, Integer serie, Integer puntos);

    // Plays until the results of the first hand have been settled and the wait for the next one comes.
    void JuegaUnaMano();
    // The text of the n-th box (from 1) with that title.
    std::string Texto(const std::string& titulo, int n = 1) const;
    static int Total();
};

} // namespace prueba
