#include "games/poker/poker_driver.h"

#include <algorithm>

#include "betting/bet_state.h"
#include "betting/chips.h"
#include "betting/phases.h"
#include "betting/placing.h"
#include "betting/stakes.h"
#include "core/game_state.h"
#include "core/text.h"
#include "games/common/hands.h"
#include "games/common/money_hands.h"
#include "games/poker/bet_round.h"
#include "games/poker/discard_pile.h"
#include "games/poker/discard_round.h"
#include "games/poker/poker_state.h"
#include "games/poker/seat_turn.h"
#include "games/poker/showdown.h"
#include "table/announcements.h"
#include "table/bet_board.h"
#include "table/button_column.h"
#include "table/messages.h"
#include "table/seat_drawing.h"

namespace {

// How a step of the hand came out.
enum class Paso { Sigue, Nula, SoloQuedaUno, Abandonada };

[[nodiscard]] bool EmpiezaMano() {
    if (!IniciarJuego())
        return false;
    HabilitaBoton(kBotonNueva, true);
    estado.Juegos(estado.JuegosJugados).Inicio = estado.NombreJugador(estado.JugadorMano);
    return true;
}

[[nodiscard]] Paso RondaEnFase(Integer fase) {
    apuestas.FaseApuesta = fase;
    if (!RondaDeApuestas())
        return Paso::Abandonada;
    if (poker.ManoNula)
        return Paso::Nula;
    CuentaJugadoresEnMano();
    return estado.JugadoresEnMano == 1 ? Paso::SoloQuedaUno : Paso::Sigue;
}

bool AlguienEnElLimite() {
    for (Integer asiento = 1; asiento <= 4; ++asiento) {
        if (ApuestaTotal(asiento, kSeriePoker) == estado.ApuestaMaxima)
            return true;
    }
    return false;
}

void CierraBotones() {
    for (const int boton : {kBotonNueva, kBotonNormas, kBotonSalir, kBotonEstadis})
        HabilitaBoton(boton, false);
}

void DescubreManos() {
    for (Integer asiento = 1; asiento <= 4; ++asiento) {
        for (int lugar = 1; lugar <= estado.NumCartas(asiento, kSeriePoker); ++lugar)
            estado.Mano(asiento, kSeriePoker, lugar, kCara) = kDescubierta;
        RedibujarAsiento(asiento);
    }
}

// A seat with nothing left to bet ends the betting for all.
[[nodiscard]] Paso SegundaRonda() {
    if (AlguienEnElLimite())
        return Paso::Sigue;
    RedibujaLosQueJuegan();
    const Paso paso = RondaEnFase(kFaseSegundaRonda);
    if (paso != Paso::Sigue)
        return paso;
    Pausa(750);
    CierraBotones();
    return Paso::Sigue;
}

[[nodiscard]] Paso DescartesYSegundaRonda() {
    if (!RondaDeDescartes())
        return Paso::Abandonada;
    const Paso paso = SegundaRonda();
    if (paso == Paso::Sigue)
        DescubreManos();
    return paso;
}

// One hand from the deal to its record; false when the match was left.
[[nodiscard]] bool JuegaMano() {
    if (!EmpiezaMano())
        return false;
    Paso paso = RondaEnFase(kFasePrimeraRonda);
    if (paso == Paso::Sigue)
        paso = DescartesYSegundaRonda();
    switch (paso) {
    case Paso::Abandonada:
        return false;
    case Paso::Nula:
        estado.ManoEnCurso = false;
        ApuntaMano();
        return true;
    default:
        return FinalDeMano();
    }
}

Integer LoQuePoneDeSalida(Integer asiento) {
    const Integer libre =
        static_cast<Integer>(estado.ApuestaMaxima - ApuestaTotal(asiento, kSeriePoker));
    return std::max<Integer>(std::min({estado.ApuestaSalida, RestoDe(asiento), libre}), 0);
}

} // namespace

void ManoPoker() {
    JuegaPartida(JuegaMano);
}

void PonApuestaDeSalida() {
    apuestas.FaseApuesta = kFaseSalida;
    RedibujaBote(); // the last hand may have left it
    Integer asiento = estado.JugadorMano;
    for (int turno = 1; turno <= 4; ++turno) {
        EmpiezaTurnoDeApuesta(asiento);
        const Integer antes = ApuestaTotal(asiento, kSeriePoker); // what a void hand has left
        if (const Integer cantidad = LoQuePoneDeSalida(asiento); cantidad > 0)
            ColocaApuesta(asiento, cantidad);
        if (const int puesto = ApuestaTotal(asiento, kSeriePoker) - antes; puesto > 0)
            DiDe(asiento, "pone " + Numero(puesto) + " de salida");
        SiguienteAsiento(asiento);
    }
}

void LimpiaManoDePoker() {
    LimpiaManoConDinero();
    BorraDescartes();
}

bool AcabaPoker() {
    int con_resto = 0;
    for (Integer asiento = 1; asiento <= 4; ++asiento) {
        if (estado.EstadoJugador(asiento) != kActivado || !TieneResto(asiento))
            continue;
        estado.GanadorPartida = asiento;
        ++con_resto;
    }
    return con_resto <= 1;
}

std::string TextoFinalPoker() {
    const Integer ganador = estado.GanadorPartida;
    if (estado.ModalidadJuego != kDosParejas)
        return TextoGana(ganador, "la partida");
    const int primero = ganador > 2 ? ganador - 2 : int{ganador};
    const std::string pareja =
        estado.NombreJugador(primero) + " y " + estado.NombreJugador(primero + 2);
    return primero == 2 ? pareja + ", habéis ganado la partida. "
                        : "Han ganado la partida " + pareja;
}
