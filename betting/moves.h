#pragma once
// One chip on its way from one place of the table to another: what the procedures that move money tell to
// whoever draws it. The money has already changed hands when it is told.

#include <functional>

#include "core/tabla.h"

struct LugarDeFichas {
    Integer asiento = 0;     // 1..4; 0 is the pot
    bool en_apuesta = false; // the chips that the seat has placed, not its stack

    friend bool operator==(const LugarDeFichas&, const LugarDeFichas&) = default;
};

struct FichaMovida {
    int d = 0; // denomination
    LugarDeFichas de, a;
    Integer en_juego = 0; // what the seat that bets has at stake now, in points; 0 when none bets

    friend bool operator==(const FichaMovida&, const FichaMovida&) = default;
};

using AlMoverFicha = std::function<void(const FichaMovida&)>;
