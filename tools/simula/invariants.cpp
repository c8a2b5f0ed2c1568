#include "tools/simula/invariants.h"

#include <algorithm>

#include "core/game_state.h"
#include "core/invariant.h"
#include "games/common/hands.h"
#include "table/game_row.h"

namespace {

const RevisionDeJuego& RevisionDelJuego() {
    const RevisionDeJuego& revision = JuegoEnMesa().revision;
    Exige(revision.mano != nullptr && revision.partida != nullptr, "nadie revisa el juego {}",
          estado.JuegoActivo);
    return revision;
}

} // namespace

void RevisaPaso() {
    if (const auto paso = RevisionDelJuego().paso; paso != nullptr)
        paso();
}

void RevisaFinalDeMano() {
    RevisionDelJuego().mano();
}

void RevisaFinalDePartida(int manos) {
    Exige(!estado.PartidaEnCurso, "la partida acaba");
    Exige(estado.JuegosJugados == std::min(manos, kJuegosGuardados + 1),
          "acabaron {} manos y se apuntaron {}", manos, estado.JuegosJugados);
    Exige(estado.GanadorPartida >= 1 && estado.GanadorPartida <= 4, "la partida tiene ganador");
    RevisionDelJuego().partida(manos);
}
