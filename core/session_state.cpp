#include "core/session_state.h"

#include "core/game_state.h"

Sesion sesion;

bool PartidaSigue() {
    return estado.PartidaEnCurso && sesion.peticion == Peticion::Ninguna && !sesion.sin_eventos;
}
