#include "games/blackjack/blackjack_decision.h"

#include <gtest/gtest.h>

#include "betting/bet_state.h"
#include "betting/chips.h"
#include "betting/phases.h"
#include "tests/support/bank_table.h"

using namespace prueba;

namespace {

struct DecisionBlackJack : testing::Test {
    void SetUp() override {
        MesaDeBanca(kBlackJack);
        Banca(6);
    }

    static void Asiento(Integer nivel, Integer caracter, Integer resto = 200) {
        estado.NivelJugador(4) = nivel;
        estado.CaracterJugador(4) = caracter;
        AsignarResto(4, resto);
    }
    static void Mano(const std::vector<Integer>& valores) {
        std::vector<Carta> cartas;
        cartas.reserve(valores.size());
        for (Integer valor : valores)
            cartas.emplace_back(kCopas, valor);
        PonSerie(4, 1, cartas);
    }
    static void Banca(Integer valor) { PonSerie(2, 1, {{kOros, valor}}); }
    static Integer ApuestaCon(double azar) {
        apuestas.FaseApuesta = kFaseApuestas;
        Azar(azar);
        DecideBlackJack();
        return apuestas.ApuestaPropuesta;
    }
    static bool SePlanta() {
        DecideBlackJack();
        return series.ConsejoServido;
    }
    static bool Asegura() {
        series.PuedeAsegurar = true;
        DecideBlackJack();
        return series.ConsejoSeguro;
    }
    static bool Abre() {
        series.PuedeAbrir = true;
        DecideBlackJack();
        return series.ConsejoAbrir;
    }
    static bool Dobla() {
        series.PuedeDoblar = true;
        DecideBlackJack();
        return series.ConsejoDoblar;
    }
};

} // namespace

TEST_F(DecisionBlackJack, ElTutorContestaComoNivelCienYElNivelQueda) {
    Asiento(10, kConservador);
    estado.ControlJugador(4) = kManual;
    Mano({10, 6});
    Banca(10);
    Azar(0.9);
    EXPECT_TRUE(SePlanta());
    estado.TutorPulsado = true;
    EXPECT_FALSE(SePlanta());
    EXPECT_EQ(estado.NivelJugador(4), 10);
}

// A reserve of 240 with the 200 of the start: short from the first hand on.
TEST_F(DecisionBlackJack, UnConservadorEmpiezaCortoYSeAseguraSiempre) {
    Asiento(100, kConservador);
    Banca(kAs);
    for (const Integer segunda : std::vector<Integer>{2, 5, 9, 10}) {
        Mano({10, segunda});
        EXPECT_TRUE(Asegura()) << "10 y " << segunda;
    }
    Asiento(100, kMedio);
    Mano({10, 9});
    EXPECT_FALSE(Asegura());
    Asiento(100, kAgresivo);
    EXPECT_FALSE(Asegura());
}

// Three tenths of 25 are seven and a half, which goes to the even eight.
TEST_F(DecisionBlackJack, UnConservadorCortoApuestaTresDecimos) {
    Asiento(100, kConservador);
    EXPECT_EQ(ApuestaCon(0.9), 8);
    Asiento(74, kConservador); // no better level, and still short: the part of chance comes on top
    EXPECT_EQ(ApuestaCon(0), 10);
}

TEST_F(DecisionBlackJack, LaReservaEsMediaParaElAgresivoYOchoDecimosParaElMedio) {
    Mano({10, 9});
    Banca(kAs);
    Asiento(100, kAgresivo, 99);
    EXPECT_TRUE(Asegura());
    Asiento(100, kAgresivo, 100);
    EXPECT_FALSE(Asegura());
    Asiento(100, kMedio, 159);
    EXPECT_TRUE(Asegura());
    Asiento(100, kMedio, 160);
    EXPECT_FALSE(Asegura());
    Asiento(100, kConservador, 239);
    EXPECT_TRUE(Asegura());
    Asiento(100, kConservador, 240);
    EXPECT_FALSE(Asegura());
}

// Six tenths of 25 are 15; then a tenth and chance: 2.5 + 15 is seventeen and a half.
TEST_F(DecisionBlackJack, QuienTieneYJuegaPeorApuestaElDoble) {
    Asiento(74, kMedio, 161);
    EXPECT_EQ(ApuestaCon(0), 18);
    Asiento(74, kMedio, 160);
    EXPECT_EQ(ApuestaCon(0), 12);
    Asiento(75, kMedio, 161);
    EXPECT_EQ(ApuestaCon(0), 10);
    Asiento(75, kMedio, 321);
    EXPECT_EQ(ApuestaCon(0), 12);
}

