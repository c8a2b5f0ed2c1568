#pragma once
// What the games that count by hands won share: the start of a hand, the winner's mark, the end of a match.

#include <string>

#include "core/tabla.h"

// The start of a hand of Tute, Brisca and Cinquillo: counts the game, moves JugadorMano from the second game
// on, clears the hand, deals (again, when a manual deal was broken off), sets ManoEnCurso. descubre, if any,
// runs after the deal and before ManoEnCurso: the turned card. False when the match was left.
[[nodiscard]] bool IniciarJuego(bool (*descubre)() = nullptr);

// The trick games' turn: the active seat or seats that hold nothing are skipped by the callers.

// Sound 14 and the mark of the winner, four times. In pairs GanadorMano is a team: both its seats.
void ParpadeaGanador();

// The text of a hand's or a match's winner, as it is told at the end of both.
std::string TextoGanaMano();

// The end of a hand, told with the dialog and the wait on "Continuar". False when the match was left.
[[nodiscard]] bool CuentaFinalMano(const std::string& texto);

// Adds the hand to JuegosGanados and the record to what is kept. True when LimitePartida is reached: then
// GanadorPartida is set.
[[nodiscard]] bool ApuntaMano();

// The end of a match: who has won it, the question of the history, the table at rest.
void FinalPartida();

// True when a seat that takes a saved match up has already won it: GanadorPartida is set.
[[nodiscard]] bool PartidaYaGanada();

// Steps JugadorActual to one seat before JugadorMano, so that the first step lands on it.
void PonAntesDelMano();
