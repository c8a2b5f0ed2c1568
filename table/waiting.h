#pragma once
// Event passes and the wait of the drivers.

#include "platform/platform.h"

// Who handles an event: set once by the match driver.
using Despacho = void (*)(const Evento&);
void RegistraDespacho(Despacho despacho);

// One pass of the pending events: delivers and handles what has come. With a request under way the events
// are taken and dropped, except a new size of the table.
void PaseDeEventos(Pase pase);

// The wait used everywhere in the drivers: PedirContinuar(1), then passes until EsperandoJugada is cleared.
// False when the match was left meanwhile: the caller returns at once.
[[nodiscard]] bool EsperaContinuar();

// Passes until lista answers true; false when the match was left meanwhile.
[[nodiscard]] bool EsperaHasta(bool (*lista)());
