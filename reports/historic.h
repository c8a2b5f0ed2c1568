#pragma once
// The form "Historic": the finished matches of the active game as the pages of a folder, and on four tabs what has been
// won, by player and by pair. Plain procedures; what the player sees and clicks is the view's. It only reads.

#include <string>

#include "reports/historic_totals.h"
#include "table/printed_page.h"

inline constexpr int kAyudaHistorico = 2230;

namespace historic {

// Matches, and lines of totals, that a page shows.
inline constexpr int kPartidasPorPagina = 10, kTotalesPorPagina = 20;

// Opening: the file of JuegoActivo is read, the newest matches are on show.
void Abre();
// Between Abre and Cierra or Deja.
bool Abierta();
// The exit button. Closed from outside: the same without a sound.
void Cierra();
void Deja();

// Pic_BotHisTt: from the list of matches to the totals, and back. An empty list has no totals; the button is disabled.
bool HayTotales();
void PulsaTotales();
// The tab on show, 1..4; 0 while the list of matches is.
int Pestana();
// A click on a tab, with the totals on show: its first page. Another number does nothing.
void PulsaPestana(int pestana);
// What a tab is called by itself: "Partidas por jugador". Empty for a number that is none.
std::string NombreDePestana(int pestana);

// A click on Pic_Carpeta: paso pages on (negative: back). The tabs lie one behind the other; at either end there is
// nothing to turn to.
void PasaPagina(int paso);

// Where one is, among the pages of the list or of the tab on show: 1..Paginas().
int PaginaEnVista();
int Paginas();
// "Página 2 de 5".
std::string MarcaDePagina();

// A page of what is on show, from 1; 0 is the page on show. Of a closed form: of its list of matches. IndiceFuera for a
// page that there is not.
PaginaImpresa Pagina(int numero = 0);

} // namespace historic
