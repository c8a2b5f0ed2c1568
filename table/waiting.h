#pragma once
// Event passes and the wait of the drivers.

#include "platform/platform.h"

// Who handles an event.
using Despacho = void (*)(const Evento&);
// Set once, by whoever starts the program.
void RegistraDespacho(Despacho despacho);

// Asks for the exit when the window was closed while it was disabled and it is enabled by now.
void AtiendeCierrePendiente();

// One pass of the pending events: delivers and handles what has come. With a request under way the events
// are taken and dropped, except a new size of the table and the end of the desktop session; the closing of the
// window is kept for later.
void PaseDeEventos(Pase pase);

// The wait used everywhere in the drivers: PedirContinuar(1), then passes until EsperandoJugada is cleared. With
// PausaEntreJugadas off the button goes away again, however the wait ended.
// False when the match was left meanwhile: the caller returns at once.
[[nodiscard]] bool EsperaContinuar();
// The same, until hecha answers true; it is asked after each pass.
[[nodiscard]] bool EsperaContinuar(bool (*hecha)());

// Passes until lista answers true; false when the match was left meanwhile.
[[nodiscard]] bool EsperaHasta(bool (*lista)());
