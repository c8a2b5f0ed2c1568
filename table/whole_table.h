#pragma once
// The table as a whole: its places at a size, everything cleared, everything painted anew.

// Layout from the window's size, the pile's place, the button column with its pointers: Normas, Tutor de juego and
// Estadísticas disabled.
void CalcularMesa();
// A new size of the window: places only, then everything is painted anew.
void CambiaTamano();
// The images of the active deck made ready to be drawn in four orientations.
void PrepararImagenes();

// Pic_BotContinuar, the board, the side buttons, the pop-up and the panel hidden.
void OcultaControlesMesa();
// The felt bare, and nothing left of what stood on it.
void LimpiarMesa();

// Everything on the felt painted anew from the state.
void RedibujarMesa();

// While there is no match: the emblem, faint, the game's name, and where to begin.
void PintaMesaVacia();
