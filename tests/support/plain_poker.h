#pragma once
// Póker read straight from its rules, step by step and sum by sum, to hold against the reading that goes by tables.

#include "core/tabla.h"

namespace prueba {

// As AnalizaJugada.
void AnalizaLlano(Integer asiento);
// As ValorJugada.
Long ValorLlano(Integer categoria, Integer asiento);

} // namespace prueba
