#pragma once
// The lines and columns of a game's statistics, and the table of the deck that several of them show. Places are points
// of the page; columns are counted in letters from 0.

#include <string>

#include "core/game_state.h"
#include "table/card_names.h"
#include "table/printed_page.h"

inline constexpr Letra kLetraDeTitulo{.negrita = true};
inline constexpr int kRenglon = 16; // from one line to the next

// Where a column begins.
int Columna(int letras);

// The rank of a card of the French deck, 1..13, as it is printed on it: "A", "2" to "10", "J", "Q", "K".
std::string RangoFrances(Integer valor);

// What stands for a card in the table of the deck.
struct CeldaDeBaraja {
    std::string texto;
    Tinta tinta = Tinta::Negro;
    bool marcada = false; // its letters are heavy, so that the colour is not all that tells it
};

// Where a suit 1..4 has its column in the table of the deck, and where the table ends.
int ColumnaDePalo(Integer palo);
int FinDeTablaDeBaraja();

// The table of the deck with its head at y: a column for each suit under its name, a row for each rank of the deck
// behind the rank's name. Answers the y below it. Reads ValorEnBaraja and NombreValor.
int ImprimeTablaDeBaraja(PaginaImpresa& pagina, int y, CeldaDeBaraja (*celda)(Carta carta));
