// The numbers of Normas: ranges, arrows, typed text.

#include "core/default_settings.h"
#include "forms/spin.h"

#include <gtest/gtest.h>

#include "core/game_state.h"

namespace {

constexpr int kResto = 21, kSalida = 22, kApuesta = 23, kLimite = 24;

class SpinTest : public testing::Test {
protected:
    void SetUp() override {
        estado = {};
        PonValoresPorDefecto();
    }
};

void CompruebaLimites(int indice, Integer minimo, Integer maximo, Integer paso, Integer defecto) {
    LimitesSpin(indice);
    EXPECT_EQ(spin.minimo, minimo);
    EXPECT_EQ(spin.maximo, maximo);
    EXPECT_EQ(spin.paso, paso);
    EXPECT_EQ(spin.valor, defecto);
}

TEST_F(SpinTest, RangeStepAndDefaultOfEach) {
    CompruebaLimites(kResto, 5, 995, 5, 200);
    CompruebaLimites(kSalida, 0, 999, 1, 5);
    CompruebaLimites(kApuesta, 5, 995, 5, 25);
    CompruebaLimites(kLimite, 1, 999, 1, 3);
}

TEST_F(SpinTest, TheWordsAboveEach) {
    EXPECT_STREQ(RotuloSpin(kResto), "Resto inicial...:");
    EXPECT_STREQ(RotuloSpin(kSalida), "Apuesta de salida...:");
    EXPECT_STREQ(RotuloSpin(kApuesta), "Apuesta máxima...:");
    EXPECT_STREQ(RotuloSpin(kLimite), "Límite de la partida...:");
}

TEST_F(SpinTest, TheWorkingValueGoesBackToItsSetting) {
    LimitesSpin(kLimite);
    spin.valor = 12;
    EXPECT_EQ(estado.LimitePartida, 3);
    ActualizaSpin(kLimite);
    EXPECT_EQ(estado.LimitePartida, 12);
}

TEST_F(SpinTest, AnIndexThatIsNoneDoesNothing) {
    LimitesSpin(kLimite);
    const EstadoJuego antes = estado;
    LimitesSpin(25);
    EXPECT_EQ(spin.valor, 3);
    ActualizaSpin(20);
    EXPECT_FALSE(PasoSpin(0, true));
    EXPECT_EQ(estado, antes);
}

TEST_F(SpinTest, FromATyped7TheUpArrowGives10AndTheDownArrowGives0) {
    estado.RestoInicial = 7;
    EXPECT_TRUE(PasoSpin(kResto, true));
    EXPECT_EQ(estado.RestoInicial, 10);
    estado.RestoInicial = 7;
    EXPECT_TRUE(PasoSpin(kResto, false));
    EXPECT_EQ(estado.RestoInicial, 0);
    EncajaSpin(kResto);
    EXPECT_EQ(estado.RestoInicial, 5);
}

TEST_F(SpinTest, ArrowsStopAtTheExtremes) {
    estado.RestoInicial = 995;
    EXPECT_FALSE(PasoSpin(kResto, true));
    EXPECT_EQ(estado.RestoInicial, 995);
    estado.RestoInicial = 994;
    EXPECT_TRUE(PasoSpin(kResto, true));
    EXPECT_EQ(estado.RestoInicial, 995);
    estado.RestoInicial = 5;
    EXPECT_FALSE(PasoSpin(kResto, false));
    estado.RestoInicial = 3; // typed, below the minimum
    EXPECT_FALSE(PasoSpin(kResto, false));
    EXPECT_EQ(estado.RestoInicial, 3);
    estado.ApuestaSalida = 0;
    EXPECT_FALSE(PasoSpin(kSalida, false));
}

TEST_F(SpinTest, WhatIsNoNumberReadsAs0) {
    for (const char* texto : {"", " ", "abc", "-5", "+5", "12.5", "1,000", "12 3", "1e2", "0x10"})
        EXPECT_EQ(NumeroTecleado(texto, 999), 0) << texto;
    EXPECT_EQ(NumeroTecleado("12", 999), 12);
    EXPECT_EQ(NumeroTecleado(" 12 ", 999), 12);
    EXPECT_EQ(NumeroTecleado("007", 999), 7);
}

TEST_F(SpinTest, ANumberOfAnyLengthIsReadUpToTheMaximum) {
    EXPECT_EQ(NumeroTecleado("1000", 999), 999);
    EXPECT_EQ(NumeroTecleado("99999999999999999999999999", 999), 999);
}

} // namespace
