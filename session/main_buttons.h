#pragma once
// The main buttons, the green button, the keys and the window's own wishes.

#include "platform/platform.h"

// Handles one event: the table's input, the main buttons, the panel, size and end of the window. A click on what
// is disabled does nothing.
void DespachaEvento(const Evento& evento);

// The click on Pic_Boton(indice), 1..8, on Pic_BotContinuar.
void PulsaBoton(int indice);
void PulsaContinuar();

// What stands before and after Personal and Normas, whoever opens them. Afterwards a changed game asks for a new
// session, changed seats for a new match, and anything else is saved.
void AntesDeLaForma();
void TrasLaForma();

// True when no match is on or the player says yes.
[[nodiscard]] bool ConfirmarNueva();
[[nodiscard]] bool ConfirmarSalida();

// The exit: the hand in play is void, the files are written, the session loop is asked to end. A failed write is
// told, and the program then ends with status 1.
void GuardarYSalir();
