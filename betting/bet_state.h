#pragma once
// The state that the games with money share: Póker, Black Jack and Siete y media. Plain data, like the block
// of core/game_state.h, and reached the same way: `apuestas.DesgloseFichas(d)`.

#include "core/tabla.h"

struct EstadoApuestas {
    // The chips of an amount, by denomination 1..6: what Desglosa leaves.
    Tabla<Integer, 6> DesgloseFichas;

    friend bool operator==(const EstadoApuestas&, const EstadoApuestas&) = default;
};

extern EstadoApuestas apuestas;
