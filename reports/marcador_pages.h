#pragma once
// The pages of the score report: the games of the match, ten to a page, as their records tell them.

#include "reports/marcador_state.h"
#include "table/printed_page.h"

// Records a page shows at most.
inline constexpr Integer kLineasPagina = 10;

// The report as it opens: at its last page. Reads JuegosJugados and PartidaEnCurso: the game under way is not shown.
EstadoMarcador HojaInicial();

// Number of pages, at least one, and the number of the one that begins with PrimeraLinea.
int PaginasDe(const EstadoMarcador& hoja);
int PaginaDe(const EstadoMarcador& hoja);

// The page of the active game that begins with PrimeraLinea: heading, records, at the end of the match so far the
// hands won, date and time, page number. Reads Juegos, the seats and JuegosGanados; records beyond the table's end are
// left out.
PaginaImpresa ImprimePagina(const EstadoMarcador& hoja);
