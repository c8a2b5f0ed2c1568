#pragma once
// What stands on the felt beyond the hands, so that everything can be painted anew at a new size. It is a
// memory of drawing only: no rule reads it.

#include <string>

#include "platform/platform.h"

// Why the name of a seat is lit.
enum class Luz { Ninguna, Turno, Baza };

struct VistaMesa {
    int cartas_mazo = 0;                // cards of the pile on show, 0 no pile
    bool mazo_centrado = false;         // in the middle for the draw, not at the game's place
    bool nombres = false;               // the names of the seats are on show
    int asiento_arrastrado = 0;         // the hand from which CartaMovida was taken
    int menu_x = 0, menu_y = 0;         // the corner of the pop-up
    int puntero_x = 0, puntero_y = 0;   // where on the table the pointer was last seen
    int asiento_encendido = 0;          // the seat whose name is lit, 0 none
    Luz luz = Luz::Ninguna;             // and why
    Tabla<bool, 4> ganador;             // the winner's mark lies on the seat's cards
    std::string tanteo;                 // what the plate of the match says
    Tabla<std::string, 4> tantos;       // what the plate of a seat's count says
    std::string verde;                  // the words of the green button
    Milisegundos verde_desde = 0;       // when they came to stand there
    Tabla<int, 4> abanico;              // places for which a hand that is being dealt is laid out
    Tabla<bool, 4> franja_ocupada;      // a seat's raised cards or caption stand before its zone
    Tabla<std::string, 4> rotulo_dicho; // the caption that a screen reader has told of a seat
    // Chips by seat and denomination that lie at its bet place on show beyond those that it has there, or (below 0) are
    // still on their way to it.
    Tabla<Integer, 4, 6> fichas_de_mas;
    Tabla<ImagenCarta, 4> sorteada; // the draw's last card of each seat, palo 0 for none
};

extern VistaMesa vista;
