#pragma once
// Matches by the thousand, shared out over the cores.

#include <stdexcept>

#include "tools/simula/options.h"
#include "tools/simula/totals.h"

// A match that failed, or a worker that did not come back; what() says which match and why.
struct SimulacionFallida : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// Plays the matches 0..partidas-1. The totals depend on the options alone, not on the number of processes.
// SimulacionFallida when one of them fails; std::invalid_argument for options that make no match.
Totales Simula(const OpcionesSimula& opciones);
