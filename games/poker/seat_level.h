#pragma once
// The level at which a seat decides.

#include "core/game_state.h"

inline constexpr Integer kNivelTutor = 100;

// NivelJugador of the seat (1..4), or 100 while TutorPulsado asks in its name: the tutor always advises at full
// level, and the seat's own level stays as it is.
inline Integer NivelQueDecide(Integer asiento) {
    return estado.TutorPulsado ? kNivelTutor : estado.NivelJugador(asiento);
}
