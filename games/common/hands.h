#pragma once
// What the games that count by hands won share: the start of a hand, the winner's mark, the end of a hand and
// of a match, the tutor's advice. Seats 1..4; in pairs a winner is a team, 1 (seats 1 and 3) or 2 (2 and 4).

#include <string>

#include "core/tabla.h"

// The start of a hand of Tute, Brisca and Cinquillo: rules that waited for it come into force; it counts the game,
// moves JugadorMano on from the second game of the match and off a seat that does not play, clears the hand and
// deals; a manual deal that was broken off is dealt again. Leaves Personalizar, Normas, Salir and Estadísticas
// enabled and ManoEnCurso set. al_descubrir, if given, runs between the deal and ManoEnCurso: it turns the trump
// card. False when the match was left.
[[nodiscard]] bool IniciarJuego(void (*al_descubrir)() = nullptr);

// JugadorActual one seat before JugadorMano: the first step of the turns lands on it.
void PonAntesDelMano();

// Sound 14 and four flashes of the mark on GanadorMano's seat, or on both seats of the team.
void ParpadeaGanador();

// "Ha ganado la mano Ana", or in the second person for seat 4: que is "la mano" or "la partida".
std::string TextoGana(Integer ganador, const std::string& que);

// The end of a hand, told: a pause, the dialog "Final de la mano" and the wait on "Continuar" (a pause of 500
// instead when no seat is manual and no pause between moves is wanted). False when the match was left.
[[nodiscard]] bool CuentaFinalMano(const std::string& texto);

// The hand counts: one more in JuegosGanados(GanadorMano), the game is in the records, the files are written.
void ApuntaMano();

// The end of a match: the winner is told, the history asked for, the table put to rest. Clears PartidaEnCurso.
void FinalPartida();

// A match: hands, each played by mano (false when the match was left), until GanadorMano has LimitePartida of them
// and so is GanadorPartida; then the end of the match. A saved match that somebody has already won only ends.
void JuegaPartida(bool (*mano)());

// The tutor's advice: runs elige for JugadorActual and raises CartaElegida twice without playing it.
void AconsejaCarta(void (*elige)());
