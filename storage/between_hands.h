#pragma once
// The match as it stands between two hands: what of it is kept, whatever the hand in play has done since.

#include "core/tabla.h"

struct EntreManos {
    Integer juegos = 0; // games finished
    Integer mano = 0;   // JugadorMano of the last one of them; in the first game, of that one
    Integer banca = 0;  // JugadorBanca of the next one
    Tabla<Integer, 4, 6> fichas; // as Fichas, row 0 the pot
    Tabla<Integer, 4> apuesta;   // of each seat, row 2 of its first serie
};

// From the state as it stands, with every game counted as finished.
EntreManos ComoEsta();

// What is to be saved. A game whose result is not in the records yet does not count: number and leader step
// back, so that the next hand start reaches the same hand, and the money is as it was when the hand began.
// A row with more chips of a kind than two columns hold comes in fewer and larger ones.
EntreManos LoQueSeGuarda();

// Writes it into the state: JuegosJugados, JugadorMano, JugadorBanca, Fichas and Apuesta.
void Repon(const EntreManos& entre_manos);

// A hand begins with the money as it is: writes RestoPrevio and ApuestaPrevia from Fichas and Apuesta.
void AnotaDineroPrevio();
