#include "core/random.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <stdexcept>

namespace {

constexpr double kCasiUno = 0x1.fffffffffffffp-1; // the last number below 1

std::vector<double> Sorteos(int n) {
    std::vector<double> sorteos(static_cast<std::size_t>(n));
    std::generate(sorteos.begin(), sorteos.end(), Azar);
    return sorteos;
}

class AzarTest : public testing::Test {
protected:
    void SetUp() override { VaciaColaAzar(); }
    void TearDown() override { VaciaColaAzar(); }
};

TEST_F(AzarTest, LaMismaSemillaDaLosMismosNumeros) {
    FijaSemilla(7);
    const auto una = Sorteos(20);
    FijaSemilla(7);
    EXPECT_EQ(Sorteos(20), una);
    FijaSemilla(8);
    EXPECT_NE(Sorteos(20), una);
}

TEST_F(AzarTest, ConLaSemillaFijaElRelojNoSiembra) {
    FijaSemilla(7);
    const auto una = Sorteos(5);
    FijaSemilla(7);
    SiembraDelReloj(123456);
    EXPECT_EQ(Sorteos(5), una);
}

TEST_F(AzarTest, TodosCaenEntreCeroYUnoYPorIgual) {
    FijaSemilla(1);
    std::array<int, 10> cajas{};
    for (double r : Sorteos(10000)) {
        ASSERT_GE(r, 0);
        ASSERT_LT(r, 1);
        ++cajas[static_cast<std::size_t>(r * 10)];
    }
    for (int caja : cajas)
        EXPECT_NEAR(caja, 1000, 150);
}

// The nearest number of single precision is 1, which is no number of a turn.
TEST_F(AzarTest, ElNumeroDeUnTurnoNoLlegaAUno) {
    EncolaAzar({kCasiUno, 0.25, 0});
    const float casi_uno = AzarDeTurno();
    EXPECT_LT(casi_uno, 1.0F);
    EXPECT_GT(casi_uno, 0.999999F);
    EXPECT_EQ(AzarDeTurno(), 0.25F);
    EXPECT_EQ(AzarDeTurno(), 0.0F);
}

TEST_F(AzarTest, LaColaVaPorDelanteYEnSuOrden) {
    FijaSemilla(7);
    const double siguiente = Azar();
    FijaSemilla(7);
    EncolaAzar({0.25, 0.5});
    EncolaAzar({0});
    EXPECT_EQ(Sorteos(4), (std::vector<double>{0.25, 0.5, 0, siguiente}));
}

TEST_F(AzarTest, SembrarNoVaciaLaCola) {
    EncolaAzar({0.25});
    FijaSemilla(3);
    SiembraDelReloj(9);
    EXPECT_EQ(Azar(), 0.25);
}

TEST_F(AzarTest, VaciarLaColaVuelveAlGenerador) {
    FijaSemilla(7);
    const double siguiente = Azar();
    FijaSemilla(7);
    EncolaAzar({0.25});
    VaciaColaAzar();
    EXPECT_EQ(Azar(), siguiente);
}

TEST_F(AzarTest, UnNumeroFueraDeSuSitioNoEncolaNinguno) {
    FijaSemilla(7);
    const double siguiente = Azar();
    for (double malo : {1.0, -0.1, 2.0}) {
        FijaSemilla(7);
        EXPECT_THROW(EncolaAzar({0.5, malo}), std::invalid_argument);
        EXPECT_EQ(Azar(), siguiente);
    }
}

TEST_F(AzarTest, EntreUnoYNCadaParteIgualDelIntervalo) {
    EncolaAzar({0, 0.2499, 0.25, 0.5, 0.75});
    EXPECT_EQ(AzarEntre(4), 1);
    EXPECT_EQ(AzarEntre(4), 1);
    EXPECT_EQ(AzarEntre(4), 2);
    EXPECT_EQ(AzarEntre(4), 3);
    EXPECT_EQ(AzarEntre(4), 4);
}

TEST_F(AzarTest, ElUltimoNumeroAntesDeUnoNuncaPasaDeN) {
    for (int n = 1; n <= 400; ++n) {
        EncolaAzar({kCasiUno});
        ASSERT_EQ(AzarEntre(n), n);
    }
}

} // namespace
