#pragma once
// The column of buttons at the right: the eight main buttons and the green one at its foot. They go by their numbers (kBotonNueva, ...).

#include <optional>

#include "platform/platform.h"

// Places the column and its buttons for the size of the window, and shows them.
void ColocaColumna();
// Paints it anew.
void PintaColumna();

// A main button 1..8: enabled with the pointer ManoIndice, or disabled with the no-drop pointer. A button
// whose form is missing stays disabled.
void HabilitaBoton(int indice, bool habilitado);
// Whether it is enabled.
bool BotonHabilitado(int indice);

// The main buttons are also numbered from the top of the column, as their function keys are: which one the n-th (1..8)
// is, and the key (F2 to F9) of a button.
int BotonDesdeArriba(int n);
int TeclaDelBoton(int indice);

// How far to the right of its place the picture of a main button is drawn, table pixels; to the left below 0.
int CorridoDelBoton(int indice);

// Pic_BotContinuar with its caption, kind 1 up or 2 pressed, and hidden. They write EsperandoJugada.
void PedirContinuar(int kind);
void OcultarContinuar();

// Whether a click or a key that began at that moment (nothing: now) is meant for the green button as it stands. One that
// began under other words is not, where the button would play for the person: it was to go on.
bool ValeElClicVerde(std::optional<Milisegundos> desde);
