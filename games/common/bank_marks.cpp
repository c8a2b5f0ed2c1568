#include "games/common/bank_marks.h"

#include "core/game_state.h"
#include "table/bet_board.h"
#include "table/messages.h"
#include "table/sheet_layout.h"
#include "table/sounds.h"

namespace {

constexpr int kVeces = 2;

} // namespace

void ParpadeaApuesta() {
    const Integer asiento = estado.JugadorActual;
    for (int vez = 0; vez < kVeces; ++vez) {
        MarcaApuesta(asiento, lamina::kMarcaTurno);
        Pausa(180);
        RedibujaApuesta(asiento);
        Pausa(380);
    }
}

void DestellaBust(int asiento) {
    const auto suyo = static_cast<Integer>(asiento);
    for (int vez = 0; vez < kVeces; ++vez) {
        MarcaApuesta(suyo, lamina::kMarcaPasado);
        Sonido(1, sonido::kSePasa);
        Pausa(420);
        RedibujaApuesta(suyo);
        Pausa(180);
    }
    MarcaApuesta(suyo, lamina::kMarcaPasado);
}
