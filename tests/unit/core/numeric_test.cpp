#include "core/numeric.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

TEST(Redondea, VaAlEnteroMasCercano) {
    EXPECT_EQ(Redondea(2.4), 2);
    EXPECT_EQ(Redondea(2.6), 3);
    EXPECT_EQ(Redondea(-2.6), -3);
    EXPECT_EQ(Redondea(7), 7);
}

TEST(Redondea, LasMitadesVanAlPar) {
    EXPECT_EQ(Redondea(0.5), 0);
    EXPECT_EQ(Redondea(1.5), 2);
    EXPECT_EQ(Redondea(2.5), 2);
    EXPECT_EQ(Redondea(-0.5), 0);
    EXPECT_EQ(Redondea(-1.5), -2);
    EXPECT_EQ(Redondea(-2.5), -2);
}

TEST(Redondea, LoQueNoCabeEn16BitsEsUnDesbordamiento) {
    EXPECT_EQ(Redondea(32767.4), 32767);
    EXPECT_EQ(Redondea(-32768.5), -32768);
    EXPECT_THROW(Redondea(32767.5), Desbordamiento);
    EXPECT_THROW(Redondea(-32769), Desbordamiento);
    EXPECT_THROW(Redondea(std::numeric_limits<double>::quiet_NaN()), Desbordamiento);
    EXPECT_THROW(Redondea(std::numeric_limits<double>::infinity()), Desbordamiento);
}

TEST(RedondeaCociente, VaAlEnteroMasCercanoYLasMitadesAlPar) {
    EXPECT_EQ(RedondeaCociente(7, 3), 2);
    EXPECT_EQ(RedondeaCociente(8, 3), 3);
    EXPECT_EQ(RedondeaCociente(45, 10), 4);
    EXPECT_EQ(RedondeaCociente(55, 10), 6);
    EXPECT_EQ(RedondeaCociente(0, 10), 0);
    EXPECT_EQ(RedondeaCociente(-5, 10), 0);
    EXPECT_EQ(RedondeaCociente(-15, 10), -2);
    EXPECT_EQ(RedondeaCociente(-26, 10), -3);
}

TEST(RedondeaCociente, LoQueNoCabeEn16BitsEsUnDesbordamiento) {
    EXPECT_EQ(RedondeaCociente(32767LL * 1'000'000, 1'000'000), 32767);
    EXPECT_THROW(RedondeaCociente(65535, 2), Desbordamiento);
}

TEST(ParteEntera, EsElMayorEnteroQueNoPasaDelNumero) {
    EXPECT_EQ(ParteEntera(2.99), 2);
    EXPECT_EQ(ParteEntera(-2.01), -3);
    EXPECT_EQ(ParteEntera(40000.7), 40000);
    EXPECT_THROW(ParteEntera(2147483648.0), Desbordamiento);
}

TEST(EnteroDe, DejaPasarLoQueCabe) {
    EXPECT_EQ(EnteroDe(-32768), -32768);
    EXPECT_EQ(EnteroDe(32767), 32767);
    EXPECT_THROW(EnteroDe(32768), Desbordamiento);
    EXPECT_THROW(EnteroDe(-32769), Desbordamiento);
}

TEST(RedondeaA, DejaLosDecimalesPedidos) {
    EXPECT_EQ(RedondeaA(1.23456, 2), 1.23);
    EXPECT_EQ(RedondeaA(1.23456, 4), 1.2346);
    EXPECT_EQ(RedondeaA(1.23456, 0), 1);
    EXPECT_EQ(RedondeaA(-7.77, 1), -7.8);
}

// 1.015 x 100 comes out a little below 101.5: the product may not decide.
TEST(RedondeaA, LasMitadesDecimalesVanAlPar) {
    EXPECT_EQ(RedondeaA(1.015, 2), 1.02);
    EXPECT_EQ(RedondeaA(1.005, 2), 1.00);
    EXPECT_EQ(RedondeaA(1.025, 2), 1.02);
    EXPECT_EQ(RedondeaA(2.675, 2), 2.68);
    EXPECT_EQ(RedondeaA(0.125, 2), 0.12);
    EXPECT_EQ(RedondeaA(0.35, 1), 0.4);
    EXPECT_EQ(RedondeaA(-1.015, 2), -1.02);
}

TEST(RedondeaA, ElVecinoDeUnaMitadNoEsUnaMitad) {
    EXPECT_EQ(RedondeaA(std::nextafter(1.025, 2), 2), 1.03);
    EXPECT_EQ(RedondeaA(std::nextafter(1.015, 0), 2), 1.01);
}

TEST(RedondeaA, UnNumeroInmensoQuedaComoEsta) {
    EXPECT_EQ(RedondeaA(1e17, 2), 1e17);
}

TEST(EnDecimal, UnNumeroSencilloValeLoQueDice) {
    EXPECT_NE(static_cast<double>(0.7F), 0.7);
    EXPECT_EQ(EnDecimal(0.7F), 0.7);
    EXPECT_EQ(EnDecimal(0.45F), 0.45);
    EXPECT_EQ(EnDecimal(0.3984375F), 0.3984375);
    EXPECT_EQ(EnDecimal(0), 0);
}

} // namespace
