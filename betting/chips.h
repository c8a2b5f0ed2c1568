#pragma once
// The arithmetic of chips: amounts in whole points, denominations 1..6 of 1, 2, 5, 10, 20 and 50 points.
// Seats are 1..4, and 0 is the pot of the table; another index throws IndiceFuera.

#include "core/tabla.h"

inline constexpr int kDenominaciones = 6;
// The place of the pot in the tables of money.
inline constexpr Integer kBote = 0;

// Points of a chip by denomination; element 0 is spare. IniciarTablas copies it to ValorFicha.
inline constexpr std::array<Integer, 7> kValorFicha{0, 1, 2, 5, 10, 20, 50};
// The points of one chip; IndiceFuera for a denomination that is none.
Integer ValorDe(int d);
// One chip of each denomination below d, in points.
constexpr Integer ValorDeMenores(int d) {
    Integer suma = 0;
    for (int menor = 1; menor < d; ++menor)
        suma = static_cast<Integer>(suma + kValorFicha[static_cast<std::size_t>(menor)]);
    return suma;
}

// What a seat holds in chips, in points; RestoDe(0) is the pot. Reads Fichas. Desbordamiento beyond 16 bits.
Integer RestoDe(int asiento);

// What a seat has at stake in a serie (1..4): the ante, the bet and the second bet or insurance, rows 2, 3
// and 5 of Apuesta. Desbordamiento beyond 16 bits.
Integer ApuestaTotal(int asiento, int serie);

// The fewest chips of an amount, the largest first. Writes DesgloseFichas.
void Desglosa(Integer cantidad);

// The chips that a seat gets for an amount: as Desglosa, but one large chip is broken whenever the rest would
// leave the smaller ones out, so that every denomination stays at hand.
Tabla<Integer, 6> FichasDeResto(Integer cantidad);

// The seat holds exactly that amount, in the mix of FichasDeResto. Writes its row of Fichas.
void AsignarResto(int asiento, Integer cantidad);

// So many points more (or less, below 0) for a seat, its stack regrouped. Writes its row of Fichas;
// Desbordamiento beyond 16 bits.
void SumaAlResto(int asiento, int puntos);
