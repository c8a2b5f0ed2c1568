#pragma once
// Where each value stands in the lines of the settings files. The layout stands here and nowhere else: reading
// and writing walk the same lists.

#include "core/fixed_columns.h"
#include "core/game_state.h"
#include "storage/between_hands.h"

namespace ini {
inline constexpr int kAnchoGeneral = 125, kAnchoAjustes = 125, kAnchoFichas = 60,
                     kAnchoApuestas = 28, kAnchoRegistro = 170;

// The lists point into `estado`, or into what they are given, which has to outlive them.
Campos General();
Campos Ajustes(EntreManos& entre_manos);
Campos Dinero(EntreManos& entre_manos);
Campos Apuestas(EntreManos& entre_manos);
Campos Registro(RegistroJuego& registro);
} // namespace ini
