#include "games/common/bank_hands.h"

#include "core/game_state.h"
#include "platform/platform.h"
#include "table/bet_board.h"
#include "table/layout.h"
#include "table/messages.h"
#include "table/sheet_layout.h"
#include "table/sounds.h"

namespace {

constexpr int kVeces = 2;

// A mark on the first stack of the seat's bet place.
void PonMarca(int asiento, const lamina::Recorte& marca) {
    if (!plataforma().HayPantalla())
        return;
    const int area = kAreaApuestas + asiento - 1;
    plataforma()
        .LienzoDe(Control::Mesa, 0)
        .Lamina(estado.PosFichaX(area, 1), estado.PosFichaY(area, 1), marca);
    plataforma().Repinta();
}

} // namespace

void ParpadeaApuesta() {
    const Integer asiento = estado.JugadorActual;
    for (int vez = 0; vez < kVeces; ++vez) {
        PonMarca(asiento, lamina::kMarcaTurno);
        Pausa(180);
        RedibujaApuesta(asiento);
        Pausa(380);
    }
}

void DestellaBust(int asiento) {
    for (int vez = 0; vez < kVeces; ++vez) {
        PonMarca(asiento, lamina::kMarcaPasado);
        Sonido(1, sonido::kSePasa);
        Pausa(420);
        RedibujaApuesta(static_cast<Integer>(asiento));
        Pausa(180);
    }
    PonMarca(asiento, lamina::kMarcaPasado);
}
