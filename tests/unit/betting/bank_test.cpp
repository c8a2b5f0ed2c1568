// Payments of the bank, and chips that leave a seat's bet.

#include "betting/bank.h"
#include "betting/bet_state.h"

#include <gmock/gmock.h>

#include "betting/placing.h"
#include "tests/support/money.h"

namespace {

using namespace prueba;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr Integer kBanca = 2;

struct BancaTest : MesaConFichas {
    void SetUp() override {
        MesaConFichas::SetUp();
        estado.JugadorBanca = kBanca;
        Tiene(kBanca, 200);
        Tiene(1, 100);
    }
    static void Apuesta(Integer fase, int cantidad) {
        apuestas.FaseApuesta = fase;
        for (const int d : FichasParaApostar(1, static_cast<Integer>(cantidad)))
            AnotaFicha(1, d, kComoBlackJack);
    }
    static std::vector<int> Filas() {
        return {apuestas.Apuesta(1, 1, kFaseApuestas), apuestas.Apuesta(1, 1, kFaseDoblar),
                apuestas.Apuesta(1, 1, kFaseSeguro)};
    }
    std::vector<int> Rotulos() const {
        std::vector<int> rotulos;
        for (const FichaMovida& ficha : movidas)
            rotulos.push_back(ficha.en_juego);
        return rotulos;
    }
};

TEST_F(BancaTest, PagaFichaAFichaDeLaMayorALaMenor) {
    std::vector<int> en_fichas;
    PagaDeBanca(1, 37, [&](const FichaMovida& ficha) {
        movidas.push_back(ficha);
        en_fichas.push_back(EnFichas());
    });
    EXPECT_THAT(DenominacionesMovidas(), ElementsAre(5, 4, 3, 2));
    EXPECT_EQ(movidas[0], (FichaMovida{5, {kBanca}, {1}, 0}));
    EXPECT_THAT(en_fichas, testing::Each(300));
    EXPECT_EQ(RestoDe(1), 137);
    EXPECT_EQ(RestoDe(kBanca), 163);
}

TEST_F(BancaTest, NuncaPagaMasDeLoQueTiene) {
    Tiene(kBanca, 12);
    PagaDeBanca(1, 50, Anota());
    EXPECT_EQ(RestoDe(kBanca), 0);
    EXPECT_EQ(RestoDe(1), 112);
    PagaDeBanca(1, 50, Anota());
    EXPECT_EQ(RestoDe(1), 112);
}

TEST_F(BancaTest, NoPagaUnaCantidadQueNoEsNinguna) {
    PagaDeBanca(1, 0, Anota());
    PagaDeBanca(1, -20, Anota());
    EXPECT_THAT(movidas, IsEmpty());
    EXPECT_EQ(RestoDe(kBanca), 200);
}

TEST_F(BancaTest, TodoLoApostadoVaALaBanca) {
    Apuesta(kFaseApuestas, 25);
    Apuesta(kFaseSeguro, 12);
    DevuelveApuesta(1, kBanca, Devolucion::Todo, Anota());
    EXPECT_THAT(DenominacionesMovidas(), ElementsAre(2, 4, 3, 5));
    EXPECT_EQ(movidas[0], (FichaMovida{2, {1, true}, {kBanca}, 35}));
    EXPECT_THAT(Rotulos(), ElementsAre(35, 25, 20, 0));
    EXPECT_THAT(Filas(), ElementsAre(0, 0, 0));
    EXPECT_THAT(Puestas(1), IsEmpty());
    EXPECT_EQ(RestoDe(kBanca), 237);
    EXPECT_EQ(RestoDe(1), 63);
}

TEST_F(BancaTest, ElSeguroSeVaYLaApuestaSeQueda) {
    Apuesta(kFaseApuestas, 25);
    Apuesta(kFaseSeguro, 12);
    DevuelveApuesta(1, 1, Devolucion::Seguro, Anota());
    EXPECT_THAT(DenominacionesMovidas(), ElementsAre(2, 4));
    EXPECT_THAT(Rotulos(), ElementsAre(35, 25));
    EXPECT_THAT(Filas(), ElementsAre(25, 0, 0));
    EXPECT_THAT(Puestas(1), ElementsAre(5, 3));
    EXPECT_EQ(RestoDe(1), 75);
}

TEST_F(BancaTest, LaApuestaYElDobleSeVanYElSeguroSeQueda) {
    Apuesta(kFaseApuestas, 20);
    Apuesta(kFaseSeguro, 12);
    DevuelveApuesta(1, kBanca, Devolucion::SinSeguro, Anota());
    EXPECT_THAT(DenominacionesMovidas(), ElementsAre(5));
    EXPECT_THAT(Rotulos(), ElementsAre(12));
    EXPECT_THAT(Filas(), ElementsAre(0, 0, 12));
    EXPECT_THAT(Puestas(1), ElementsAre(4, 2));
    EXPECT_EQ(apuestas.FichasPuestas(1, 1, 3), 0);
    // What stayed is the insurance, and can still be settled.
    DevuelveApuesta(1, 1, Devolucion::Seguro, Anota());
    EXPECT_THAT(Puestas(1), IsEmpty());
    EXPECT_EQ(RestoDe(1), 80);
    EXPECT_EQ(RestoDe(kBanca), 220);
}

TEST_F(BancaTest, SinSeguroNoQuedaNingunaFicha) {
    Apuesta(kFaseApuestas, 10);
    Apuesta(kFaseDoblar, 10);
    DevuelveApuesta(1, 1, Devolucion::SinSeguro, Anota());
    EXPECT_THAT(Puestas(1), IsEmpty());
    EXPECT_THAT(Filas(), ElementsAre(0, 0, 0));
    EXPECT_EQ(RestoDe(1), 100);
}

TEST_F(BancaTest, SinSeguroNoHayNadaQueDevolverDeEl) {
    Apuesta(kFaseApuestas, 10);
    DevuelveApuesta(1, kBanca, Devolucion::Seguro, Anota());
    EXPECT_THAT(movidas, IsEmpty());
    EXPECT_THAT(Filas(), ElementsAre(10, 0, 0));
}

TEST_F(BancaTest, SoloSeMuevenLasFichasDeLaSerieActual) {
    Apuesta(kFaseApuestas, 10);
    estado.SerieActual = 2;
    Apuesta(kFaseApuestas, 5);
    DevuelveApuesta(1, kBanca, Devolucion::Todo, Anota());
    EXPECT_EQ(ApuestaTotal(1, 1), 10);
    EXPECT_EQ(ApuestaTotal(1, 2), 0);
    EXPECT_EQ(RestoDe(kBanca), 205);
}

} // namespace
