#pragma once
// What stands against one more chip on the table. Nothing here is changed, and nothing said to the player: the
// answer is data, from which the board makes its message.

#include "core/tabla.h"

// How a game takes bets; its row carries it.
struct ReglasApuesta {
    // The chips go into the pot at once, and nobody bets more than the richest rival can meet. Otherwise they
    // stay before the seat, and the bank's ceiling holds.
    bool bote = false;
    // ApuestaMaxima binds in the bets alone: doubling and insurance may go beyond it.
    bool maxima_solo_al_apostar = false;
    // The bank's ceiling in times ApuestaMaxima; 0: what the bank holds in chips.
    Integer maximas_de_techo = 0;
};

enum class Rechazo {
    Ninguno,
    Maxima,       // more than ApuestaMaxima in this hand
    SoloIgualar,  // all rivals are in with everything: the highest bet can be met, not raised
    RestoDeRival, // more than the richest rival can meet
    RestoDeBanca, // more than the bank answers for
    EnSilencio,   // the seat's chips do not reach, or its list of chips is full: nothing is said
};

// Techo in points, and in a game with a pot the seat that sets it (0: no rival has cards).
struct Techo {
    Integer puntos = 0;
    Integer rival = 0;
};

struct Veredicto {
    Rechazo rechazo = Rechazo::Ninguno;
    Techo techo;
};

// The most that a seat may have at stake in SerieActual because of the others: the first of the richest rivals
// with cards (stake and chips), or the bank. Reads Apuesta, Fichas, NumCartas, JugadorBanca and ApuestaMaxima.
Techo TechoDe(Integer asiento, const ReglasApuesta& reglas);

// No other seat (1..4) with cards in serie 1 has chips left; so it is also when no other has cards.
bool RivalesSinResto(Integer asiento);

// One chip of denomination d from the seat in FaseApuesta and SerieActual: the first reason against it, or none.
// A denomination that is none: IndiceFuera.
Veredicto JuzgaFicha(Integer asiento, int d, const ReglasApuesta& reglas);
