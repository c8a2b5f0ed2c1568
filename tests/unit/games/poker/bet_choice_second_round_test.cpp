// How much a seat of Póker puts in after the discards, when the others are read by what they threw away. 100 can go there.

#include "games/poker/bet_choice.h"

#include <gtest/gtest.h>

#include "betting/chips.h"
#include "games/poker/poker_state.h"
#include "tests/support/poker_bets.h"

using namespace prueba;

// --- Nobody has bet yet

TEST_F(EleccionDeApuesta, MasDeUnaAmenazaConvierteUnaAperturaFuerteEnPase) {
    Juega(kEscalera, kMedio);
    Rivales({2, 3}, kMedio);
    Ronda(kSegunda, 0, 0.0);
    CreeQueTienen({2}, poker.Poker);
    EXPECT_EQ(Propuesta(), 20) << "one alone does not stop it: 100 of 5";
    CreeQueTienen({2, 3}, poker.Poker);
    EXPECT_EQ(Propuesta(), 0);
}

TEST_F(EleccionDeApuesta, LasAmenazasNoCallanUnaAperturaMedia) {
    Juega(kDoble, kMedio);
    Rivales({2, 3}, kMedio);
    CreeQueTienen({2, 3}, poker.Poker);
    Ronda(kSegunda, 0, 0.0);
    EXPECT_EQ(Propuesta(), 14) << "100 of 7";
}

// --- Somebody has bet: a strong hand

TEST_F(EleccionDeApuesta, UnMedioFuerteSoloIgualaAnteUnaAmenaza) {
    Juega(kEscalera, kMedio);
    Rivales({2, 3}, kAgresivo);
    Responde(kSegunda, 0, 10, 0.4);
    EXPECT_EQ(Propuesta(), 14);
    CreeQueTienen({3}, poker.Poker);
    EXPECT_EQ(Propuesta(), 10);
}

TEST_F(EleccionDeApuesta, UnAgresivoConPokerSubeHastaCuatroVecesYMediaLaLlamada) {
    Juega("7o 7c 7e 7b 2o", kAgresivo);
    Rivales({2, 3}, kAgresivo);
    Responde(kSegunda, 0, 10, 0.999);
    EXPECT_EQ(Propuesta(), 55);
}

TEST_F(EleccionDeApuesta, UnAgresivoFuerteSoloSeFrenaAnteDosAmenazas) {
    Juega(kEscalera, kAgresivo);
    Rivales({2, 3}, kMedio);
    Responde(kSegunda, 0, 10, 0.5);
    CreeQueTienen({2}, poker.Poker);
    EXPECT_EQ(Propuesta(), 20) << "2 x 1.2 x 0.5 on top, 22";
    CreeQueTienen({2, 3}, poker.Poker);
    EXPECT_EQ(Propuesta(), 10);
}

// Nobody else holds cards: the seat may add no more than the highest bet. What comes to 23 in all becomes 24.
TEST_F(EleccionDeApuesta, SinRivalesConCartasUnNivelAltoSube) {
    struct {
        Integer caracter, nivel, puntos;
    } const filas[] = {{kConservador, 75, 5}, {kConservador, 76, 9}, {kMedio, 60, 5},
                       {kMedio, 61, 10},      {kAgresivo, 45, 5},    {kAgresivo, 46, 12}};
    for (const auto& fila : filas) {
        SCOPED_TRACE(testing::Message() << fila.caracter << " " << fila.nivel);
        Juega(kEscalera, fila.caracter, fila.nivel);
        Responde(kSegunda, 15, 20, 0.5);
        EXPECT_EQ(Propuesta(), fila.puntos);
    }
}

// Someone really has better. The limit of the round is 100, the seat's chips are 200.
TEST_F(EleccionDeApuesta, ANivel100UnTrioSeRetiraAnteUnaLlamadaDeMasDel35PorCiento) {
    Juega(kTresSietes, kAgresivo, 100);
    Rivales({3}, kMedio);
    Da(2, "8o 8c 8e 8b 2c");
    Responde(kSegunda, 0, 36, 0.0);
    EXPECT_EQ(Propuesta(), -1);
    Responde(kSegunda, 0, 35, 0.0);
    EXPECT_EQ(Propuesta(), 35);
}

TEST_F(EleccionDeApuesta, ANivel90ElMismoTrioIguala) {
    Juega(kTresSietes, kAgresivo, 90);
    Da(2, "8o 8c 8e 8b 2c");
    Responde(kSegunda, 0, 40, 0.0);
    EXPECT_EQ(Propuesta(), 40);
    estado.NivelJugador(1) = 91;
    EXPECT_EQ(Propuesta(), -1);
}

TEST_F(EleccionDeApuesta, SinNadieMejorANivel100Iguala) {
    Juega(kTresSietes, kAgresivo, 100);
    Da(2, "9o 9c 9e Kb 3c"); // another Trio, and a higher one: the category is what counts
    Responde(kSegunda, 0, 40, 0.0);
    EXPECT_EQ(Propuesta(), 40);
}

