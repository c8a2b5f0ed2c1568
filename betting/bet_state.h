#pragma once
// The state that the games with money share: Póker, Black Jack and Siete y media. Plain data, like the block
// of core/game_state.h, and reached the same way: `apuestas.DesgloseFichas(d)`. Amounts in points; seats 1..4.

#include <string>

#include "core/tabla.h"

// Chips that the undo list of a seat and serie can hold; one more is not placed.
inline constexpr int kMaximoFichasPuestas = 150;

struct EstadoApuestas {
    // Row 0 of Fichas, Apuesta, RestoPrevio and ApuestaPrevia is the pot. Chips held, by denomination 1..6; what is at
    // stake, by serie and row (betting/phases.h); both as they were when the hand began.
    Tabla<Integer, 4, 6> Fichas;
    Tabla<Integer, 6> ValorFicha;
    Tabla<Integer, 4, 4, 5> Apuesta;
    Tabla<Integer, 4> RestoPrevio;
    Tabla<Integer, 4, 5> ApuestaPrevia;

    // The stage of the hand, and whether chips may be clicked.
    Integer FaseApuesta = 0;
    bool ModoApuesta = false;

    // The chips of an amount, by denomination 1..6: what Desglosa leaves.
    Tabla<Integer, 6> DesgloseFichas;

    // The round: the highest Apuesta so far. The turn: what the seat has placed (-1 when it folds on the board),
    // and what an automatic seat or the tutor would add (0 passes, negative folds).
    Integer MaximaApuesta = 0;
    Integer ApuestaEnCurso = 0;
    Integer ApuestaPropuesta = 0;

    // The chips placed, in their order: seat, serie, number of the chip; their denominations.
    Tabla<Integer, 4, 4, kMaximoFichasPuestas> FichasPuestas;
    Tabla<Integer, 4, 4> NumFichasPuestas;

    // The captions of the board's four buttons.
    Tabla<std::string, 4> TextoBoton;

    // The showdown: rank (1 the best, 0 without cards), seats at rank 1, points of the pot.
    Tabla<Integer, 4> PuestoJugador;
    Integer Ganadores = 0;
    Tabla<Integer, 4> PremioJugador;

    friend bool operator==(const EstadoApuestas&, const EstadoApuestas&) = default;
};

extern EstadoApuestas apuestas;
