#pragma once
// What the games share: the start of a hand, the winner's mark, the end of a hand and
// of a match, the tutor's advice. Seats 1..4; in pairs a winner is a team, 1 (seats 1 and 3) or 2 (2 and 4).

#include <string>

#include "core/tabla.h"

// Finished games of a match whose records are kept, as many as its file can count: the start of a further one lets
// the oldest go, so that JuegosJugados, which counts the one under way, is 1000 at most.
inline constexpr int kJuegosGuardados = 999;

// The start of a hand: rules that waited for it come into force; it counts the game, moves JugadorMano on, clears the
// hand and deals; a manual deal that was broken off is dealt again. What differs from game to game is in the row (mano).
// Leaves Personalizar, Normas, Salir and Estadísticas enabled and ManoEnCurso set. False when the match was left.
[[nodiscard]] bool IniciarJuego();

// Both lines of the green button: an automatic seat plays, a manual one lets the program play.
void RotuloDeJuega(std::string& primera, std::string& segunda);

// JugadorActual one seat before JugadorMano: the first step of the turns lands on it.
void PonAntesDelMano();

// Sound 14 and four flashes of the mark on GanadorMano's seat, or on both seats of the team.
void ParpadeaGanador();

// "Ha ganado la mano Ana", or in the second person for seat 4: que is "la mano" or "la partida".
std::string TextoGana(Integer ganador, const std::string& que);

// The end of a hand, told: a pause, the dialog "Final de la mano" and the wait. False when the match was left.
[[nodiscard]] bool CuentaFinalMano(const std::string& texto);

// The wait on "Continuar" between two hands; a pause of 500 instead when no seat is manual and no pause between moves is
// wanted. False when the match was left.
[[nodiscard]] bool EsperaOtraMano();

// The hand counts: its record is in Juegos, the files are written. GanaMano adds one to JuegosGanados(GanadorMano).
void ApuntaMano();
void GanaMano();

// The end of a match: the winner is told, the history asked for, the table put to rest. Clears PartidaEnCurso.
void FinalPartida();

// A match: hands, each played by mano (false when the match was left), until the game says that the match is over
// (partida.acabada in its row; by default GanadorMano has LimitePartida of them and so is GanadorPartida); then the
// end of the match. A saved match that somebody has already won only ends.
void JuegaPartida(bool (*mano)());

// The tutor's advice: runs elige for JugadorActual and raises CartaElegida twice without playing it.
void AconsejaCarta(void (*elige)());
