#pragma once
// The form "Normas": the active game and its rules. Plain procedures over the state; what the player sees and
// clicks is the view's. Rules are written to their fields at once; files only by a change of game.
//
// Controls go by the indices of forms/selector.h (selectors 1 to 5) and forms/spin.h (spins 21 to 24); the lines of
// the list of games go by the games' numbers. A control that is not on show, and an index that is none, do nothing.

#include <string>
#include <string_view>
#include <vector>

#include "core/tabla.h"

namespace normas {

// Opening: remembers the game in force and marks its line.
void Abre();
// Between Abre and Cierra or Deja.
bool Abierta();

// The exit button: every spin is brought into its range.
void Cierra();
// Closed from outside: the same without a sound.
void Deja();

// The heading that stands above the line of a game; empty for most.
const char* Encabezado(Integer juego);
// A game that cannot be played yet is listed and cannot be chosen.
bool SePuedeElegir(Integer juego);
// The game whose line is marked.
Integer JuegoMarcado();

// The selectors and spins of the active game, in their order from the top of the form.
std::vector<int> Controles();
// It is one of them.
bool SeVe(int control);

// A press on a selector: sound 6, the next value, and what that entails.
void PulsaSelector(int control);

// A press, or a further step while it is held, on an arrow of a spin: sound 4. False, in silence, at the limit.
bool PulsaSpin(int indice, bool sube);
// The text typed so far into a spin's box: its number becomes the setting at once. Answers what the box shows from
// now on: the text itself, or the maximum when the number is over it.
std::string EscribeSpin(int indice, std::string_view texto);

// A click on the line of a game. Another game that can be chosen is marked and asked for: if the player accepts,
// the hand in play is void, the match of the old game is written, JuegoActivo changes, the form closes, and no
// match is on until a session reads the new game's file.
void PulsaJuego(Integer juego);

} // namespace normas
