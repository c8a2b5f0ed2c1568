#pragma once
// What the score report keeps while it is open. Plain data, reached as `informe.PrimeraLinea`. Opening it sets all.

#include "core/tabla.h"

struct EstadoMarcador {
    Integer BotonActivo = 0;         // the page button under the pointer, 1..4; 0 none
    Integer PrimeraLinea = 0;        // first record of the page on show
    Integer UltimaLinea = 0;         // last record of the match to show
    Integer LineasPagina = 0;        // records a page
    Integer PrimeraUltimaPagina = 0; // first record of the last page

    friend bool operator==(const EstadoMarcador&, const EstadoMarcador&) = default;
};

extern EstadoMarcador informe;
