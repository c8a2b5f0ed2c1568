// The law of opening: LeyApertura 10 asks for a pair of Jotas.

#include "games/poker/opening_law.h"

#include <gtest/gtest.h>

#include "betting/bet_state.h"
#include "games/poker/poker_state.h"
#include "tests/support/poker_seats.h"

using namespace prueba;

namespace {

constexpr Integer kSinLey = 14, kLeyDeJotas = 10;
constexpr Integer kPrimera = 3, kSegunda = 5;

class LeyDeApertura : public AsientosDePoker {
protected:
    static bool Abre(const char* mano, Integer ley = kLeyDeJotas, Integer fase = kPrimera,
                     Integer maxima = 0) {
        Da(1, mano);
        estado.LeyApertura = ley;
        Ronda(fase, maxima, 0.5);
        return LeyAperturaCumplida();
    }
};

} // namespace

TEST_F(LeyDeApertura, SinLeyAbreCualquiera) {
    EXPECT_TRUE(Abre("Ko Jc 8e 5b 2o", kSinLey));
}

TEST_F(LeyDeApertura, SinLeyNoSeMiraLaMano) {
    poker.MejorJugada(1) = 0;
    EXPECT_TRUE(Abre("7o 7c 8e 5b 2o", kSinLey));
    EXPECT_EQ(poker.MejorJugada(1), 0);
}

TEST_F(LeyDeApertura, SinParejaNoSeAbre) {
    EXPECT_FALSE(Abre("Ao Kc 8e 5b 2o"));
}

TEST_F(LeyDeApertura, LaLeyPideUnaParejaDelValorSiguiente) {
    EXPECT_FALSE(Abre("10o 10c 8e 5b 2o"));
    EXPECT_TRUE(Abre("Jo Jc 8e 5b 2o"));
    EXPECT_TRUE(Abre("Qo Qc 8e 5b 2o"));
}

TEST_F(LeyDeApertura, UnaParejaDeAsesAbreSiempre) {
    EXPECT_TRUE(Abre("Ao Ac 8e 5b 2o"));
    EXPECT_TRUE(Abre("Ao Ac 8e 5b 2o", 13)) << "not even a pair of Reyes would do";
    EXPECT_FALSE(Abre("Ko Kc 8e 5b 2o", 13));
}

TEST_F(LeyDeApertura, LaLeyMasSuaveAceptaDoses) {
    EXPECT_TRUE(Abre("2o 2c 8e 5b Ko", 1));
    EXPECT_FALSE(Abre("2o 2c 8e 5b Ko", 2));
}

TEST_F(LeyDeApertura, DosParejasBajasYaAbren) {
    EXPECT_TRUE(Abre("3o 3c 2e 2b Ko"));
    EXPECT_TRUE(Abre("2o 2c 2e 7b Ko"));
}

TEST_F(LeyDeApertura, UnComodinHaceParejaConLaCartaMasAlta) {
    Baraja(52, 1);
    EXPECT_TRUE(Abre("# Jc 8e 5b 2o"));
    EXPECT_FALSE(Abre("# 10c 8e 5b 2o"));
}

TEST_F(LeyDeApertura, UnProyectoNoAbre) {
    EXPECT_FALSE(Abre("Ko 9o 7o 3o 2c"));
}

TEST_F(LeyDeApertura, CuandoAlguienHaApostadoYaNoRige) {
    EXPECT_TRUE(Abre("Ao Kc 8e 5b 2o", kLeyDeJotas, kPrimera, 1));
}

TEST_F(LeyDeApertura, SoloRigeEnLaPrimeraRonda) {
    EXPECT_TRUE(Abre("Ao Kc 8e 5b 2o", kLeyDeJotas, kSegunda));
    EXPECT_TRUE(Abre("Ao Kc 8e 5b 2o", kLeyDeJotas, 2));
}
