#include "games/trick/card_rules.h"

#include "core/game_state.h"
#include "games/common/hand_queries.h"
#include "games/common/trick_state.h"

bool SigueObligado() {
    return bazas.Arrastre && estado.JugadorActual != estado.JugadorSalida;
}

Seguimiento GrupoDe(Integer palo, Integer valor) {
    const Integer salida = bazas.CartaEnMesa(estado.JugadorSalida, 2);
    if (palo == bazas.PaloSalida) {
        return estado.OrdenCarta(valor) > estado.OrdenCarta(salida) ? Seguimiento::PorEncima
                                                                    : Seguimiento::DelPalo;
    }
    return palo == estado.PaloTriunfo ? Seguimiento::Triunfo : Seguimiento::Libre;
}

bool CartaLegalTute(int lugar) {
    if (!SigueObligado())
        return true;
    for (int puesto = 1; puesto <= bazas.NumJugables; ++puesto) {
        if (bazas.CartasJugables(puesto, 2) == lugar)
            return true;
    }
    return false;
}

void ResuelveBaza() {
    Integer mejor = -1;
    bazas.TantosBaza = 0;
    for (Integer asiento = 1; asiento <= 4; ++asiento) {
        const Integer palo = bazas.CartaEnMesa(asiento, 1);
        const Integer valor = bazas.CartaEnMesa(asiento, 2);
        if (palo == kSinCarta)
            continue;
        bazas.TantosBaza += estado.ValorCarta(valor);
        const Integer potencia = PotenciaCarta(palo, valor);
        if (potencia > mejor) {
            mejor = potencia;
            estado.GanadorBaza = asiento;
        }
    }
}
