#pragma once
// What the bet board offers to a seat (1..4) in its turn. Only the arithmetic: table/ draws it.

#include "betting/limits.h"

// Its four buttons, from the top.
inline constexpr int kBotonPasar = 1, kBotonIgualar = 2, kBotonApostar = 3, kBotonAnular = 4,
                     kBotonesApostadora = 4;

// The captions of the buttons that the seat is offered now, "" for one that is not shown. Writes TextoBoton;
// reads Apuesta of FaseApuesta and SerieActual, ApuestaEnCurso, MaximaApuesta and Fichas.
void RotulaApostadora(Integer asiento, const ReglasApuesta& reglas);

// What the seat adds to stay in the round: up to MaximaApuesta, or all its chips when those are fewer.
Integer LoQueIguala(Integer asiento);

// The seat has bet less than MaximaApuesta though it has chips left: it may not end its turn so.
bool ApuestaInsuficiente(Integer asiento);
