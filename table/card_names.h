#pragma once
// What cards are called in words, in the deck on the table.

#include <string>

#include "core/game_state.h"

// "Oros", "Copas", "Espadas", "Bastos", or "Diamantes", "Corazones", "Picas", "Tréboles"; "" for a palo that is no
// suit. Reads TipoBaraja.
const char* NombreDePalo(Integer palo);
// "Sota de Espadas", "As de Picas", "Comodín". The rank by NombreValor, 0..14.
std::string NombreDeCarta(Carta carta);
