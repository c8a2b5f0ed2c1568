#include "games/poker/bet_turn.h"

#include <string>

#include "betting/bet_state.h"
#include "betting/phases.h"
#include "betting/placing.h"
#include "betting/stakes.h"
#include "core/game_state.h"
#include "core/random.h"
#include "core/text.h"
#include "games/common/card_turn.h"
#include "games/poker/bet_choice.h"
#include "games/poker/discard_choice.h"
#include "games/poker/discard_pile.h"
#include "games/poker/poker_state.h"
#include "games/poker/poker_tips.h"
#include "games/poker/seat_turn.h"
#include "table/bet_board.h"
#include "table/button_column.h"
#include "table/hand_order.h"
#include "table/messages.h"
#include "table/seat_drawing.h"
#include "table/table_input.h"
#include "table/waiting.h"

namespace {

constexpr int kPausaAutomatico = 900, kPausaFinTurno = 300;

Integer& ApuestaDeRonda(Integer asiento) {
    return apuestas.Apuesta(asiento, kSeriePoker, apuestas.FaseApuesta);
}

void AbreTurno(Integer asiento) {
    const bool manual = EsManual(asiento);
    DejaDeOrdenar();
    EmpiezaTurnoDeApuesta(asiento);
    estado.JugadaHecha = false;
    estado.AzarTurno = AzarDeTurno();
    // What the tutor would say is ready from the start.
    DecideDescarte();
    CalculaApuesta();
    apuestas.ModoApuesta = manual;
    HabilitaBoton(kBotonTutor, manual);
    if (!manual)
        return;
    MuestraApostadora();
    SugiereEnApuesta();
    RefrescaPuntero();
}

bool hay_que_avisar = false;

// The first chips on the table bring their tip, once a turn.
bool ApuestaDecidida() {
    if (hay_que_avisar && apuestas.ApuestaEnCurso > 0) {
        hay_que_avisar = false;
        SugiereFinalizarApuesta();
    }
    return !estado.EsperandoJugada;
}

// False when the match was left.
[[nodiscard]] bool EsperaApuesta(Integer asiento) {
    hay_que_avisar = EsManual(asiento);
    if (hay_que_avisar || estado.PausaEntreJugadas)
        return EsperaContinuar(ApuestaDecidida);
    Pausa(kPausaAutomatico);
    return true;
}

void CierraTurno() {
    apuestas.ModoApuesta = false;
    DejaDeOrdenar();
    HabilitaBoton(kBotonTutor, false);
    RefrescaPuntero();
}

// Who has not ended the turn on the board bets as the program proposes, and what was placed comes back first.
void ColocaLoDecidido(Integer asiento) {
    if (estado.JugadaHecha) {
        poker.ApuestaColocada = apuestas.ApuestaEnCurso;
        return;
    }
    if (apuestas.NumFichasPuestas(asiento, kSeriePoker) > 0)
        AnulaApuestas(asiento);
    CalculaApuesta();
    poker.ApuestaColocada = apuestas.ApuestaPropuesta;
    ColocaApuesta(asiento, poker.ApuestaColocada);
}

// Nothing placed: the seat passes and stays, or folds.
void RetiraDeMano(Integer asiento) {
    if (poker.ApuestaColocada == 0) {
        PonRotulo(asiento, "Me reservo");
        return;
    }
    PonRotulo(asiento, "P a s o");
    TiraLaMano(asiento);
}

bool LasVe() {
    return estado.AzarTurno < 0.25F && apuestas.FaseApuesta == kFaseSegundaRonda &&
           poker.TurnosRonda == estado.JugadoresEnMano;
}

// A seat that fell short of the highest bet with chips left, its limit reached, has nothing to say.
std::string TextoDeApuesta(Integer asiento) {
    const Integer puesto = ApuestaDeRonda(asiento);
    const std::string cantidad = Formato(puesto, "##0");
    if (!TieneResto(asiento))
        return "Voy con mi resto : " + cantidad;
    if (apuestas.MaximaApuesta == 0)
        return (estado.AzarTurno < 0.65F ? "Voy con " : "Apuesto ") + cantidad;
    if (puesto == apuestas.MaximaApuesta)
        return LasVe() ? "Las veo" : "Igualo a " + cantidad;
    return puesto > apuestas.MaximaApuesta ? "Subo a " + cantidad : "";
}

void AnotaSubida(Integer asiento) {
    if (ApuestaDeRonda(asiento) <= apuestas.MaximaApuesta)
        return;
    apuestas.MaximaApuesta = ApuestaDeRonda(asiento);
    poker.UltimoSubidor = asiento;
    poker.TurnosRonda = 1;
}

} // namespace

bool TurnoDeApuesta() {
    const Integer asiento = estado.JugadorActual;
    if (!AnunciaTurno())
        return false;
    AbreTurno(asiento);
    const bool sigue = EsperaApuesta(asiento);
    CierraTurno();
    if (!sigue)
        return false;
    ColocaLoDecidido(asiento);
    if (poker.ApuestaColocada <= 0) {
        RetiraDeMano(asiento);
    } else {
        PonRotulo(asiento, TextoDeApuesta(asiento));
        AnotaSubida(asiento);
    }
    Pausa(kPausaFinTurno);
    ApagaNombre();
    OcultaApostadora();
    return true;
}
