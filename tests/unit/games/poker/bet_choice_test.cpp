// What holds of a bet of Póker in any round: its shape and its limits, and the tutor.

#include "games/poker/bet_choice.h"

#include <gtest/gtest.h>

#include "betting/bet_state.h"
#include "betting/chips.h"
#include "games/poker/poker_state.h"
#include "tests/support/poker_bets.h"

using namespace prueba;

// --- A weak hand

TEST_F(EleccionDeApuesta, UnaManoFlojaSeRetira) {
    Juega(kNada, kConservador, 100);
    Rivales({2, 3}, kMedio);
    Responde(kPrimera, 0, 10, 0.5);
    EXPECT_EQ(Propuesta(), -1);
    Responde(kSegunda, 0, 10, 0.0);
    EXPECT_EQ(Propuesta(), -1);
}

// --- The shape of the proposal

TEST_F(EleccionDeApuesta, UnaSubidaDeMenosDeUnCuartoSeQuedaEnUnQuinto) {
    Juega(kTresSietes, kMedio);
    Rivales({2, 3}, kMedio);
    Responde(kPrimera, 0, 10, 0.1); // 10.67, 11
    EXPECT_EQ(Propuesta(), 12);
    Responde(kPrimera, 0, 10, 0.33); // 12.2: the same one of a fifth
    EXPECT_EQ(Propuesta(), 12);
    Responde(kPrimera, 0, 12, 0.375); // exactly a quarter
    EXPECT_EQ(Propuesta(), 15);
}

TEST_F(EleccionDeApuesta, LaSubidaEscasaCuentaLoYaPuestoEnLaRonda) {
    Juega(kTresSietes, kMedio);
    Rivales({2, 3}, kMedio);
    Responde(kPrimera, 8, 20, 0.3); // 12 and 2 of the mood: 22 in all
    EXPECT_EQ(Propuesta(), 15) << "24 in all would be 16: a multiple of 5";
    Juega(kTresSietes, kAgresivo);
    Rivales({2, 3}, kAgresivo);
    Responde(kPrimera, 20, 25, 0.4); // 5 and 6 of the mood: 31 in all
    EXPECT_EQ(Propuesta(), 10) << "30 in all";
}

TEST_F(EleccionDeApuesta, PorEncimaDe15BajaAMultiplosDe5) {
    Juega(kTresSietes, kConservador);
    Rivales({2, 3}, kMedio);
    for (const auto& [llamada, puntos] :
         {std::pair<Integer, Integer>{14, 14}, {15, 15}, {16, 15}, {19, 15}, {20, 20}, {24, 20}}) {
        Responde(kPrimera, 0, llamada, 0.5);
        EXPECT_EQ(Propuesta(), puntos) << llamada;
    }
}

TEST_F(EleccionDeApuesta, NoPasaDelTopeDeLaRonda) {
    Juega("7o 7c 7e 7b 2o", kAgresivo);
    Rivales({2, 3}, kAgresivo);
    estado.ApuestaMaxima = 24;
    Responde(kPrimera, 0, 10, 0.9);
    EXPECT_EQ(Propuesta(), 12);
}

TEST_F(EleccionDeApuesta, ConLoApostadoEnLaManoNoPasaDelLimite) {
    Juega(kTresSietes, kConservador);
    Rivales({2, 3}, kMedio);
    Apuesta(1, 2, 70);
    Apuesta(1, kSegunda, 20); // of another serie of rounds: it counts towards the limit
    Responde(kPrimera, 0, 30, 0.5);
    EXPECT_EQ(Propuesta(), 10);
    EXPECT_EQ(poker.TopeApuesta, 30);
}

TEST_F(EleccionDeApuesta, NoPasaDeSuResto) {
    Juega(kTresSietes, kConservador);
    Rivales({2, 3}, kMedio);
    AsignarResto(1, 7);
    Responde(kPrimera, 0, 12, 0.5);
    EXPECT_EQ(Propuesta(), 7);
}

