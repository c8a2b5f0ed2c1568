#pragma once
// The limits of the rules that are numbers.

#include "core/tabla.h"

// What a rule in points or games may be, and what it is at first.
struct LimitesRegla {
    Integer minimo, maximo, defecto;
};
inline constexpr LimitesRegla kLimitesRestoInicial{5, 995, 200}, kLimitesApuestaSalida{0, 999, 5},
    kLimitesApuestaMaxima{5, 995, 25}, kLimitesLimitePartida{1, 999, 3};
