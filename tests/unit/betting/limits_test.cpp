// What stands against one more chip.

#include "betting/bet_state.h"
#include "betting/limits.h"

#include "tests/support/money.h"

namespace {

using namespace prueba;

constexpr int kFichaDe1 = 1, kFichaDe5 = 3, kFichaDe10 = 4, kFichaDe20 = 5;

struct LimitesTest : MesaConFichas {
    static Rechazo Contra(int d, const ReglasApuesta& reglas) {
        return JuzgaFicha(1, d, reglas).rechazo;
    }
};

TEST_F(LimitesTest, LaMaximaCuentaLoApostadoEnTodaLaMano) {
    estado.ApuestaMaxima = 25;
    Juega(1, 200, 5);
    Juega(2, 200, 5);
    apuestas.Apuesta(1, 1, kFasePrimeraRonda) = 19;
    apuestas.FaseApuesta = kFaseSegundaRonda;
    EXPECT_EQ(Contra(kFichaDe1, kComoPoker), Rechazo::Ninguno);
    EXPECT_EQ(Contra(kFichaDe5, kComoPoker), Rechazo::Maxima);
}

TEST_F(LimitesTest, JustoLaMaximaEntra) {
    estado.ApuestaMaxima = 25;
    estado.JugadorBanca = 2;
    Juega(1, 200, 20);
    Tiene(2, 200);
    EXPECT_EQ(Contra(kFichaDe5, kComoSieteYMedia), Rechazo::Ninguno);
    EXPECT_EQ(Contra(kFichaDe10, kComoSieteYMedia), Rechazo::Maxima);
}

TEST_F(LimitesTest, EnBlackJackLaMaximaSoloObligaAlApostar) {
    estado.ApuestaMaxima = 25;
    Juega(1, 200, 25);
    EXPECT_EQ(Contra(kFichaDe1, kComoBlackJack), Rechazo::Maxima);
    apuestas.FaseApuesta = kFaseDoblar;
    EXPECT_EQ(Contra(kFichaDe20, kComoBlackJack), Rechazo::Ninguno);
    apuestas.FaseApuesta = kFaseSeguro;
    EXPECT_EQ(Contra(kFichaDe10, kComoBlackJack), Rechazo::Ninguno);
}

TEST_F(LimitesTest, EnBlackJackElTechoSonDoceMaximas) {
    estado.ApuestaMaxima = 25;
    Juega(1, 995, 295);
    apuestas.FaseApuesta = kFaseDoblar;
    EXPECT_EQ(Contra(kFichaDe5, kComoBlackJack), Rechazo::Ninguno);
    EXPECT_EQ(Contra(kFichaDe10, kComoBlackJack), Rechazo::RestoDeBanca);
    EXPECT_EQ(TechoDe(1, kComoBlackJack).puntos, 300);
}

TEST_F(LimitesTest, EnSieteYMediaElTechoEsLoQueTieneLaBanca) {
    estado.JugadorBanca = 3;
    Juega(1, 100, 10);
    Tiene(3, 14);
    const Veredicto veredicto = JuzgaFicha(1, kFichaDe5, kComoSieteYMedia);
    EXPECT_EQ(veredicto.rechazo, Rechazo::RestoDeBanca);
    EXPECT_EQ(veredicto.techo.puntos, 14);
    EXPECT_EQ(Contra(kFichaDe1, kComoSieteYMedia), Rechazo::Ninguno);
}

TEST_F(LimitesTest, ConTodosLosRivalesSinFichasSoloSeIguala) {
    Juega(1, 100, 10, kFasePrimeraRonda);
    Juega(2, 0, 15, kFasePrimeraRonda);
    SeRetira(3, 80, 5); // who has thrown its cards in is no rival
    apuestas.FaseApuesta = kFasePrimeraRonda;
    apuestas.MaximaApuesta = 15;
    EXPECT_TRUE(RivalesSinResto(1));
    EXPECT_EQ(Contra(kFichaDe5, kComoPoker), Rechazo::Ninguno);
    EXPECT_EQ(Contra(kFichaDe10, kComoPoker), Rechazo::SoloIgualar);
}

TEST_F(LimitesTest, NadieApuestaMasDeLoQueAlcanzaElRivalMasRico) {
    Juega(1, 100, 20, kFasePrimeraRonda);
    Juega(2, 5, 15, kFasePrimeraRonda);
    Juega(3, 20, 10, kFasePrimeraRonda);
    SeRetira(4, 90, 5);
    apuestas.FaseApuesta = kFasePrimeraRonda;
    apuestas.MaximaApuesta = 20;
    const Veredicto veredicto = JuzgaFicha(1, kFichaDe20, kComoPoker);
    EXPECT_EQ(veredicto.rechazo, Rechazo::RestoDeRival);
    EXPECT_EQ(veredicto.techo.puntos, 30);
    EXPECT_EQ(veredicto.techo.rival, 3);
    EXPECT_EQ(Contra(kFichaDe10, kComoPoker), Rechazo::Ninguno);
}

TEST_F(LimitesTest, DeDosRivalesIgualDeRicosCuentaElPrimero) {
    Juega(2, 30, 0);
    Juega(4, 20, 10);
    EXPECT_EQ(TechoDe(1, kComoPoker).rival, 2);
}

TEST_F(LimitesTest, LaApuestaDeSalidaNoMiraALosRivales) {
    apuestas.FaseApuesta = kFaseSalida;
    Juega(1, 100, 0);
    Juega(2, 0, 2);
    EXPECT_EQ(Contra(kFichaDe5, kComoPoker), Rechazo::Ninguno);
}

TEST_F(LimitesTest, LaMaximaSeDiceAntesQueElRestoDeLosDemas) {
    estado.ApuestaMaxima = 25;
    apuestas.FaseApuesta = kFasePrimeraRonda;
    Juega(1, 100, 20, kFasePrimeraRonda);
    Juega(2, 0, 20, kFasePrimeraRonda);
    apuestas.MaximaApuesta = 20;
    EXPECT_EQ(Contra(kFichaDe10, kComoPoker), Rechazo::Maxima);
    EXPECT_EQ(Contra(kFichaDe5, kComoPoker), Rechazo::SoloIgualar);
}

TEST_F(LimitesTest, UnaFichaQueElAsientoNoPuedePagarNoSePoneYNoSeDiceNada) {
    estado.JugadorBanca = 2;
    Juega(1, 8, 0);
    Tiene(2, 500);
    EXPECT_EQ(Contra(kFichaDe10, kComoSieteYMedia), Rechazo::EnSilencio);
    EXPECT_EQ(Contra(kFichaDe5, kComoSieteYMedia), Rechazo::Ninguno);
}

TEST_F(LimitesTest, LaFicha151NoSePoneYNoSeDiceNada) {
    Juega(1, 500, 0);
    apuestas.NumFichasPuestas(1, 1) = 149;
    EXPECT_EQ(Contra(kFichaDe1, kComoBlackJack), Rechazo::Ninguno);
    apuestas.NumFichasPuestas(1, 1) = 150;
    EXPECT_EQ(Contra(kFichaDe1, kComoBlackJack), Rechazo::EnSilencio);
}

TEST_F(LimitesTest, JuzgarNoCambiaNada) {
    Juega(1, 100, 20);
    Juega(2, 100, 20);
    const EstadoJuego antes = estado;
    const EstadoApuestas apuestas_antes = apuestas;
    for (int d = 1; d <= kDenominaciones; ++d) {
        for (const ReglasApuesta& reglas : {kComoPoker, kComoBlackJack, kComoSieteYMedia})
            JuzgaFicha(1, d, reglas);
    }
    EXPECT_TRUE(estado == antes);
    EXPECT_TRUE(apuestas == apuestas_antes);
}

TEST_F(LimitesTest, UnaDenominacionQueNoHayEsUnError) {
    EXPECT_THROW(JuzgaFicha(1, 0, kComoPoker), IndiceFuera);
    EXPECT_THROW(JuzgaFicha(1, 7, kComoPoker), IndiceFuera);
}

} // namespace
