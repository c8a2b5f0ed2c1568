#include "core/currency.h"

#include <gtest/gtest.h>

#include "core/numeric.h"

namespace {

const Currency kMedio = Currency::DeDiezmilesimas(5000);

TEST(Moneda, UnEnteroSonSusDiezmilesimas) {
    EXPECT_EQ(Currency(11).Diezmilesimas(), 110000);
    EXPECT_EQ(Currency(-3).Diezmilesimas(), -30000);
    EXPECT_EQ(Currency().Diezmilesimas(), 0);
}

TEST(Moneda, SumaYRestaExactas) {
    Currency tantos = 7;
    tantos += kMedio;
    EXPECT_EQ(tantos, Currency::DeDiezmilesimas(75000));
    tantos -= 10;
    EXPECT_EQ(tantos, Currency::DeDiezmilesimas(-25000));
    EXPECT_EQ(kMedio + kMedio, Currency(1));
    EXPECT_EQ(Currency(1) - kMedio, kMedio);
    EXPECT_EQ(tantos.Real(), -2.5);
}

TEST(Moneda, SeComparaPorSuValor) {
    EXPECT_LT(kMedio, Currency(1));
    EXPECT_GT(Currency(0), Currency(-1));
    EXPECT_EQ(Currency::DeReal(0.5), kMedio);
}

TEST(Moneda, DeUnRealTomaCuatroDecimalesConLaMitadAlPar) {
    EXPECT_EQ(Currency::DeReal(1.23456).Diezmilesimas(), 12346);
    EXPECT_EQ(Currency::DeReal(0.00005).Diezmilesimas(), 0);
    EXPECT_EQ(Currency::DeReal(0.00015).Diezmilesimas(), 2);
    EXPECT_EQ(Currency::DeReal(-0.00015).Diezmilesimas(), -2);
    EXPECT_EQ(Currency::DeReal(2.00025).Diezmilesimas(), 20002);
}

TEST(Moneda, UnRealQueNoCabeEsUnDesbordamiento) {
    EXPECT_THROW(Currency::DeReal(1e15), Desbordamiento);
    EXPECT_EQ(Currency::DeReal(1e14).Diezmilesimas(), 1'000'000'000'000'000'000);
}

} // namespace
