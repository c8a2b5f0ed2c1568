#pragma once
// What is to be played: the game, how often, by whom.

#include <array>
#include <cstdint>
#include <vector>

#include "core/tabla.h"

struct OpcionesSimula {
    int juego = 0; // the number of a game
    std::int64_t partidas = 1000;
    std::uint64_t semilla = 1;
    int asientos = 4;         // active seats, where the game leaves a choice: 2 to 4
    bool parejas = false;     // two pairs, where the game has them
    int limite = 3;           // games or points that end a match
    std::vector<int> niveles; // of seats 1..4; empty for the default ones
    std::vector<int> caracteres;
    int sentido = 1;
    bool azar = false;     // levels, characters, names and direction of each match from its seed
    bool personas = false; // who plays by hand, from the seed of each match; nobody otherwise
    // They press whatever there is, by chance, before they take what the wait proposes.
    bool caprichos = false;
    // In the games with money: RestoInicial and ApuestaMaxima; 0 for the default ones, or by chance with azar.
    int resto = 0, maxima = 0;
    // In the games that have them: CartasBaraja, ComodinesJuego, LeyApertura and ApuestaSalida; 0 for the default ones, or
    // by chance with azar (of the ante, by which every match ends: the default one).
    int baraja = 0, comodines = 0, ley = 0, salida = 0;
    int procesos = 0; // 0: as many as the machine has cores
    bool firma = false;
    bool revisa = true; // what must hold, at the end of each hand and of each match
};
