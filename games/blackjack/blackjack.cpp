#include "games/blackjack/blackjack.h"

#include "betting/bet_state.h"
#include "betting/chips.h"
#include "betting/phases.h"
#include "betting/stakes.h"
#include "core/game_state.h"
#include "games/blackjack/blackjack_decision.h"
#include "games/blackjack/blackjack_serie.h"
#include "games/blackjack/blackjack_settlement.h"
#include "games/blackjack/blackjack_turn.h"
#include "games/common/bank_bets.h"
#include "games/common/bank_hands.h"
#include "games/common/hands.h"
#include "games/common/series.h"
#include "table/button_column.h"
#include "table/deal.h"
#include "table/seat_drawing.h"
#include "table/side_buttons.h"

namespace {

constexpr TurnoDeApuesta kTurnoDeApuesta{.decide = DecideBlackJack,
                                         .tip_automatico = 20,
                                         .tip_manual = 21,
                                         .hasta_tip_manual = 0.33F,
                                         .hasta_tip_reglas = 0.66F,
                                         .pausa = 150};

[[nodiscard]] bool EmpiezaMano() {
    if (!IniciarJuego())
        return false;
    HabilitaBoton(kBotonNueva, true);
    HabilitaBoton(kBotonEstadis, false); // there are no cards to tell about yet
    ApuntaBanca();
    return true;
}

[[nodiscard]] bool ApuestanLosAsientos() {
    apuestas.FaseApuesta = kFaseApuestas;
    apuestas.ModoApuesta = true;
    for (const Integer asiento : AsientosAntesDeLaBanca()) {
        if (!TieneResto(asiento))
            continue;
        PonEnJuego(asiento, 1);
        EnciendeTurno();
        ParpadeaApuesta();
        if (!ApuestaLaSerie(kTurnoDeApuesta))
            return false;
        ApagaNombre();
    }
    apuestas.ModoApuesta = false;
    return true;
}

[[nodiscard]] bool ReparteLaMano() {
    apuestas.ApuestaEnCurso = 0;
    apuestas.ApuestaPropuesta = 0;
    if (!Repartir())
        return false;
    for (int asiento = 1; asiento <= 4; ++asiento)
        MostrarPuntos(asiento);
    apuestas.FaseApuesta = kFaseJuego;
    HabilitaBoton(kBotonEstadis, true);
    return true;
}

[[nodiscard]] bool JueganLosAsientos() {
    for (const Integer asiento : AsientosAntesDeLaBanca()) {
        if (estado.NumCartas(asiento, 1) > 0 && !JuegaAsiento(asiento))
            return false;
    }
    JuegaLaBanca();
    return true;
}

[[nodiscard]] bool TerminaLaMano() {
    CierraElJuego();
    if (!CuentaResultados(650, ResultadoDeSerie))
        return false;
    LiquidaBlackJack();
    RegistraSeries(ApunteDeSerie);
    if (!EsperaOtraMano())
        return false;
    HabilitaBoton(kBotonEstadis, false);
    return true;
}

// One hand from the bets to its record; false when the match was left.
[[nodiscard]] bool JuegaMano() {
    return EmpiezaMano() && ApuestanLosAsientos() && ReparteLaMano() && JueganLosAsientos() &&
           TerminaLaMano();
}

bool JuegaContraLaBanca(Integer asiento) {
    return asiento != estado.JugadorBanca && estado.EstadoJugador(asiento) == kActivado;
}

// Of the seats against the bank that have chips the one with the most, the first of several; 0 when none has any.
Integer ElMasRico() {
    Integer rico = 0;
    for (Integer asiento = 1; asiento <= 4; ++asiento) {
        const bool cuenta = JuegaContraLaBanca(asiento) && TieneResto(asiento);
        if (cuenta && (rico == 0 || RestoDe(asiento) > RestoDe(rico)))
            rico = asiento;
    }
    return rico;
}

} // namespace

void ManoBlackJack() {
    JuegaPartida(JuegaMano);
}

bool AcabadaBlackJack() {
    const bool hay_banca = TieneResto(estado.JugadorBanca);
    const Integer rico = ElMasRico();
    if (hay_banca && rico != 0)
        return false;
    estado.GanadorPartida = hay_banca ? estado.JugadorBanca : rico;
    return true;
}

std::vector<Integer> GanadoresBlackJack() {
    std::vector<Integer> ganadores;
    for (Integer asiento = 1; asiento <= 4; ++asiento) {
        if (JuegaContraLaBanca(asiento) && TieneResto(asiento))
            ganadores.push_back(asiento);
    }
    return ganadores.empty() ? std::vector<Integer>{estado.JugadorBanca} : ganadores;
}

std::string TextoFinalBlackJack() {
    return TieneResto(estado.JugadorBanca) ? "Todos los jugadores se han quedado sin fondos"
                                           : "La banca se ha quedado sin fondos";
}

void NuevaBlackJack() {
    estado.CartasEnMazo = 0;
    series = {};
}
