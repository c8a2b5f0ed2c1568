#include "betting/stakes.h"

#include "betting/chips.h"
#include "core/game_state.h"

void RestauraMano() {
    constexpr int kFases = 5;
    for (int asiento = 0; asiento <= 4; ++asiento) {
        AsignarResto(asiento, estado.RestoPrevio(asiento));
        for (int fase = 1; fase <= kFases; ++fase) {
            estado.Apuesta(asiento, 1, fase) = estado.ApuestaPrevia(asiento, fase);
        }
    }
}
