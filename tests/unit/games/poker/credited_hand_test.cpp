// What the table believes of a seat by the number of cards that it threw away.

#include "games/poker/credited_hand.h"

#include <gtest/gtest.h>

#include "games/poker/poker_state.h"
#include "tests/support/poker_seats.h"

using namespace prueba;

namespace {

class JugadaCreida : public AsientosDePoker {
protected:
    static void Espera(Integer descartadas, Integer minima, Integer maxima) {
        poker.JugadaCreidaMin(3) = poker.JugadaCreidaMax(3) = -1;
        AnotaJugadaCreida(3, descartadas);
        EXPECT_EQ(poker.JugadaCreidaMin(3), minima) << descartadas;
        EXPECT_EQ(poker.JugadaCreidaMax(3), maxima) << descartadas;
    }
};

} // namespace

TEST_F(JugadaCreida, CuantoMenosTiraMasSeLeCree) {
    Espera(0, poker.Figuras, poker.Figuras);
    Espera(1, poker.ProyEscalera, poker.Escalera);
    Espera(2, poker.Trio, poker.Poker);
    Espera(3, poker.Pareja, poker.Trio);
    Espera(4, poker.CartaMayor, poker.Pareja);
    Espera(5, 0, 0);
}

TEST_F(JugadaCreida, EnBarajaCortaElTrioEsMasQueLasFiguras) {
    Baraja(40);
    Espera(0, 10, 10);
    Espera(2, 11, 15);
}

TEST_F(JugadaCreida, NadieTiraSeisCartas) {
    EXPECT_THROW(AnotaJugadaCreida(3, 6), IndiceFuera);
    EXPECT_THROW(AnotaJugadaCreida(3, -1), IndiceFuera);
}
