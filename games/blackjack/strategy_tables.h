#pragma once
// The three tables of play, as they are printed for the player: one letter for each card of the bank.

#include <span>
#include <string_view>

#include "core/tabla.h"

struct FilaEstrategia {
    std::string_view rotulo;
    std::string_view letras; // the bank's card: an As, 2 to 9, and 10 for the figures too
};

struct TablaEstrategia {
    std::string_view titulo;
    std::string_view leyenda;
    std::string_view columna; // over the row labels
    int primera = 0;          // what the first row stands for; the next ones one more each
    std::span<const FilaEstrategia> filas;

    // The letter of a row, by its number, against a card of the bank (1..13); 0 where the table has none.
    char Letra(int fila, Integer banca) const;
};

// By the points of a hand, 4 to 21: C card, P stand, D double.
extern const TablaEstrategia kTablaManoDura;
// By the points of a hand with an As that counts eleven, 13 to 20: C card, P stand.
extern const TablaEstrategia kTablaManoBlanda;
// By what a card of the pair counts, 1 to 10: S open, N keep.
extern const TablaEstrategia kTablaAbrirElPar;
