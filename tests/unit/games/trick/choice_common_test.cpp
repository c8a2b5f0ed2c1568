#include "games/common/trick_state.h"
#include "games/trick/choice_common.h"

#include <gtest/gtest.h>

#include "tests/support/trick_hands.h"

using namespace prueba;

namespace {

struct EleccionComun : testing::Test {
    void SetUp() override {
        MesaDeBazas(kTute, 4);
        Pinta({kBastos, 4});
    }
};

Integer Ruido(float azar, Integer k, Integer nivel) {
    estado.AzarTurno = azar;
    return TrasElRuido(k, nivel);
}

} // namespace

TEST_F(EleccionComun, DesdeElNivelNoventaNoHayRuido) {
    EXPECT_EQ(Ruido(0.999F, 5, 90), 5);
    EXPECT_EQ(Ruido(0.999F, 5, 89), 5);
    EXPECT_EQ(Ruido(0.5F, 5, 40), 3);
    EXPECT_EQ(Ruido(0.999F, 3, 100), 3);
}

TEST_F(EleccionComun, ANivelCeroSiempreHayRuidoYElPrimerPuestoQueda) {
    EXPECT_EQ(Ruido(0.5F, 5, 0), 3);
    EXPECT_EQ(Ruido(0.0F, 5, 0), 1);
    EXPECT_EQ(Ruido(0.999F, 5, 0), 5);
    EXPECT_EQ(Ruido(0.999F, 1, 0), 1);
    EXPECT_EQ(Ruido(0.0F, 1, 0), 1);
}

TEST_F(EleccionComun, ElRuidoEmpiezaPorEncimaDelNivel) {
    EXPECT_EQ(Ruido(0.25F, 4, 26), 4); // 26 of 100
    EXPECT_EQ(Ruido(0.25F, 4, 25), 2);
}

TEST_F(EleccionComun, LosIgualesConservanElOrdenDeLaMano) {
    VaciaJugables();
    AnotaJugable(7, 1);
    AnotaJugable(5, 2);
    AnotaJugable(7, 3);
    AnotaJugable(5, 4);
    EXPECT_EQ(bazas.CartasJugables(1, 2), 2);
    EXPECT_EQ(bazas.CartasJugables(2, 2), 4);
    EXPECT_EQ(bazas.CartasJugables(3, 2), 1);
    EXPECT_EQ(bazas.CartasJugables(4, 2), 3);
}

TEST_F(EleccionComun, LosNegativosVanDelanteYPorSuNumero) {
    VaciaJugables();
    AnotaJugable(3, 1);
    AnotaJugable(-20, 2);
    AnotaJugable(-3, 3);
    EXPECT_EQ(bazas.CartasJugables(1, 2), 2);
    EXPECT_EQ(bazas.CartasJugables(2, 2), 3);
    EXPECT_EQ(bazas.CartasJugables(3, 2), 1);
}

TEST_F(EleccionComun, LosTantosDeLaParejaNoSonDeLosRivales) {
    EnMesa(1, {kOros, kAs});
    EnMesa(2, {kOros, kTres});
    EnMesa(3, {kBastos, kSota});
    TocaA(4);
    EXPECT_EQ(MiraTurno().puntos_rivales, Currency{23});
    EXPECT_EQ(MiraTurno().puntos_pareja, Currency{0});
    estado.ModalidadJuego = kDosParejas;
    EXPECT_EQ(MiraTurno().puntos_rivales, Currency{13});
    EXPECT_EQ(MiraTurno().puntos_pareja, Currency{10});
}

TEST_F(EleccionComun, LaMejorCartaDeLaMesaYDeQuienEs) {
    TocaA(1);
    EXPECT_EQ(MiraTurno().mejor_mesa, 0);
    EXPECT_EQ(MiraTurno().asiento_mejor, 0);
    EnMesa(1, {kOros, kAs});
    EnMesa(2, {kBastos, 2});
    TocaA(3);
    EXPECT_EQ(MiraTurno().mejor_mesa, 21);
    EXPECT_EQ(MiraTurno().asiento_mejor, 2);
    EXPECT_FALSE(MiraTurno().ultimo);
}

TEST_F(EleccionComun, MayorEsLaUltimaPorValorEntreLasMasAltas) {
    const Naipes fuera = NaipesSinJugar();
    EXPECT_EQ(fuera.UltimoPorEncima(kOros, 1), 8); // the Rey, valor 12
    EXPECT_EQ(fuera.UltimoPorEncima(kOros, 8), 9); // the Tres; the As comes before it by valor
    EXPECT_EQ(fuera.UltimoPorEncima(kOros, 10), 0);
    YaJugadas({{kOros, kTres}});
    EXPECT_EQ(NaipesSinJugar().UltimoPorEncima(kOros, 8), 10);
}

TEST_F(EleccionComun, SoloCuentanLasCartasDeLaBaraja) {
    MesaDeBazas(kTute, 3);
    EXPECT_FALSE(NaipesSinJugar().Tiene({kOros, 2}));
    EXPECT_FALSE(NaipesSinJugar().Tiene({kOros, 8}));
    EXPECT_TRUE(NaipesSinJugar().Tiene({kOros, 4}));
}

TEST_F(EleccionComun, LaCartaQueSeCambiaDependeDeLaQuePinta) {
    EXPECT_TRUE(PuedeCambiarse({kBastos, 2}));
    EXPECT_FALSE(PuedeCambiarse({kBastos, 7}));
    EXPECT_FALSE(PuedeCambiarse({kOros, 2}));
    Pinta({kBastos, kRey});
    EXPECT_TRUE(PuedeCambiarse({kBastos, 7}));
    EXPECT_FALSE(PuedeCambiarse({kBastos, 2}));
}
