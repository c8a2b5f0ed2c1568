#include "betting/stakes.h"

#include "betting/bet_state.h"
#include "betting/chips.h"
#include "betting/phases.h"
#include "core/game_state.h"

bool TieneResto(Integer asiento) {
    return RestoDe(asiento) > 0;
}

Integer CuentaConResto() {
    Integer cuantos = 0;
    for (Integer asiento = 1; asiento <= 4; ++asiento)
        cuantos = static_cast<Integer>(cuantos + (TieneResto(asiento) ? 1 : 0));
    return cuantos;
}

void RestauraMano() {
    for (int asiento = 0; asiento <= 4; ++asiento) {
        AsignarResto(asiento, apuestas.RestoPrevio(asiento));
        for (int fase = 1; fase <= kNumFases; ++fase)
            apuestas.Apuesta(asiento, 1, fase) = apuestas.ApuestaPrevia(asiento, fase);
    }
}
