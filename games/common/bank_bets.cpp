#include "games/common/bank_bets.h"

#include "betting/bet_state.h"
#include "betting/chips.h"
#include "betting/placing.h"
#include "core/game_state.h"
#include "core/random.h"
#include "core/text.h"
#include "games/common/bank_hands.h"
#include "table/announcements.h"
#include "table/bet_board.h"
#include "table/button_column.h"
#include "table/messages.h"
#include "table/waiting.h"

namespace {

constexpr int kTipReglas = 15, kTipTutor = 49;
constexpr float kHastaTipAutomatico = 0.2F;

void Sugiere(const TurnoDeApuesta& turno) {
    if (JuegaUnaPersona()) {
        const bool como = estado.AzarTurno < turno.hasta_tip_manual;
        const bool reglas = estado.AzarTurno < turno.hasta_tip_reglas;
        MostrarSugerencia(como ? turno.tip_manual : reglas ? kTipReglas : kTipTutor);
    } else if (estado.AzarTurno < kHastaTipAutomatico) {
        MostrarSugerencia(turno.tip_automatico);
    }
}

void PreparaApuesta(const TurnoDeApuesta& turno) {
    estado.JugadaHecha = false;
    EmpiezaTurnoDeApuesta(estado.JugadorActual);
    estado.AzarTurno = AzarDeTurno();
    turno.decide();
    if (JuegaUnaPersona())
        MuestraApostadora();
    HabilitaBoton(kBotonTutor, JuegaUnaPersona());
    Sugiere(turno);
}

// A seat that nobody plays, or whose player has pressed the green button.
void ApuestaSola(const TurnoDeApuesta& turno) {
    const Integer asiento = estado.JugadorActual;
    if (apuestas.NumFichasPuestas(asiento, estado.SerieActual) > 0)
        AnulaApuestas(asiento);
    if (turno.antes_de_decidir != nullptr)
        turno.antes_de_decidir();
    turno.decide();
    ColocaApuesta(asiento, apuestas.ApuestaPropuesta);
}

void CierraApuesta() {
    HabilitaBoton(kBotonTutor, false);
    Pausa(300);
    OcultaApostadora();
    OcultaSugerencia();
}

} // namespace

bool ApuestaLaSerie(const TurnoDeApuesta& turno) {
    PreparaApuesta(turno);
    const bool espera = JuegaUnaPersona() || estado.PausaEntreJugadas;
    if (espera && !EsperaContinuar())
        return false;
    if (!espera)
        Pausa(turno.pausa);
    // Somebody else's serie may have been on show.
    estado.SerieActual = estado.SerieEnJuego;
    if (!estado.JugadaHecha)
        ApuestaSola(turno);
    DiDe(estado.JugadorActual,
         "apuesta " + Numero(ApuestaTotal(estado.JugadorActual, estado.SerieActual)));
    CierraApuesta();
    return true;
}
