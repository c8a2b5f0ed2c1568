#include "games/sieteymedia/sieteymedia.h"

#include "core/game_state.h"
#include "core/session_state.h"
#include "games/common/bank_hands.h"
#include "games/common/hands.h"
#include "games/sieteymedia/sieteymedia_end.h"
#include "games/sieteymedia/sieteymedia_turn.h"
#include "table/button_column.h"
#include "table/waiting.h"

namespace {

// What comes in between turns, where nobody is waited for.
[[nodiscard]] bool AtiendeAlPaso() {
    PaseDeEventos(Pase::DePaso);
    return PartidaSigue();
}

[[nodiscard]] bool JueganLosAsientos() {
    for (const Integer asiento : AsientosAntesDeLaBanca()) {
        if (estado.NumCartas(asiento, 1) == 0)
            continue;
        if (!AtiendeAlPaso())
            return false;
        PonEnJuego(asiento, 1);
        if (!TurnoDeAsiento())
            return false;
    }
    return AtiendeAlPaso();
}

// One hand from the deal to its record; false when the match was left.
[[nodiscard]] bool JuegaMano() {
    if (!IniciarJuego())
        return false;
    HabilitaBoton(kBotonNueva, true);
    ApuntaBanca();
    return JueganLosAsientos() && TurnoDeLaBanca() && CierreDeMano();
}

} // namespace

void ManoSieteYMedia() {
    JuegaPartida(JuegaMano);
}