TEST_F(EleccionDeApuesta, NoPasaDeLoQuePuedeVerElRivalMasRico) {
    Juega("7o 7c 7e 7b 2o", kAgresivo);
    Rivales({2, 3}, kAgresivo);
    AsignarResto(2, 9);
    AsignarResto(3, 3);
    Apuesta(1, 2, 5);
    Apuesta(2, 2, 5);
    Apuesta(2, kPrimera, 12);
    Apuesta(3, 2, 5);
    Apuesta(3, kPrimera, 12);
    Apuesta(4, 2, 5); // without cards: its 200 do not count
    Responde(kPrimera, 0, 12, 0.5);
    EXPECT_EQ(Propuesta(), 21) << "seat 2 has put in 17 and has 9 left: 26, and 5 are there";
}

TEST_F(EleccionDeApuesta, ConTodosLosDemasSinRestoNadieSube) {
    Juega("7o 7c 7e 7b 2o", kAgresivo);
    Rivales({2, 3}, kAgresivo);
    Apuesta(2, kPrimera, 10);
    Apuesta(3, kPrimera, 40);
    AsignarResto(2, 0);
    AsignarResto(3, 0);
    Responde(kPrimera, 0, 10, 0.5);
    EXPECT_EQ(Propuesta(), 10);
    AsignarResto(3, 1);
    EXPECT_EQ(Propuesta(), 30) << "10 times 3.25: 32";
}

// Six points short of ten, the seat may add ten of its own.
TEST_F(EleccionDeApuesta, SinRestoEnfrenteSeMideLoQueAnadeYNoSuTotal) {
    Juega("7o 7c 7e 7b 2o", kAgresivo);
    Rivales({2}, kAgresivo);
    Apuesta(2, kPrimera, 40);
    AsignarResto(2, 0);
    Responde(kPrimera, 4, 10, 0.5);
    EXPECT_EQ(Propuesta(), 10);
}

TEST_F(EleccionDeApuesta, SinLaParejaDeAperturaSePasaAunqueTengaFarol) {
    Juega(kNada, kAgresivo);
    Rivales({2, 3}, kConservador);
    estado.LeyApertura = 10;
    Ronda(kPrimera, 0, 0.1);
    EXPECT_EQ(Propuesta(), 0);
    estado.LeyApertura = 14;
    EXPECT_EQ(Propuesta(), 25);
}

TEST_F(EleccionDeApuesta, CuandoAlguienHaAbiertoSinParejaSePuedeIgualarYSubir) {
    Juega(kNada, kAgresivo);
    Rivales({2, 3}, kMedio);
    estado.LeyApertura = 10;
    Responde(kPrimera, 0, 10, 0.3);
    EXPECT_EQ(Propuesta(), 10);
    Rivales({2, 3}, kConservador);
    Responde(kPrimera, 0, 10, 0.1);
    EXPECT_EQ(Propuesta(), 20);
}

// --- Without rivals

TEST_F(EleccionDeApuesta, SinRivalesLaActitudNoPesaYNoHayMasRico) {
    Juega(kTresSietes, kAgresivo);
    Apuesta(1, 2, 5);
    Responde(kPrimera, 12, 20, 0.9);
    EXPECT_EQ(Propuesta(), 8) << "it calls";
    Juega(kTresSietes, kMedio);
    EXPECT_EQ(Propuesta(), 8);
}

// --- Tutor

TEST_F(EleccionDeApuesta, ElTutorAconsejaANivel100YDevuelveElDelAsiento) {
    Juega(kTresSietes, kAgresivo, 10);
    Da(2, "8o 8c 8e 8b 2c");
    Responde(kSegunda, 0, 40, 0.0);
    EXPECT_EQ(Propuesta(), 40);
    estado.TutorPulsado = true;
    EXPECT_EQ(Propuesta(), -1);
    EXPECT_EQ(estado.NivelJugador(1), 10);
}

TEST_F(EleccionDeApuesta, FueraDeLasRondasNoProponeNada) {
    Juega(kTresSietes, kAgresivo);
    Rivales({2}, kMedio);
    Ronda(2, 0, 0.5);
    apuestas.ApuestaPropuesta = 9;
    EXPECT_EQ(Propuesta(), 0);
}
