#pragma once
// The statistics of a hand of Póker.

class PaginaImpresa;

// The deck and, when the seat on turn holds five cards, what they make and what they may become while there are
// discards to come. Writes what AnalizaJugada and OrdenaJugada write of that seat, and nothing else of the state.
void EstadisPoker(PaginaImpresa& pagina);
