#include "games/poker/opening_law.h"

#include "betting/bet_state.h"
#include "betting/phases.h"
#include "core/game_state.h"
#include "games/poker/hand_reading.h"
#include "games/poker/poker_state.h"
#include "table/messages.h"

namespace {

constexpr Integer kSinLey = 14;

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

bool LeyPermiteFicha() {
    if (LeyAperturaCumplida())
        return true;
    Mensaje("Ley de apertura",
            "Para  abrir  la  ronda  de  apuestas es necesario tener una pareja de " +
                estado.NombreValorPlural(estado.LeyApertura + 1) +
                " como mínimo (Ley de apertura).",
            2, 1);
    return false;
}
