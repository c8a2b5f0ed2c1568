#pragma once
// The statistics of a hand of Cinquillo.

class PaginaImpresa;

// What every seat has laid, round by round from the seat that leads the hand, and the deck with what has been played of
// it. Reads the state and writes nothing of it.
void EstadisC(PaginaImpresa& pagina);
