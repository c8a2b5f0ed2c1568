#pragma once
// What a seat of Póker weighs before it bets: how strong it is, what it believes of the others, what it costs to stay.
//
// The others are read by what they show: how many cards they threw away, and how much they bet for their character.
// Their real hands are read as well, on purpose, and only seats of a high level make use of it.

#include "core/tabla.h"

// How a hand stands for the round in play. Ninguna out of the two rounds of bets.
enum class Fuerza { Ninguna, Floja, Media, Grande };

struct LecturaApuesta {
    Integer asiento = 0, fase = 0, caracter = 0, nivel = 0;
    double azar = 0; // AzarTurno

    int tope = 0;    // points: TopeApuesta
    int puesto = 0;  // points bet in this round
    int llamada = 0; // points that it costs to stay
    int actitud = 0; // ActitudMesa

    Fuerza fuerza = Fuerza::Ninguna;
    // Second round only: seats that really have better, and the best of their categories; 0 for nobody.
    int por_encima = 0;
    Integer mejor_rival = 0;
    // Second round only: seats that are believed to have better, and the last of them.
    int amenazas = 0;
    Integer ultima_amenaza = 0;
};

// Reads the turn of JugadorActual. Analyses its hand and, in the second round, those of its rivals: writes their
// Jugadas and MejorJugada, and TopeApuesta (left alone out of the two rounds).
LecturaApuesta LeeApuesta();
