#pragma once
// A seat of Póker about to bet. With a limit of 100 and no ante, 50 can go in the first round, 100 in the second.

#include "betting/bet_state.h"
#include "games/poker/poker_state.h"
#include "tests/support/poker_seats.h"

namespace prueba {

inline constexpr Integer kPrimera = 3, kSegunda = 5;
inline constexpr const char *kTresSietes = "7o 7c 7e Kb 2o", *kDosSietes = "7o 7c Ke 9b 2o",
                            *kNada = "Ko Jc 8e 5b 2o", *kEscalera = "5o 6c 7e 8b 9o",
                            *kDoble = "7o 7c 9e 9b Ko";

class EleccionDeApuesta : public AsientosDePoker {
protected:
    static void Juega(const char* mano, Integer caracter, Integer nivel = 50) {
        Da(1, mano);
        estado.CaracterJugador(1) = caracter;
        estado.NivelJugador(1) = nivel;
    }
    static void CreeQueTienen(std::initializer_list<Integer> asientos, Integer jugada) {
        for (const Integer asiento : asientos)
            poker.JugadaCreidaMin(asiento) = poker.JugadaCreidaMax(asiento) = jugada;
    }
    // The seat has bet so much of the round already, and the highest bet stands there.
    static void Responde(Integer fase, Integer puesto, Integer maxima, double azar) {
        Apuesta(1, fase, puesto);
        Ronda(fase, maxima, azar);
    }
};

} // namespace prueba
