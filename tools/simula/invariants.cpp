#include "tools/simula/invariants.h"

#include <algorithm>

#include "games/common/hands.h"
#include "session/state_blocks.h"
#include "tools/simula/cinquillo_invariants.h"
#include "tools/simula/trick_invariants.h"

namespace {

struct Revision {
    Integer juego;
    void (*mano)();
    void (*partida)(int manos);
};

constexpr Revision kRevisiones[] = {
    {kTute, RevisaManoBazas, RevisaPartidaBazas},
    {kBrisca, RevisaManoBazas, RevisaPartidaBazas},
    {kCinquillo, RevisaManoCinquillo, RevisaPartidaCinquillo},
};

const Revision& RevisionDelJuego() {
    const auto* fin = std::end(kRevisiones);
    const auto* esta = std::find_if(std::begin(kRevisiones), fin, [](const Revision& r) {
        return r.juego == estado.JuegoActivo;
    });
    Exige(esta != fin, "nadie revisa el juego {}", estado.JuegoActivo);
    return *esta;
}

} // namespace

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
