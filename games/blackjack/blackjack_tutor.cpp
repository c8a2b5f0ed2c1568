#include "games/blackjack/blackjack_tutor.h"

#include "betting/bet_state.h"
#include "betting/phases.h"
#include "core/game_state.h"
#include "core/text.h"
#include "games/blackjack/blackjack_decision.h"
#include "games/common/bank_tutor.h"
#include "games/common/series.h"

namespace {

void MuestraJugada() {
    if (series.ConsejoSeguro)
        DestellaBoton(BotonDeSerie::Seguro);
    else if (series.ConsejoAbrir)
        AconsejaConRotulo("Abrir el par");
    else if (series.ConsejoDoblar)
        DestellaBoton(BotonDeSerie::Doblar);
    else if (series.ConsejoServido)
        DestellaBoton(BotonDeSerie::Servido);
    else
        DestellaBoton(BotonDeSerie::Carta);
}

} // namespace

void AconsejaBlackJack() {
    EmpiezaConsejo();
    DecideBlackJack();
    if (apuestas.FaseApuesta == kFaseApuestas)
        AconsejaConRotulo("Apostar " + Numero(apuestas.ApuestaPropuesta));
    else
        MuestraJugada();
    AcabaConsejo();
}