TEST_F(EleccionDeApuesta, ANivel100TambienSeRetiraPorElTreintaPorCientoDeSuResto) {
    Juega(kEscalera, kMedio, 100);
    Da(2, "8o 8c 8e 8b 2c");
    AsignarResto(1, 100);
    Responde(kSegunda, 0, 30, 0.0);
    EXPECT_EQ(Propuesta(), 30);
    Responde(kSegunda, 0, 31, 0.0);
    EXPECT_EQ(Propuesta(), -1);
}

// --- Somebody has bet: a middling hand

TEST_F(EleccionDeApuesta, EnLaSegundaRondaUnaManoMediaHuyeDeDosAmenazas) {
    Juega(kDoble, kMedio);
    Rivales({2, 3}, kMedio);
    Responde(kSegunda, 0, 12, 0.5);
    CreeQueTienen({2}, poker.Trio);
    EXPECT_EQ(Propuesta(), 12);
    CreeQueTienen({2, 3}, poker.Trio);
    EXPECT_EQ(Propuesta(), -1);
}

TEST_F(EleccionDeApuesta, UnAgresivoAprietaAUnConservadorSolitarioQueCreeMejor) {
    Juega(kDosSietes, kAgresivo);
    Rivales({2}, kConservador);
    Rivales({3}, kMedio);
    CreeQueTienen({2}, poker.Trio);
    Responde(kSegunda, 0, 10, 0.19);
    EXPECT_EQ(Propuesta(), 20);
    estado.AzarTurno = 0.2F;
    EXPECT_EQ(Propuesta(), 10);
    Responde(kSegunda, 0, 10, 0.19);
    estado.CaracterJugador(1) = kMedio;
    Juega(kDoble, kMedio);
    EXPECT_EQ(Propuesta(), 10) << "not a Medio";
}

TEST_F(EleccionDeApuesta, UnAgresivoNoAprietaAQuienNoEsConservadorNiSinAmenaza) {
    Juega(kDosSietes, kAgresivo);
    Rivales({2}, kConservador);
    Rivales({3}, kMedio);
    Responde(kSegunda, 0, 10, 0.19);
    EXPECT_EQ(Propuesta(), 10) << "nobody seems better";
    CreeQueTienen({3}, poker.Trio);
    EXPECT_EQ(Propuesta(), 10) << "a Medio seems better";
}

// What comes to 22 in all becomes 24.
TEST_F(EleccionDeApuesta, SinRivalesConCartasUnaManoMediaSubeLaMitad) {
    struct {
        Integer caracter, nivel, puntos;
    } const filas[] = {{kConservador, 75, 10}, {kConservador, 76, 14}, {kMedio, 60, 10},
                       {kMedio, 61, 15},       {kAgresivo, 45, 10},    {kAgresivo, 46, 15}};
    for (const auto& fila : filas) {
        SCOPED_TRACE(testing::Message() << fila.caracter << " " << fila.nivel);
        Juega(kDoble, fila.caracter, fila.nivel);
        Responde(kSegunda, 10, 20, 0.5);
        EXPECT_EQ(Propuesta(), fila.puntos);
    }
}

TEST_F(EleccionDeApuesta, ANivelMayorQue90UnaManoMediaSeRetiraAnteQuienTieneMas) {
    Juega(kDoble, kMedio, 91);
    Da(2, "8o 8c 8e 8b 2c");
    Responde(kSegunda, 0, 15, 0.5);
    EXPECT_EQ(Propuesta(), 15);
    Responde(kSegunda, 0, 16, 0.5);
    EXPECT_EQ(Propuesta(), -1) << "more than 0.15 of 100";
    estado.NivelJugador(1) = 90;
    EXPECT_EQ(Propuesta(), 15);
}

TEST_F(EleccionDeApuesta, UnaManoMediaSeRetiraTambienPorElDiezPorCientoDeSuResto) {
    Juega(kDoble, kMedio, 91);
    Da(2, "8o 8c 8e 8b 2c");
    AsignarResto(1, 100);
    Responde(kSegunda, 0, 10, 0.5);
    EXPECT_EQ(Propuesta(), 10);
    Responde(kSegunda, 0, 11, 0.5);
    EXPECT_EQ(Propuesta(), -1);
}

// --- Somebody has bet: a weak hand

TEST_F(EleccionDeApuesta, ElFarolDelAgresivoDoblaLaApuesta) {
    struct {
        Integer caracter, mesa;
        double azar;
        Integer puntos;
    } const filas[] = {{kAgresivo, kMedio, 0.124, 20},
                       {kAgresivo, kMedio, 0.125, -1},
                       {kAgresivo, kConservador, 0.124, 20},
                       {kAgresivo, kAgresivo, 0.124, -1},
                       {kMedio, kMedio, 0.124, -1}};
    for (const auto& fila : filas) {
        SCOPED_TRACE(testing::Message() << fila.caracter << " " << fila.mesa << " " << fila.azar);
        Juega(kNada, fila.caracter);
        Rivales({2, 3}, fila.mesa);
        Responde(kSegunda, 0, 10, fila.azar);
        EXPECT_EQ(Propuesta(), fila.puntos);
    }
}
