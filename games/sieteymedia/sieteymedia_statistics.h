#pragma once
// The statistics of a hand of Siete y media.

class PaginaImpresa;

// The series from the bank to the seat on turn, the cards that lie open and who holds them, how many of each value are
// left, and for a manual seat on turn what its next card may bring. Writes CartaJugada (the seat that shows the card),
// VistasValor and VistasTotal, and nothing else of the state.
void EstadisSiete(PaginaImpresa& pagina);
