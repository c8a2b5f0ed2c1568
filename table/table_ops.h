#pragma once
// The operations that draw game state on `mesa`. Each is a plain call; those that move a card return after
// the flight. They read the state and write nothing of it but what is said. Pixels of the table.

#include <string>
#include <string_view>

#include "platform/platform.h"

// Layout from the window's size, the pile's place, the button column with its pointers: Normas, Tutor de juego and
// Estadísticas disabled.
void CalcularMesa();
// A new size of the window: places only, then everything is painted anew.
void CambiaTamano();
// The images of the active deck made ready to be drawn in four orientations.
void PrepararImagenes();

// The pile of n cards at (x, y), on its cleared box; what the game keeps under the pile is drawn first.
void DibujarMazo(int x, int y, int n);
void DibujarCarta(Control control, int x, int y, int orientacion, int palo, int valor, int cara,
                  int realce);
// A flight from one place to another, each with its orientation and face (the end decides the picture).
void MoverCarta(int palo, int valor, int desdeX, int desdeY, int desdeOrientacion, int desdeCara,
                int hastaX, int hastaY, int hastaOrientacion, int hastaCara, int tapada);
void RedibujarAsiento(int asiento);
void ResaltarAsiento();
void MostrarRotulo(int asiento);
void MostrarNombres();
void DibujarCaja(int x, int y, int ancho, int alto);
void PedirContinuar(int kind); // 1 up, 2 pressed; writes EsperandoJugada
void OcultarContinuar();       // writes EsperandoJugada
void CambiarCursor(Control control, int indice, Puntero puntero);

// A control hidden, all Pic_Tantos hidden, the felt bare.
void Oculta(Control control, int indice = 0);
void OcultaTantos();
// Pic_BotContinuar, the board, the side buttons, the pop-up and the panel hidden.
void OcultaControlesMesa();
void LimpiarMesa();

// Everything on the felt painted anew from the state.
void RedibujarMesa();

// The winner's mark of a seat, shown or taken away.
void MarcaGanador(int asiento, bool visible);

// A main button 1..8: enabled with the pointer ManoIndice, or disabled with the no-drop pointer. A button
// whose form is missing stays disabled.
void HabilitaBoton(int indice, bool habilitado);
bool BotonHabilitado(int indice);
