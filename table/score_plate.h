#pragma once
// The plate of trump and match: what the trump of the hand is, and how the match stands. The points of the hand in play
// are not on it: to remember them is part of the game.

#include <string>
#include <vector>

#include "table/game_row.h"
#include "table/layout.h"

// What the plate says.
struct Tanteo {
    struct Renglon {
        std::string quien;     // "Ana"; who holds the bank as "Ana (banca)"
        std::string con_quien; // the other one of a pair, empty for a seat alone
        std::string cuanto;    // "2 de 5"; in the games with money the points in chips
    };
    std::string mano; // "Mano 3"
    Triunfo triunfo;  // palo 0 for none
    std::vector<Renglon> renglones;
};

// Of the match on the table, in the order of the seats or teams. Reads the records and the chips.
Tanteo ElTanteo();
// The same as a sentence.
std::string TextoDelTanteo();

// Where the plate of so many lines below its head stands: in the upper left corner of the table, unless a zone, chips, bet
// board, tips or the pile ever reach there, and else above the tips.
Rectangulo LugarDelTanteo(int lineas, bool con_triunfo);

// Painted anew, and shown from the first hand of a match on; hidden before. Draws only.
void PintaTanteo();
// The same where what it says has changed.
void RefrescaTanteo();
