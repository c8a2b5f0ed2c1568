#pragma once
// The spine: how the table comes up, how a match begins, goes on and ends, the main buttons, the exit.

#include "core/session_state.h"
#include "platform/platform.h"

// Prepares the table for JuegoActivo and runs a saved match, if there is one, to its end.
void IniciarSesion();
// Starts a match and runs it to its end.
void NuevaPartida();
// The draw for the first player, shown card by card. False when the match was left.
[[nodiscard]] bool SorteoInicial();
// Tables of words, partners, orientations, chips, tips; the deck and its images.
void IniciarTablas();

// True when no match is on or the player says yes.
[[nodiscard]] bool ConfirmarNueva();
[[nodiscard]] bool ConfirmarSalida();
// The hand in play is thrown away: stakes and bets as they were when it began.
void RestaurarApuestas();
// Writes the files as the exit would; what fails is told once.
void GuardarPartida();
// The exit: saves and asks the session loop to end.
void GuardarYSalir();

// Handles one event: the table's input, the main buttons, the panel, size and end of the window.
void DespachaEvento(const Evento& evento);
// The click on Pic_Boton(indice); on Pic_BotContinuar.
void PulsaBoton(int indice);
void PulsaContinuar();

// Serves the requests that stand until none is left; the answer is false once the exit was asked for.
bool AtiendePeticiones();
// The program after its start: idle table, requests, until the exit.
void BucleSesion();
