#pragma once
// The column at the right: Pic_Botonera with the eight main buttons and the green Pic_BotContinuar.

// Places the column and its buttons for the window's size; the pictures are painted anew.
void ColocaColumna();
void PintaColumna();
