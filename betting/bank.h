#pragma once
// Chips between the seats (1..4) and the bank, JugadorBanca.

#include "betting/moves.h"

// The bank pays the seat that many points, chip by chip, the largest first, and never more than it holds.
// Writes Fichas of both, regrouped at each chip, and DesgloseFichas.
void PagaDeBanca(Integer asiento, Integer cantidad, const AlMoverFicha& al_mover);

// Which of the chips that a seat has placed leave the table.
enum class Devolucion {
    Todo = 1,      // bet, doubling and insurance
    Seguro = 2,    // the insurance: the chips placed last
    SinSeguro = 3, // bet and doubling; the insurance stays
};

// The seat's chips of SerieActual go to a seat, itself or the bank, the last placed first. Writes Fichas of that
// one, regrouped at each chip, the seat's rows of Apuesta and its list of FichasPuestas, which keeps the chips
// that stay.
void DevuelveApuesta(Integer asiento, Integer destino, Devolucion modo,
                     const AlMoverFicha& al_mover);
