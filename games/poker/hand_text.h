#pragma once
// What a read hand is called. The category is one that the last AnalizaJugada found.

#include <string>

#include "core/tabla.h"

// "Full de Reyes y Doses", "Escalera a la Dama".
std::string TextoJugada(Integer asiento, Integer categoria);