// Three tenths of 15 are four and a half. With 25 of 50 already, 1.9 tenths more make 34 and a half.
TEST_F(DecisionBlackJack, LaMitadJustaVaAlPar) {
    estado.ApuestaMaxima = 15;
    Asiento(75, kConservador);
    EXPECT_EQ(ApuestaCon(0), 4);
    estado.ApuestaMaxima = 50;
    Asiento(0, kAgresivo, 100);
    EXPECT_EQ(ApuestaCon(0.3), 30);
}

TEST_F(DecisionBlackJack, ConMaximaDeVeinticincoNoSeRedondeaACincos) {
    Asiento(100, kConservador);
    EXPECT_EQ(ApuestaCon(0), 8);
}

TEST_F(DecisionBlackJack, ConMaximaDeTreintaLaApuestaVaDeCincoEnCincoPasadoElSeis) {
    estado.ApuestaMaxima = 30;
    Asiento(100, kConservador);
    EXPECT_EQ(ApuestaCon(0), 5); // nine
    Asiento(100, kAgresivo);
    EXPECT_EQ(ApuestaCon(0), 15);
    Asiento(100, kMedio);
    EXPECT_EQ(ApuestaCon(0), 10); // twelve
}

TEST_F(DecisionBlackJack, LaApuestaNoPasaDeLaMaximaNiDelRestoNiDelDeLaBanca) {
    Asiento(0, kAgresivo);
    EXPECT_EQ(ApuestaCon(0.99), 25);
    Asiento(0, kAgresivo, 3);
    EXPECT_EQ(ApuestaCon(0.99), 3);
    Asiento(0, kAgresivo);
    AsignarResto(2, 2);
    EXPECT_EQ(ApuestaCon(0.99), 2);
}

TEST_F(DecisionBlackJack, LaApuestaNuncaBajaDeUno) {
    Asiento(100, kConservador);
    AsignarResto(2, 0);
    EXPECT_EQ(ApuestaCon(0), 1);
    AsignarResto(2, 200);
    estado.ApuestaMaxima = 1;
    EXPECT_EQ(ApuestaCon(0), 1);
}

TEST_F(DecisionBlackJack, EnLasApuestasLosConsejosQuedanComoEstaban) {
    series.ConsejoDoblar = true;
    ApuestaCon(0.5);
    EXPECT_TRUE(series.ConsejoDoblar);
}

TEST_F(DecisionBlackJack, EnElJuegoLaApuestaPropuestaQuedaComoEstaba) {
    apuestas.ApuestaPropuesta = 7;
    Mano({10, 6});
    DecideBlackJack();
    EXPECT_EQ(apuestas.ApuestaPropuesta, 7);
}

TEST_F(DecisionBlackJack, FueraDeApuestasYJuegoNoDecideNada) {
    Mano({10, 10});
    apuestas.FaseApuesta = 5;
    DecideBlackJack();
    EXPECT_EQ(apuestas.ApuestaPropuesta, 0);
    EXPECT_FALSE(series.ConsejoServido);
}

TEST_F(DecisionBlackJack, SeAseguraDeDoceADieciocho) {
    Asiento(100, kMedio);
    Banca(kAs);
    Mano({6, 5});
    EXPECT_FALSE(Asegura());
    Mano({7, 5});
    EXPECT_TRUE(Asegura());
    Mano({10, 8});
    EXPECT_TRUE(Asegura());
    Mano({10, 9});
    EXPECT_FALSE(Asegura());
}

TEST_F(DecisionBlackJack, ConOnceElQueJuegaBienNoSeAseguraAunqueEsteCorto) {
    Banca(kAs);
    Mano({6, 5});
    Asiento(76, kMedio, 50);
    EXPECT_FALSE(Asegura());
    Asiento(75, kMedio, 50);
    EXPECT_TRUE(Asegura());
    Asiento(76, kConservador, 50);
    EXPECT_TRUE(Asegura());
}

TEST_F(DecisionBlackJack, LoQueNoSeOfreceNoSeAconseja) {
    series.ConsejoSeguro = series.ConsejoAbrir = series.ConsejoDoblar = true;
    Mano({8, 8});
    Banca(5);
    DecideBlackJack();
    EXPECT_FALSE(series.ConsejoSeguro);
    EXPECT_FALSE(series.ConsejoAbrir);
    EXPECT_FALSE(series.ConsejoDoblar);
}

TEST_F(DecisionBlackJack, DosFigurasNoSeAbren) {
    Banca(6);
    Mano({kReina, kReyFrances});
    EXPECT_FALSE(Abre());
}

TEST_F(DecisionBlackJack, AlAbrirQuedaServido) {
    Banca(10);
    Mano({8, 8});
    EXPECT_TRUE(Abre());
    EXPECT_TRUE(series.ConsejoServido);
}

