// Chips placed and taken back.

#include "betting/bet_state.h"
#include "betting/placing.h"

#include <gmock/gmock.h>

#include "tests/support/money.h"

namespace {

using namespace prueba;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

struct ColocarTest : MesaConFichas {
    static void Coloca(int asiento, int cantidad, const ReglasApuesta& reglas) {
        const auto quien = static_cast<Integer>(asiento);
        for (const int d : FichasParaApostar(quien, static_cast<Integer>(cantidad)))
            AnotaFicha(quien, d, reglas);
    }
};

TEST_F(ColocarTest, UnaFichaDePokerVaAlBoteYElMontonSeReagrupa) {
    apuestas.FaseApuesta = kFasePrimeraRonda;
    apuestas.Apuesta(3, 1, kFaseSalida) = 2;
    Tiene(3, 98);
    const FichaMovida movida = AnotaFicha(3, 2, kComoPoker);
    EXPECT_EQ(movida, (FichaMovida{2, {3}, {kBote}, 4})); // the label counts the ante and this chip
    EXPECT_EQ(apuestas.Apuesta(3, 1, kFasePrimeraRonda), 2);
    EXPECT_EQ(apuestas.ApuestaEnCurso, 2);
    EXPECT_THAT(FichasDe(3), ElementsAre(2, 2, 2, 1, 1, 1)); // 96 points
    EXPECT_THAT(FichasDe(kBote), ElementsAre(0, 1, 0, 0, 0, 0));
    EXPECT_THAT(Puestas(3), ElementsAre(2));
}

TEST_F(ColocarTest, ConBancaLaFichaQuedaDelanteDelAsiento) {
    Tiene(2, 20);
    estado.SerieActual = 3;
    const FichaMovida movida = AnotaFicha(2, 4, kComoSieteYMedia);
    EXPECT_EQ(movida, (FichaMovida{4, {2}, {2, true}, 10}));
    EXPECT_EQ(apuestas.Apuesta(2, 3, kFaseApuestas), 10);
    EXPECT_EQ(apuestas.Apuesta(2, 1, kFaseApuestas), 0);
    EXPECT_THAT(Puestas(2, 3), ElementsAre(4));
    EXPECT_EQ(RestoDe(kBote), 0);
}

// The stack of 50 is 20, 10, 10, 5, 2, 2, 1 and has no chip of 50.
TEST_F(ColocarTest, ElValorCuentaAunqueNoHayaUnaFichaDeEsaClase) {
    Tiene(1, 50);
    AnotaFicha(1, 6, kComoSieteYMedia);
    EXPECT_THAT(FichasDe(1), Each(0));
}

TEST_F(ColocarTest, UnaCantidadSeColocaConLasFichasMayoresPrimero) {
    Tiene(1, 200);
    EXPECT_THAT(FichasParaApostar(1, 139), ElementsAre(6, 6, 5, 4, 3, 2, 2));
}

TEST_F(ColocarTest, Colocar0NoColocaNada) {
    Tiene(1, 200);
    EXPECT_THAT(FichasParaApostar(1, 0), IsEmpty());
    EXPECT_THAT(FichasParaApostar(1, -5), IsEmpty());
}

TEST_F(ColocarTest, QuienTieneMenosQueLaApuestaDeSalidaPoneTodoYVaConSuResto) {
    Tiene(4, 3);
    Coloca(4, 5, kComoPoker);
    EXPECT_EQ(apuestas.Apuesta(4, 1, kFaseSalida), 3);
    EXPECT_EQ(RestoDe(4), 0);
    EXPECT_EQ(RestoDe(kBote), 3);
}

TEST_F(ColocarTest, AnularDevuelveCadaFichaDeLaUltimaALaPrimera) {
    Tiene(2, 100);
    Coloca(2, 35, kComoBlackJack);
    AnulaApuestas(2, kComoBlackJack, Anota());
    EXPECT_THAT(DenominacionesMovidas(), ElementsAre(3, 4, 5));
    EXPECT_EQ(movidas[0], (FichaMovida{3, {2, true}, {2}, 30}));
    EXPECT_EQ(movidas[2].en_juego, 0);
    EXPECT_EQ(apuestas.ApuestaEnCurso, 0);
    EXPECT_EQ(ApuestaTotal(2, 1), 0);
    EXPECT_EQ(RestoDe(2), 100);
    EXPECT_THAT(FichasDe(2), ElementsAre(1, 2, 1, 2, 1, 1));
    EXPECT_THAT(Puestas(2), IsEmpty());
    EXPECT_EQ(apuestas.FichasPuestas(2, 1, 1), 0);
}

TEST_F(ColocarTest, EnPokerLoAnuladoSaleDelBote) {
    Tiene(kBote, 20);
    Tiene(1, 60);
    apuestas.FaseApuesta = kFasePrimeraRonda;
    Coloca(1, 12, kComoPoker);
    EXPECT_EQ(RestoDe(kBote), 32);
    AnulaApuestas(1, kComoPoker, Anota());
    EXPECT_EQ(movidas[0], (FichaMovida{2, {kBote}, {1}, 10}));
    EXPECT_EQ(RestoDe(kBote), 20);
    EXPECT_EQ(RestoDe(1), 60);
}

TEST_F(ColocarTest, AnularNoTocaLoQueSeApostoEnOtroTurno) {
    Tiene(1, 60);
    apuestas.FaseApuesta = kFaseSalida;
    Coloca(1, 5, kComoPoker);
    apuestas.FaseApuesta = kFasePrimeraRonda;
    EmpiezaTurnoDeApuesta(1);
    Coloca(1, 10, kComoPoker);
    EmpiezaTurnoDeApuesta(1); // raised by another: a second turn in the round
    Coloca(1, 7, kComoPoker);
    AnulaApuestas(1, kComoPoker, Anota());
    EXPECT_EQ(apuestas.Apuesta(1, 1, kFaseSalida), 5);
    EXPECT_EQ(apuestas.Apuesta(1, 1, kFasePrimeraRonda), 10);
    EXPECT_EQ(RestoDe(1), 45);
    EXPECT_EQ(RestoDe(kBote), 15);
}

TEST_F(ColocarTest, ElTurnoEmpiezaSinNadaPuestoNiPropuesto) {
    Tiene(1, 60);
    Coloca(1, 15, kComoPoker);
    apuestas.ApuestaPropuesta = 9;
    EmpiezaTurnoDeApuesta(1);
    EXPECT_EQ(apuestas.ApuestaEnCurso, 0);
    EXPECT_EQ(apuestas.ApuestaPropuesta, 0);
    EXPECT_THAT(Puestas(1), IsEmpty());
    EXPECT_EQ(apuestas.FichasPuestas(1, 1, 2), 0);
    EXPECT_EQ(ApuestaTotal(1, 1), 15);
}

TEST_F(ColocarTest, ConBancaElTurnoDeUnaSerieNoTocaLasFichasDeOtra) {
    Tiene(1, 60);
    Coloca(1, 15, kComoSieteYMedia);
    estado.SerieActual = 2;
    EmpiezaTurnoDeApuesta(1);
    EXPECT_THAT(Puestas(1, 1), ElementsAre(4, 3));
}

TEST_F(ColocarTest, MasFichasDeLasQueCabenSonUnErrorYNoMuevenNada) {
    Tiene(1, 500);
    apuestas.NumFichasPuestas(1, 1) = kMaximoFichasPuestas;
    EXPECT_THROW(AnotaFicha(1, 1, kComoPoker), IndiceFuera);
    EXPECT_EQ(RestoDe(1), 500);
    EXPECT_EQ(ApuestaTotal(1, 1), 0);
}

} // namespace
