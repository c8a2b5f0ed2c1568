#pragma once
// The form "estadis": the figures of the hand in progress, as the game on the table prints them. Plain procedures; what
// the player sees and clicks is the view's.

#include "table/printed_page.h"

inline constexpr int kAyudaEstadis = 2240;

namespace estadis {

void Abre();
// Between Abre and Cierra or Deja.
bool Abierta();
// The exit button. Closed from outside: the same without a sound.
void Cierra();
void Deja();

// The only page, 1 or 0: that of JuegoActivo, as its row prints it; an empty one for a game without figures, or for none.
// It is as high as what is printed needs. Writes no more than the game's own printing says. IndiceFuera for another
// number.
PaginaImpresa Pagina(int numero = 0);

} // namespace estadis
