#pragma once
// The statistics of a hand of Black Jack.

class PaginaImpresa;

// The series from the bank to the seat on turn and, for a player on turn, the tables of play with the bank's card and
// the seat's own hand marked, and what the rules offer it. Reads the state and writes nothing of it.
void EstadisBj(PaginaImpresa& pagina);