// The funds: at least half of a reserve of 100 for an Agresivo, or a number 1 to 3 of chance below his 3.
TEST_F(DecisionBlackJack, SinFondosSoloSeAbreSiElAzarLoQuiere) {
    Mano({8, 8});
    Banca(6);
    Asiento(100, kAgresivo, 50);
    Azar(0.9);
    EXPECT_TRUE(Abre());
    Asiento(100, kAgresivo, 49);
    EXPECT_FALSE(Abre());
    Azar(0.6);
    EXPECT_TRUE(Abre());
    Asiento(100, kConservador, 49); // never below 1
    Azar(0);
    EXPECT_FALSE(Abre());
}

TEST_F(DecisionBlackJack, ElQueJuegaMalAbreLoQueNoDebe) {
    Mano({5, 5});
    Asiento(24, kConservador, 241);
    EXPECT_TRUE(Abre());
    Asiento(25, kConservador, 241);
    EXPECT_FALSE(Abre());
    Asiento(24, kConservador, 240); // no more than the reserve
    EXPECT_FALSE(Abre());
    Asiento(74, kAgresivo, 101);
    EXPECT_TRUE(Abre());
    Asiento(75, kAgresivo, 101);
    EXPECT_FALSE(Abre());
}

TEST_F(DecisionBlackJack, SinFondosSoloSeDoblaSiElAzarLoQuiere) {
    Mano({6, 5});
    Asiento(100, kAgresivo, 67); // 100 by one and a half is 66.67
    Azar(0.9);
    EXPECT_TRUE(Dobla());
    Asiento(100, kAgresivo, 66);
    EXPECT_FALSE(Dobla());
    Azar(0.6);
    EXPECT_TRUE(Dobla());
}

TEST_F(DecisionBlackJack, ElQueJuegaMalDoblaContraLaTabla) {
    Mano({6, 4});
    Banca(10);
    Asiento(49, kMedio, 161);
    EXPECT_TRUE(Dobla());
    Asiento(50, kMedio, 161);
    EXPECT_FALSE(Dobla());
}

// The printed table says card: the one cell in which the two differ where doubling is offered.
TEST_F(DecisionBlackJack, NueveContraUnDosSeDoblaAunqueLaTablaDigaCarta) {
    Mano({4, 5});
    Banca(2);
    EXPECT_TRUE(Dobla());
    Banca(7);
    EXPECT_FALSE(Dobla());
}

TEST_F(DecisionBlackJack, OnceSeDoblaContraCualquierCarta) {
    Mano({6, 5});
    for (Integer banca = kAs; banca <= kReyFrances; ++banca) {
        Banca(banca);
        EXPECT_TRUE(Dobla()) << banca;
    }
}

TEST_F(DecisionBlackJack, DosAsesQueNoSePuedenAbrirSePlantan) {
    for (Integer banca = kAs; banca <= kReyFrances; ++banca) {
        Banca(banca);
        Mano({kAs, kAs});
        EXPECT_TRUE(SePlanta()) << banca;
    }
}

TEST_F(DecisionBlackJack, DieciochoBlandoPideContraNueveFigurasYAs) {
    Mano({kAs, 7});
    for (Integer banca = 2; banca <= 8; ++banca) {
        Banca(banca);
        EXPECT_TRUE(SePlanta()) << banca;
    }
    for (Integer banca : {kAs, Integer{9}, Integer{10}, kReyFrances}) {
        Banca(banca);
        EXPECT_FALSE(SePlanta()) << banca;
    }
}

TEST_F(DecisionBlackJack, ANivelCeroSePlantaConDieciseisContraUnDiez) {
    Mano({10, 6});
    Banca(10);
    for (Integer caracter : {kConservador, kMedio, kAgresivo}) {
        Asiento(0, caracter);
        Azar(0);
        EXPECT_TRUE(SePlanta()) << "carácter " << caracter;
    }
}

TEST_F(DecisionBlackJack, LosNerviosEmpiezanEnTreceMasElCaracter) {
    Banca(10);
    Azar(0.9);
    const Integer kDesde[] = {0, 14, 15, 16};
    for (Integer caracter : {kConservador, kMedio, kAgresivo}) {
        Asiento(0, caracter);
        Mano({10, static_cast<Integer>(kDesde[caracter] - 10)});
        EXPECT_TRUE(SePlanta()) << "carácter " << caracter;
        Mano({10, static_cast<Integer>(kDesde[caracter] - 11)});
        EXPECT_FALSE(SePlanta()) << "carácter " << caracter;
    }
}

// One more than the whole hundredths of chance has to pass the level.
TEST_F(DecisionBlackJack, LosNerviosDependenDelNivelYDelAzar) {
    Mano({10, 6});
    Banca(10);
    Azar(0.5);
    Asiento(50, kConservador);
    EXPECT_TRUE(SePlanta());
    Asiento(51, kConservador);
    EXPECT_FALSE(SePlanta());
    Azar(0.35);
    Asiento(35, kConservador);
    EXPECT_TRUE(SePlanta());
    Asiento(100, kConservador);
    Azar(0.999);
    EXPECT_FALSE(SePlanta());
}
