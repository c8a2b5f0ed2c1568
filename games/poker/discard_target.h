#pragma once
// Which category a seat of Póker plays for when it discards. A made hand is kept, but for the bolder characters, who
// break it for a better draw; a low pair made with a joker is given up for the joker alone, on purpose.

#include "core/tabla.h"

// The category for JugadorActual, whose hand has just been analysed. Reads its Jugadas and MejorJugada, its character,
// its level (100 under TutorPulsado) and whether it holds a joker. Writes nothing.
Integer CategoriaParaJugar();
