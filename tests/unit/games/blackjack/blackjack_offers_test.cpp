#include "betting/bet_state.h"
#include "games/blackjack/blackjack_offers.h"

#include <gtest/gtest.h>

#include "betting/chips.h"
#include "tests/support/bank_table.h"

using namespace prueba;

namespace {

struct OfertasBlackJack : testing::Test {
    void SetUp() override {
        MesaDeBanca(kBlackJack);
        PonSerie(2, 1, {{kOros, 6}});
        Apuesta(4, 1, 21);
    }
};

} // namespace

TEST_F(OfertasBlackJack, ElSeguroSoloContraUnAsDeLaBanca) {
    PonSerie(4, 1, {{kOros, 9}, {kCopas, 9}});
    EXPECT_FALSE(OfreceSeguro());
    PonSerie(2, 1, {{kOros, kAs}});
    EXPECT_TRUE(OfreceSeguro());
}

TEST_F(OfertasBlackJack, ElSeguroPideLaMitadJustaDeLaApuesta) {
    PonSerie(2, 1, {{kOros, kAs}});
    AsignarResto(4, 10); // half of 21 is ten and a half
    EXPECT_FALSE(OfreceSeguro());
    AsignarResto(4, 11);
    EXPECT_TRUE(OfreceSeguro());
}

TEST_F(OfertasBlackJack, SeDoblaConNueveDiezUOnceEnDosCartas) {
    PonSerie(4, 1, {{kOros, 2}, {kCopas, 6}});
    EXPECT_FALSE(OfreceDoblar());
    for (const Integer otra : std::vector<Integer>{7, 8, 9}) {
        PonSerie(4, 1, {{kOros, 2}, {kCopas, otra}});
        EXPECT_TRUE(OfreceDoblar()) << "2 y " << otra;
    }
    PonSerie(4, 1, {{kOros, 2}, {kCopas, 10}});
    EXPECT_FALSE(OfreceDoblar());
    PonSerie(4, 1, {{kOros, 2}, {kCopas, 5}, {kBastos, 3}});
    EXPECT_FALSE(OfreceDoblar());
}

TEST_F(OfertasBlackJack, ContraUnAsDeLaBancaNoSeDobla) {
    PonSerie(4, 1, {{kOros, 5}, {kCopas, 6}});
    PonSerie(2, 1, {{kOros, kAs}});
    EXPECT_FALSE(OfreceDoblar());
}

TEST_F(OfertasBlackJack, DoblarCuestaLaApuestaSinElSeguro) {
    PonSerie(4, 1, {{kOros, 5}, {kCopas, 6}});
    apuestas.Apuesta(4, 1, 5) = 10;
    AsignarResto(4, 21);
    EXPECT_TRUE(OfreceDoblar());
    AsignarResto(4, 20);
    EXPECT_FALSE(OfreceDoblar());
}

TEST_F(OfertasBlackJack, UnDiezYUnReySePuedenAbrir) {
    PonSerie(4, 1, {{kOros, 10}, {kCopas, kReyFrances}});
    EXPECT_TRUE(OfreceAbrir());
    PonSerie(4, 1, {{kOros, 9}, {kCopas, kReyFrances}});
    EXPECT_FALSE(OfreceAbrir());
    PonSerie(4, 1, {{kOros, 8}, {kCopas, 8}, {kBastos, 8}});
    EXPECT_FALSE(OfreceAbrir());
}

TEST_F(OfertasBlackJack, AbrirCuestaTambienElSeguro) {
    PonSerie(4, 1, {{kOros, 8}, {kCopas, 8}});
    apuestas.Apuesta(4, 1, 5) = 10;
    AsignarResto(4, 30);
    EXPECT_FALSE(OfreceAbrir());
    AsignarResto(4, 31);
    EXPECT_TRUE(OfreceAbrir());
}

TEST_F(OfertasBlackJack, ConCuatroSeriesNoSeAbreMas) {
    PonSerie(4, 3, {{kOros, 8}, {kCopas, 8}});
    estado.SerieEnJuego = 3;
    EXPECT_TRUE(OfreceAbrir());
    PonSerie(4, 4, {{kOros, 8}});
    EXPECT_FALSE(OfreceAbrir());
}

TEST_F(OfertasBlackJack, CuentaLaSerieEnJuegoYNoLaQueSeMira) {
    PonSerie(4, 1, {{kOros, 10}, {kCopas, 9}});
    PonSerie(4, 2, {{kOros, 5}, {kCopas, 5}});
    Apuesta(4, 2, 21);
    estado.SerieEnJuego = 2;
    EXPECT_TRUE(OfreceDoblar());
    EXPECT_TRUE(OfreceAbrir());
}

TEST_F(OfertasBlackJack, ALaBancaNoSeLeOfreceNada) {
    TocaJugar(2);
    PonSerie(2, 1, {{kOros, kAs}, {kCopas, kAs}});
    EXPECT_FALSE(OfreceSeguro());
    EXPECT_FALSE(OfreceAbrir());
    PonSerie(2, 1, {{kOros, 5}, {kCopas, 6}});
    EXPECT_FALSE(OfreceDoblar());
}
