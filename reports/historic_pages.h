#pragma once
// The pages of the history, as the active game heads them.

#include "reports/historic_totals.h"
#include "table/printed_page.h"

// Matches primera..ultima of the list, two lines each: winners and what they made, losers and what they made.
PaginaImpresa ImprimePartidas(const Historico& historico, int primera, int ultima);

// Lines primera..ultima of a tab 1..4.
PaginaImpresa ListaTotales(int pestana, const std::vector<Total>& totales, int primera, int ultima);
