#include "games/trick/card_rules.h"

#include "core/game_state.h"
#include "games/common/trick_state.h"

namespace {

constexpr int kFuerzaPaloSalida = 10, kFuerzaTriunfo = 20;

// Unlike PotenciaCarta, a trump of the suit led gets both additions; the order of the cards is the same.
int FuerzaEnBaza(Integer palo, Integer valor) {
    return estado.OrdenCarta(valor) + (palo == bazas.PaloSalida ? kFuerzaPaloSalida : 0) +
           (palo == estado.PaloTriunfo ? kFuerzaTriunfo : 0);
}

} // namespace

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
    int mejor = -1;
    bazas.TantosBaza = 0;
    for (Integer asiento = 1; asiento <= 4; ++asiento) {
        const Integer palo = bazas.CartaEnMesa(asiento, 1);
        const Integer valor = bazas.CartaEnMesa(asiento, 2);
        if (palo == kSinCarta)
            continue;
        bazas.TantosBaza += estado.ValorCarta(valor);
        const int fuerza = FuerzaEnBaza(palo, valor);
        if (fuerza > mejor) {
            mejor = fuerza;
            estado.GanadorBaza = asiento;
        }
    }
}
