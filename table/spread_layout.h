#pragma once
// The pitch of the manual spread, in pixels: how far apart its small cards lie.

#include "core/game_state.h"

inline constexpr int kPasoColumna = 29, kHuecoReparto = 3;

// From one row to the next. Reads AltoMiniCarta.
inline int PasoFila() {
    return estado.AltoMiniCarta + 2;
}
