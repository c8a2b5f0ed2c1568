#pragma once
// The list of series that the statistics of Black Jack and Siete y media begin with: every seat from the bank to the one
// on turn, with what its series have at stake, count and hold. Places are points of the page.

#include <string>

#include "core/tabla.h"

class PaginaImpresa;

// How a serie (1..4) of a seat (1..4) counts, with the flags that PuntosSerie leaves; the state keeps those it had.
struct CuentaDeSerie {
    float puntos = 0;
    bool blanda = false;
};
CuentaDeSerie CuentaSinHuella(Integer asiento, Integer serie);

// A column is counted in letters from the list's left edge; apuesta, seguro and puntos are those in which the text ends.
struct ListaDeSeries {
    const char* cabecera = "";
    int x = 0;
    float tope = 0; // points above it are red
    int serie = 0, apuesta = 0, puntos = 0, cartas = 0;
    int seguro = 0; // 0: the game has no insurance
    Integer (*apostado)(Integer asiento, Integer serie) = nullptr;
    Integer (*asegurado)(Integer asiento, Integer serie) = nullptr;
    std::string (*texto_puntos)(Integer asiento, Integer serie) = nullptr;
    std::string (*texto_carta)(Integer asiento, Integer serie, int lugar) = nullptr;
};

// Prints the list from the top of the page and answers the y below it. Of a seat whose first serie counts nothing there
// is no line. The bank has no stake.
int ImprimeSeries(PaginaImpresa& pagina, const ListaDeSeries& lista);
