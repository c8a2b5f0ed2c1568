// What a serie of Siete y media counts.

#include "games/sieteymedia/sieteymedia_serie.h"

#include <gtest/gtest.h>

#include "tests/support/bank_table.h"

using namespace prueba;

namespace {

struct SerieSiete : testing::Test {
    void SetUp() override { MesaDeBanca(kSieteYMedia); }
};

} // namespace

TEST_F(SerieSiete, LoQueVenTodosSonLasCartasDescubiertas) {
    PonSerieTapada(3, 1, {{kOros, 7}, {kCopas, kSota}, {kCopas, 3}});
    EXPECT_EQ(PuntosDescubiertos(3, 1), 3.5F);
    estado.Mano(3, 1, 1, kCara) = kDescubierta; // covered, and its holder sees it
    EXPECT_EQ(PuntosDescubiertos(3, 1), 10.5F);
}

TEST_F(SerieSiete, EstaCantadaQuienLaTieneDescubierta) {
    PonSerieTapada(3, 1, {{kOros, 7}, {kCopas, kSota}});
    EXPECT_TRUE(EsSieteYMedia(3, 1));
    EXPECT_FALSE(EstaCantada(3, 1));
    PonSerie(3, 1, {{kOros, 7}, {kCopas, kSota}});
    EXPECT_TRUE(EstaCantada(3, 1));
}

TEST_F(SerieSiete, SePasaLaQueCuentaMasDeSieteYMedia) {
    PonSerie(3, 1, {{kOros, 7}, {kCopas, kSota}});
    EXPECT_FALSE(SePasa(3, 1));
    PonSerie(3, 1, {{kOros, 7}, {kCopas, kAs}});
    EXPECT_TRUE(SePasa(3, 1));
    EXPECT_FALSE(EsSieteYMedia(3, 1));
}
