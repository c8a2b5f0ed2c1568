#pragma once
// The stages of a hand of Póker, as FaseApuesta counts them, and the one serie that a seat plays.

#include "core/tabla.h"

inline constexpr Integer kSalida = 2, kPrimeraRonda = 3, kDescartes = 4, kSegundaRonda = 5;
inline constexpr int kSeriePoker = 1;
