#pragma once
// What paces the game and talks to the player without being a card: the modal box, the tips, the help calls,
// the sounds and the pause.

#include <string>
#include <string_view>

#include "platform/canvas.h"

// The modal box; returns after a button. lineas: lines of text that the box makes room for. modo: 1 one
// button, 2 Si and No, 3 help and exit. Writes LineasMensaje, ModoMensaje, RespuestaMensaje (true after
// "Si"; false on opening), AyudaPulsada (true after the help button). Any other modo counts as 1.
void Mensaje(const std::string& titulo, const std::string& texto, int lineas, int modo);

// Mode 2 whose buttons read "Aceptar" and "Cancelar". True after "Aceptar".
[[nodiscard]] bool PreguntaAceptar(const std::string& titulo, const std::string& texto, int lineas);

// Lines that a text takes: its line ends plus the breaks of lines over 58 characters.
int LineasDe(std::string_view texto);

// Shows tip 0..50 in Pic_Sugerencia if VentanaInfo is 1: writes TemaActual, TipActual. Throws IndiceFuera
// for another number.
void MostrarSugerencia(int tip);

// The click on Bot_CerrarSuge: first to tip 0, from tip 0 to no panel and VentanaInfo 2.
void CierraSugerencia();

// Repaints the panel from TipActual where it stands, or hides it. Draws only.
void PintaSugerencia();

// Hides the panel.
void OcultaSugerencia();

// Where the panel stands when it shows.
Rectangulo LugarDeLaSugerencia();

// Loads the 51 tips into Sugerencias, text and topic split.
void CargaSugerencias();

// Waits unidades milliseconds at speed 50, scaled by VelocidadJuego, counted from MarcaPausa when that is
// not 0 (it is cleared). The window stays painted; input waits for the next event pass.
void Pausa(int unidades);

// The factor of Pausa at a speed 0..100: 7.9998 at 0, 1 at 50, 0 at 100.
double FactorPausa(int velocidad);

// The next Pausa counts from now: called at the start of a step's drawing.
void MarcaPausaAhora();

// Plays sound id if SonidoActivo; modo 0 waits for its end, 1 does not.
void Sonido(int modo, int id);
