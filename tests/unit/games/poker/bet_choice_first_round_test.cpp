// How much a seat of Póker puts in before the discards. 50 can go there.

#include "games/poker/bet_choice.h"

#include <gtest/gtest.h>

#include "tests/support/poker_bets.h"

using namespace prueba;

namespace {

struct FilaApertura {
    Integer caracter;
    double azar;
    Integer mesa; // character of all rivals
    Integer puntos;
};

} // namespace

// --- Nobody has bet yet

TEST_F(EleccionDeApuesta, AbreConFuerzaGrande) {
    const FilaApertura filas[] = {
        {kConservador, 0.49, kMedio, 7}, // 50 of 7
        {kConservador, 0.5, kMedio, 6},  // 50 of 8
        {kMedio, 0.49, kMedio, 10},      // 50 of 5
        {kMedio, 0.5, kMedio, 8},        // 50 of 6
        {kAgresivo, 0.49, kMedio, 15},   // 50 of 3, 17, in multiples of 5
        {kAgresivo, 0.5, kAgresivo, 12}, // 50 of 4: 12.5, to the even one
        // Before a cautious table six tenths of it, before one without a character eight.
        {kConservador, 0.49, kConservador, 4},
        {kMedio, 0.49, kConservador, 6},
        {kAgresivo, 0.49, kConservador, 10},
        {kMedio, 0.49, 0, 8},
    };
    for (const FilaApertura& fila : filas) {
        SCOPED_TRACE(testing::Message() << "character " << fila.caracter << ", table " << fila.mesa
                                        << ", number " << fila.azar);
        Juega(kTresSietes, fila.caracter);
        Rivales({2, 3}, fila.mesa);
        Ronda(kPrimera, 0, fila.azar);
        EXPECT_EQ(Propuesta(), fila.puntos);
    }
}

TEST_F(EleccionDeApuesta, AbreConFuerzaMedia) {
    const FilaApertura filas[] = {
        {kConservador, 0.33, kMedio, 5},       // 50 of 10
        {kConservador, 0.34, kMedio, 5},       // 50 of 11: 4.5 and a bit
        {kConservador, 0.67, kMedio, 4},       // 50 of 12
        {kMedio, 0.33, kMedio, 7},             // 50 of 7
        {kMedio, 0.34, kMedio, 6},             // 50 of 8
        {kMedio, 0.67, kMedio, 6},             // 50 of 9
        {kAgresivo, 0.33, kMedio, 12},         // 50 of 4
        {kAgresivo, 0.34, kMedio, 10},         // 50 of 5
        {kAgresivo, 0.67, kMedio, 8},          // 50 of 6
        {kConservador, 0.33, kConservador, 0}, // two cautious ones look at each other
        {kMedio, 0.33, kConservador, 7},
        {kAgresivo, 0.33, kConservador, 12},
        {kConservador, 0.33, kAgresivo, 5},
    };
    for (const FilaApertura& fila : filas) {
        SCOPED_TRACE(testing::Message() << "character " << fila.caracter << ", table " << fila.mesa
                                        << ", number " << fila.azar);
        Juega(kDosSietes, fila.caracter);
        Rivales({2, 3}, fila.mesa);
        Ronda(kPrimera, 0, fila.azar);
        EXPECT_EQ(Propuesta(), fila.puntos);
    }
}

TEST_F(EleccionDeApuesta, ConFuerzaFlojaSoloAbreElFarolDelAgresivo) {
    const FilaApertura filas[] = {
        {kAgresivo, 0.19, kConservador, 25}, // half of 50
        {kAgresivo, 0.2, kConservador, 0},     {kAgresivo, 0.19, kMedio, 0},
        {kAgresivo, 0.19, kAgresivo, 0},       {kMedio, 0.19, kConservador, 0},
        {kConservador, 0.19, kConservador, 0},
    };
    for (const FilaApertura& fila : filas) {
        SCOPED_TRACE(testing::Message() << "character " << fila.caracter << ", table " << fila.mesa
                                        << ", number " << fila.azar);
        Juega(kNada, fila.caracter);
        Rivales({2, 3}, fila.mesa);
        Ronda(kPrimera, 0, fila.azar);
        EXPECT_EQ(Propuesta(), fila.puntos);
    }
}

// The mean of the characters 1..3 is never 0; a table that was given none opens to eight tenths all the same.
TEST_F(EleccionDeApuesta, LaActitudCeroTieneSuFactor) {
    Juega(kTresSietes, kMedio);
    Rivales({2}, 0);
    Ronda(kPrimera, 0, 0.0);
    EXPECT_EQ(Propuesta(), 8) << "ten, times 0.8";
}

// --- Somebody has bet: a strong hand

TEST_F(EleccionDeApuesta, UnConservadorFuerteNuncaSube) {
    Rivales({2, 3}, kAgresivo);
    for (const double azar : {0.0, 0.5, 0.99}) {
        for (const char* mano : {kTresSietes, kEscalera, "7o 7c 7e 7b 2o"}) {
            Juega(mano, kConservador);
            Responde(kPrimera, 0, 12, azar);
            EXPECT_EQ(Propuesta(), 12);
        }
    }
}

TEST_F(EleccionDeApuesta, UnMedioFuerteSubePorLaActitudDeLaMesa) {
    struct {
        Integer mesa;
        double azar;
        Integer puntos;
    } const filas[] = {
        {kConservador, 0.9, 13}, // a third of 0.9 on top of 10
        {kMedio, 0.9, 15},       // 16 in multiples of 5
        {kAgresivo, 0.4, 14},
        {kAgresivo, 0.0, 10},
    };
    Juega(kTresSietes, kMedio);
    for (const auto& fila : filas) {
        SCOPED_TRACE(fila.puntos);
        Rivales({2, 3}, fila.mesa);
        Responde(kPrimera, 0, 10, fila.azar);
        EXPECT_EQ(Propuesta(), fila.puntos);
    }
}

