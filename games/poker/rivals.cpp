#include "games/poker/rivals.h"

#include "betting/limits.h"
#include "core/game_state.h"
#include "core/numeric.h"

bool EsRival(Integer asiento) {
    return asiento != estado.JugadorActual && estado.NumCartas(asiento, 1) > 0;
}

Integer ActitudMesa() {
    int suma = 0, rivales = 0;
    for (Integer asiento = 1; asiento <= 4; ++asiento) {
        if (!EsRival(asiento))
            continue;
        suma += estado.CaracterJugador(asiento);
        ++rivales;
    }
    return rivales == 0 ? Integer{0} : Redondea(static_cast<double>(suma) / rivales);
}

bool RivalesSinResto() {
    return RivalesSinResto(estado.JugadorActual);
}
