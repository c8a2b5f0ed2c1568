#pragma once
// The stages of a hand with money: FaseApuesta, which is also the row of Apuesta that what is placed then goes to.

#include <array>

#include "core/tabla.h"

inline constexpr int kNumFases = 5;
inline constexpr Integer kFaseInicio = 1;

// Póker: the ante, the rounds of bets and the discards between them.
inline constexpr Integer kFaseSalida = 2, kFasePrimeraRonda = 3, kFaseDescartes = 4,
                         kFaseSegundaRonda = 5;

// Black Jack and Siete y media: the bets, the doubling, play and the insurance. The end of the hand, when nothing
// more is placed, has the number of the insurance.
inline constexpr Integer kFaseApuestas = 2, kFaseDoblar = 3, kFaseJuego = 4, kFaseSeguro = 5,
                         kFaseFinal = 5;

// The stages in which chips are placed: the rows of a stake.
inline constexpr std::array kFasesConApuesta{kFaseApuestas, kFaseDoblar, kFaseSeguro};
