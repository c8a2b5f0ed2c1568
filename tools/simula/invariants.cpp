#include "tools/simula/invariants.h"

#include <algorithm>

#include "games/common/hands.h"
#include "session/state_blocks.h"
#include "tools/simula/bank_invariants.h"
#include "tools/simula/blackjack_invariants.h"
#include "tools/simula/cinquillo_invariants.h"
#include "tools/simula/poker_invariants.h"
#include "tools/simula/sieteymedia_invariants.h"
#include "tools/simula/trick_invariants.h"

namespace {

struct Revision {
    Integer juego;
    void (*mano)();
    void (*partida)(int manos);
    void (*paso)() = nullptr; // nothing to look at meanwhile
};

constexpr Revision kRevisiones[] = {
    {kPoker, RevisaManoPoker, RevisaPartidaPoker, RevisaPasoPoker},
    {kBlackJack, RevisaManoBlackJack, RevisaPartidaBlackJack, RevisaPasoBlackJack},
    {kTute, RevisaManoBazas, RevisaPartidaBazas},
    {kBrisca, RevisaManoBazas, RevisaPartidaBazas},
    {kSieteYMedia, RevisaManoSiete, RevisaPartidaSiete, RevisaDineroDeBanca},
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
