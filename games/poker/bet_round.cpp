#include "games/poker/bet_round.h"

#include "betting/bet_state.h"
#include "betting/chips.h"
#include "betting/stakes.h"
#include "core/game_state.h"
#include "games/common/hands.h"
#include "games/poker/bet_turn.h"
#include "games/poker/poker_state.h"
#include "games/poker/rivals.h"
#include "games/poker/seat_turn.h"
#include "table/bet_board.h"
#include "table/messages.h"

namespace {

void EmpiezaRonda() {
    poker.UltimoSubidor = 0;
    apuestas.MaximaApuesta = 0;
    poker.TurnosRonda = 0;
    poker.ManoNula = false;
    PonAntesDelMano();
    CuentaJugadoresEnMano();
}

// Everybody who holds cards has bet all that the limit of the hand, or the chips, allow.
bool NadiePuedeApostar() {
    for (Integer asiento = 1; asiento <= 4; ++asiento) {
        if (TieneCartas(asiento) && TieneResto(asiento) &&
            ApuestaTotal(asiento, kSeriePoker) < estado.ApuestaMaxima) {
            return false;
        }
    }
    return true;
}

// On arriving at JugadorActual. As long as nobody has raised, the chips of UltimoSubidor are those of the pot (seat 0),
// which is meant: where nobody could answer a bet there is no round.
bool RondaCerrada() {
    if (estado.JugadorActual == poker.UltimoSubidor)
        return true;
    if (poker.UltimoSubidor == 0 && poker.TurnosRonda > estado.JugadoresEnMano)
        return true;
    return RivalesSinResto() && RestoDe(poker.UltimoSubidor) != 0;
}

// False when the match was left.
[[nodiscard]] bool DaTurnos() {
    while (true) {
        PasaAlSiguienteConCartas();
        ++poker.TurnosRonda;
        if (RondaCerrada())
            return true;
        if (TieneResto(estado.JugadorActual) && !TurnoDeApuesta())
            return false;
    }
}

void AnulaSiNadieApuesta() {
    if (apuestas.MaximaApuesta != 0 || RivalesSinResto())
        return;
    Pausa(750);
    const std::string texto =
        "Como ningún jugador ha apostado sobre su juego, se va a comenzar otra mano con un nuevo "
        "reparto de cartas.";
    Mensaje("Fin de la mano", texto, LineasDe(texto), 1);
    Pausa(200);
    poker.ManoNula = true;
}

} // namespace

bool RondaDeApuestas() {
    EmpiezaRonda();
    // A round in which nobody may bet any more is no round that nobody wanted to bet in: the hand goes on. Were it void,
    // with the pot that has brought the seats to their limit, no later hand would end either.
    if (NadiePuedeApostar())
        return true;
    if (!DaTurnos())
        return false;
    OcultaApostadora();
    AnulaSiNadieApuesta();
    return true;
}