TEST_F(EleccionDeApuesta, UnAgresivoFuerteSubeTambienPorSuJugada) {
    Juega(kTresSietes, kAgresivo); // category 10: the mood counts whole
    Rivales({2, 3}, kMedio);
    Responde(kPrimera, 0, 10, 0.25);
    EXPECT_EQ(Propuesta(), 15) << "half more";
    Juega("7o 7c 7e 7b 2o", kAgresivo); // 15: once and a half
    EXPECT_EQ(Propuesta(), 15) << "three quarters more, 17.5, 18 and down to 15";
    Responde(kPrimera, 0, 10, 0.5);
    EXPECT_EQ(Propuesta(), 25);
}

TEST_F(EleccionDeApuesta, SinRivalesEnLaPrimeraRondaSoloIguala) {
    Juega(kTresSietes, kMedio, 100);
    Responde(kPrimera, 15, 20, 0.5);
    EXPECT_EQ(Propuesta(), 5);
}

// --- Somebody has bet: a middling hand

TEST_F(EleccionDeApuesta, EnLaPrimeraRondaUnaManoMediaIguala) {
    Juega(kDosSietes, kMedio, 80);
    Rivales({2, 3}, kMedio);
    Responde(kPrimera, 0, 35, 0.5);
    EXPECT_EQ(Propuesta(), 35);
}

// A tenth more than a fifth of the 50 that can go in, times the character: 10.1, 20.2 and 30.3.
TEST_F(EleccionDeApuesta, AnteUnaMesaCautaUnaManoMediaNoEntraCara) {
    struct {
        Integer caracter, llamada, puntos;
    } const filas[] = {{kConservador, 10, 10}, {kConservador, 11, -1}, {kMedio, 15, 15},
                       {kMedio, 21, -1},       {kAgresivo, 30, 30},    {kAgresivo, 31, -1}};
    Rivales({2, 3}, kConservador);
    for (const auto& fila : filas) {
        SCOPED_TRACE(testing::Message() << fila.caracter << " " << fila.llamada);
        Juega(kDosSietes, fila.caracter);
        Responde(kPrimera, 0, fila.llamada, 0.5);
        EXPECT_EQ(Propuesta(), fila.puntos);
    }
}

TEST_F(EleccionDeApuesta, UnaEntradaQueNoPasaDeLoJustoYaEsCara) {
    Juega(kDosSietes, kMedio);
    Rivales({2, 3}, kConservador);
    estado.ApuestaMaxima = 24; // 12 can go in: 2.5 times 2
    Responde(kPrimera, 0, 5, 0.5);
    EXPECT_EQ(Propuesta(), -1);
    Responde(kPrimera, 0, 4, 0.5);
    EXPECT_EQ(Propuesta(), 4);
}

TEST_F(EleccionDeApuesta, QuienYaHaApostadoEnLaRondaNoSeEcha) {
    Juega(kDosSietes, kConservador);
    Rivales({2, 3}, kConservador);
    Responde(kPrimera, 1, 12, 0.5);
    EXPECT_EQ(Propuesta(), 11);
}

TEST_F(EleccionDeApuesta, ANivelMayorQue80LaMitadDelTopeEsDemasiado) {
    struct {
        Integer caracter, nivel, llamada, puntos;
    } const filas[] = {{kMedio, 81, 25, -1},
                       {kMedio, 81, 24, 20},
                       {kMedio, 80, 25, 25},
                       {kConservador, 81, 25, -1},
                       {kAgresivo, 81, 25, 25}};
    Rivales({2, 3}, kMedio);
    for (const auto& fila : filas) {
        SCOPED_TRACE(testing::Message()
                     << fila.caracter << " " << fila.nivel << " " << fila.llamada);
        Juega(kDosSietes, fila.caracter, fila.nivel);
        Responde(kPrimera, 0, fila.llamada, 0.5);
        EXPECT_EQ(Propuesta(), fila.puntos);
    }
}

// --- Somebody has bet: a weak hand

TEST_F(EleccionDeApuesta, EnLaPrimeraRondaUnaManoFlojaIgualaAVecesPorSuCaracter) {
    struct {
        Integer caracter, mesa;
        double azar;
        Integer puntos;
    } const filas[] = {{kConservador, kMedio, 0.11, 10},   {kConservador, kMedio, 0.12, -1},
                       {kMedio, kMedio, 0.22, 10},         {kMedio, kMedio, 0.23, -1},
                       {kAgresivo, kMedio, 0.33, 10},      {kAgresivo, kMedio, 0.34, -1},
                       {kConservador, kAgresivo, 0.0, 10}, {kConservador, kConservador, 0.0, -1}};
    for (const auto& fila : filas) {
        SCOPED_TRACE(testing::Message() << fila.caracter << " " << fila.mesa << " " << fila.azar);
        Juega(kNada, fila.caracter);
        Rivales({2, 3}, fila.mesa);
        Responde(kPrimera, 0, 10, fila.azar);
        EXPECT_EQ(Propuesta(), fila.puntos);
    }
}

TEST_F(EleccionDeApuesta, CuandoValenLosDosIgualarPasaAntesQueElFarol) {
    Juega(kNada, kAgresivo);
    Rivales({2, 3}, kMedio);
    Responde(kPrimera, 0, 10, 0.05);
    EXPECT_EQ(Propuesta(), 10);
    Rivales({2, 3}, kConservador);
    EXPECT_EQ(Propuesta(), 20) << "at a cautious table there is only the bluff";
}
