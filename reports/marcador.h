#pragma once
// The form "Marcador": the report of the match as a sheet of paper. Plain procedures; what the player sees and clicks
// is the view's. It reads the records of the match and changes none of them.

#include "reports/marcador_state.h"
#include "table/printed_page.h"

inline constexpr int kAyudaMarcador = 2220;

// The page buttons, by their numbers from the left.
inline constexpr int kAlPrincipio = 1, kRetrocede = 2, kAvanza = 3, kAlFinal = 4;

// From the pointer's place in Pic_BotAdeAtr, in its own pixels: writes BotonActivo, 0 between the buttons.
void CualBoton(int x, int y);

namespace marcador {

// Opening, at the last page. Writes `informe`.
void Abre();
// Between Abre and Cierra or Deja.
bool Abierta();
// The exit button. Closed from outside: the same without a sound.
void Cierra();
void Deja();

// A click on Pic_BotAdeAtr: the page of BotonActivo is shown. At either end there is nothing to turn to.
void PulsaPagina();
// What is said while the pointer is over a page button (1..4); empty for a number that is none.
const char* Sugerencia(int boton);

// Pic_BotHistorico: the history is opened, and the report goes on when it is closed.
void PulsaHistorico();

// A page, from 1; 0 is the page on show, or the one at which a closed report would open. IndiceFuera for a page that
// there is not.
PaginaImpresa Pagina(int numero = 0);
int NumeroDePaginas();

} // namespace marcador
