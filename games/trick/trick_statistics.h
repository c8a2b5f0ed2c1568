#pragma once
// The statistics of a hand of Tute or Brisca.

class PaginaImpresa;

// The finished tricks with their cards, points and cantes, the deck with what has been played of it, and in Tute what
// has been sung and whether a Tute is still to be had. Reads the state and writes nothing of it.
void EstadisTB(PaginaImpresa& pagina);
