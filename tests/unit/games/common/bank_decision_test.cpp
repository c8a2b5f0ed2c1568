#include "games/common/bank_decision.h"

#include <gtest/gtest.h>

#include "betting/chips.h"
#include "tests/support/bank_table.h"

using namespace prueba;

namespace {

struct DecisionDeBanca : testing::Test {
    void SetUp() override { MesaDeBanca(kBlackJack); }

    static Integer Reserva(Integer caracter) {
        estado.CaracterJugador(4) = caracter;
        return CriterioDelTurno().reserva;
    }
    static int DadoCon(double azar) {
        Azar(azar);
        return CriterioDelTurno().Dado();
    }
};

} // namespace

TEST_F(DecisionDeBanca, LaReservaDependeDelCaracter) {
    EXPECT_EQ(Reserva(kAgresivo), 100);
    EXPECT_EQ(Reserva(kMedio), 160);
    EXPECT_EQ(Reserva(kConservador), 240);
}

TEST_F(DecisionDeBanca, MedioPuntoDeReservaVaAlPar) {
    estado.RestoInicial = 25;
    EXPECT_EQ(Reserva(kAgresivo), 12);
    estado.RestoInicial = 27;
    EXPECT_EQ(Reserva(kAgresivo), 14);
}

TEST_F(DecisionDeBanca, ElTutorTieneNivelCien) {
    estado.NivelJugador(4) = 10;
    EXPECT_EQ(CriterioDelTurno().nivel, 10);
    estado.TutorPulsado = true;
    EXPECT_EQ(CriterioDelTurno().nivel, 100);
}

TEST_F(DecisionDeBanca, ElDadoVaDeUnoATres) {
    EXPECT_EQ(DadoCon(0), 1);
    EXPECT_EQ(DadoCon(0.33), 1);
    EXPECT_EQ(DadoCon(0.34), 2);
    EXPECT_EQ(DadoCon(0.66), 2);
    EXPECT_EQ(DadoCon(0.67), 3);
    EXPECT_EQ(DadoCon(0.999), 3);
    EXPECT_EQ(DadoCon(0.9999999), 3);
}

// Single precision holds 0.35 a trace below itself.
TEST_F(DecisionDeBanca, ElAzarSeTomaEnMillonesimasJustas) {
    Azar(0.35);
    EXPECT_EQ(CriterioDelTurno().azar, 35 * kAzarCentesima);
    Azar(0);
    EXPECT_EQ(CriterioDelTurno().azar, 0);
}

TEST_F(DecisionDeBanca, DesdeTreintaDeMaximaSeApuestaDeCincoEnCinco) {
    estado.ApuestaMaxima = 29;
    EXPECT_EQ(ApuestaAdmisible(8, 200), 8);
    estado.ApuestaMaxima = 30;
    EXPECT_EQ(ApuestaAdmisible(6, 200), 6);
    EXPECT_EQ(ApuestaAdmisible(7, 200), 5);
    EXPECT_EQ(ApuestaAdmisible(14, 200), 10);
}

TEST_F(DecisionDeBanca, ElRestoLimitaDespuesDelRedondeo) {
    estado.ApuestaMaxima = 30;
    EXPECT_EQ(ApuestaAdmisible(20, 13), 13);
    AsignarResto(2, 7);
    EXPECT_EQ(ApuestaAdmisible(20, 13), 7);
}
