#include "games/poker/opening_law.h"

#include "betting/bet_state.h"
#include "betting/phases.h"
#include "core/game_state.h"
#include "games/poker/hand_reading.h"
#include "games/poker/poker_state.h"

namespace {

constexpr Integer kSinLey = 14;
constexpr Integer kAs = 1;

bool ParejaBaja(Integer asiento) {
    const Integer valor = poker.Jugadas(asiento, poker.Pareja).Cartas(1);
    return poker.MejorJugada(asiento) == poker.Pareja && valor > kAs &&
           valor < estado.LeyApertura + 1;
}

} // namespace

bool LeyAperturaCumplida() {
    if (estado.LeyApertura == kSinLey)
        return true;
    const Integer asiento = estado.JugadorActual;
    AnalizaJugada(asiento);
    if (poker.MejorJugada(asiento) >= poker.Pareja && !ParejaBaja(asiento))
        return true;
    return apuestas.FaseApuesta != kFasePrimeraRonda || apuestas.MaximaApuesta > 0;
}
