#pragma once
// The spine: how the table comes up, how a match begins, goes on and ends.

#include "core/session_state.h"

// Prepares the table for JuegoActivo and runs a saved match, if there is one, to its end. A game without a driver
// gives way to Cinquillo. Reads the game's file; writes the tables of words, the deck, the flags.
void IniciarSesion();

// Starts a match and runs it to its end: clears the records, draws the first player, gives the stakes, calls the
// game's driver. The files are written at its start.
void NuevaPartida();

// Tables of words, partners, orientations, chips, tips; the deck and its images. Once per session.
void IniciarTablas();

// Starts what has been asked for until nothing is left; false once it was the exit. Called where no driver runs.
[[nodiscard]] bool AtiendePeticiones();

// The idle table: waits, serves requests, until the exit is asked for or no event can come any more.
void BucleSesion();
