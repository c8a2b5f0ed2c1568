#include "betting/chips.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <vector>

#include "betting/bet_state.h"
#include "core/game_state.h"
#include "core/numeric.h"

namespace {

using testing::ElementsAre;

// The six counts, from the chips of one point to those of fifty.
std::vector<int> Fichas(const Tabla<Integer, 6>& tabla) {
    std::vector<int> fichas;
    for (int d = 1; d <= 6; ++d)
        fichas.push_back(tabla(d));
    return fichas;
}

std::vector<int> FichasDe(int asiento) {
    std::vector<int> fichas;
    for (int d = 1; d <= 6; ++d)
        fichas.push_back(apuestas.Fichas(asiento, d));
    return fichas;
}

int Suma(const std::vector<int>& fichas) {
    constexpr std::array kPuntos{1, 2, 5, 10, 20, 50};
    int suma = 0;
    for (std::size_t i = 0; i < kPuntos.size(); ++i)
        suma += fichas[i] * kPuntos[i];
    return suma;
}

class FichasTest : public testing::Test {
protected:
    void SetUp() override {
        estado = {};
        apuestas = {};
    }
};

TEST_F(FichasTest, ElRestoSumaCadaFichaPorSuValor) {
    const std::array<Integer, 7> tiene{0, 3, 1, 2, 0, 4, 1};
    for (int d = 1; d <= 6; ++d)
        apuestas.Fichas(2, d) = tiene[static_cast<std::size_t>(d)];
    EXPECT_EQ(RestoDe(2), 3 + 2 + 10 + 80 + 50);
    EXPECT_EQ(RestoDe(1), 0);
}

TEST_F(FichasTest, ElRestoDeCeroEsElBote) {
    apuestas.Fichas(kBote, 6) = 2;
    apuestas.Fichas(4, 6) = 1;
    EXPECT_EQ(RestoDe(kBote), 100);
}

TEST_F(FichasTest, UnRestoDeMasDe16BitsEsUnDesbordamiento) {
    apuestas.Fichas(3, 6) = 700;
    EXPECT_THROW(RestoDe(3), Desbordamiento);
}

TEST_F(FichasTest, LaApuestaTotalSumaSoloLasFases2y3y5) {
    for (int fase = 1; fase <= 5; ++fase)
        apuestas.Apuesta(1, 2, fase) = static_cast<Integer>(fase * 10);
    EXPECT_EQ(ApuestaTotal(1, 2), 20 + 30 + 50);
    EXPECT_EQ(ApuestaTotal(1, 1), 0);
}

TEST_F(FichasTest, DesglosaDaLasMenosFichasPosibles) {
    Desglosa(100);
    EXPECT_THAT(Fichas(apuestas.DesgloseFichas), ElementsAre(0, 0, 0, 0, 0, 2));
    Desglosa(99);
    EXPECT_THAT(Fichas(apuestas.DesgloseFichas), ElementsAre(0, 2, 1, 0, 2, 1));
    Desglosa(0);
    EXPECT_THAT(Fichas(apuestas.DesgloseFichas), ElementsAre(0, 0, 0, 0, 0, 0));
}

TEST_F(FichasTest, DesglosaNoTocaLasFichasDeNadie) {
    const EstadoJuego antes = estado;
    Desglosa(68);
    EXPECT_TRUE(estado == antes);
}

TEST_F(FichasTest, CienPuntosNuncaSonDosFichasDeCincuenta) {
    AsignarResto(4, 100);
    EXPECT_THAT(FichasDe(4), ElementsAre(1, 2, 1, 2, 1, 1));
}

TEST_F(FichasTest, TresPuntosSonUnaDe2YUnaDe1) {
    AsignarResto(1, 3);
    EXPECT_THAT(FichasDe(1), ElementsAre(1, 1, 0, 0, 0, 0));
}

TEST_F(FichasTest, CincuentaPuntosNoSonUnaFichaDe50) {
    AsignarResto(1, 50);
    EXPECT_THAT(FichasDe(1), ElementsAre(1, 2, 1, 2, 1, 0));
}

TEST_F(FichasTest, SumarAlRestoReagrupaElMonton) {
    AsignarResto(2, 98);
    SumaAlResto(2, 2);
    EXPECT_THAT(FichasDe(2), ElementsAre(1, 2, 1, 2, 1, 1));
    SumaAlResto(2, -97);
    EXPECT_THAT(FichasDe(2), ElementsAre(1, 1, 0, 0, 0, 0));
}

TEST_F(FichasTest, CadaFichaTieneSuValorYOtraClaseEsUnError) {
    constexpr std::array kPuntos{1, 2, 5, 10, 20, 50};
    for (int d = 1; d <= kDenominaciones; ++d)
        EXPECT_EQ(ValorDe(d), kPuntos[static_cast<std::size_t>(d - 1)]);
    EXPECT_THROW(ValorDe(0), IndiceFuera);
    EXPECT_THROW(ValorDe(7), IndiceFuera);
}

TEST_F(FichasTest, AsignarRestoRompeUnaFichaSoloSiFaltanLasMenores) {
    AsignarResto(1, 88); // one of each
    EXPECT_THAT(FichasDe(1), ElementsAre(1, 1, 1, 1, 1, 1));
    AsignarResto(1, 87);
    EXPECT_THAT(FichasDe(1), ElementsAre(1, 3, 2, 1, 3, 0));
    AsignarResto(1, 5);
    EXPECT_THAT(FichasDe(1), ElementsAre(1, 2, 0, 0, 0, 0));
    AsignarResto(1, 1);
    EXPECT_THAT(FichasDe(1), ElementsAre(1, 0, 0, 0, 0, 0));
}

TEST_F(FichasTest, AsignarRestoBorraLoQueHabiaYSoloEnEseAsiento) {
    AsignarResto(2, 340);
    AsignarResto(3, 78);
    AsignarResto(2, 4);
    EXPECT_THAT(FichasDe(2), ElementsAre(2, 1, 0, 0, 0, 0));
    EXPECT_THAT(FichasDe(3), ElementsAre(1, 1, 1, 1, 3, 0));
}

TEST_F(FichasTest, CualquierRestoEsExactoYDejaTodasLasMenoresALaMano) {
    for (int cantidad = 0; cantidad <= 4000; ++cantidad) {
        AsignarResto(1, static_cast<Integer>(cantidad));
        const std::vector<int> fichas = FichasDe(1);
        ASSERT_EQ(RestoDe(1), cantidad);
        ASSERT_EQ(Suma(fichas), cantidad);
        const auto mayor =
            std::find_if(fichas.rbegin(), fichas.rend(), [](int n) { return n > 0; });
        ASSERT_EQ(std::count(mayor, fichas.rend(), 0), 0) << cantidad;
    }
}

TEST_F(FichasTest, DesglosaYAsignarRestoSumanLoMismo) {
    for (int cantidad : {0, 3, 27, 51, 199, 2893, 32767}) {
        Desglosa(static_cast<Integer>(cantidad));
        EXPECT_EQ(Suma(Fichas(apuestas.DesgloseFichas)), cantidad);
        EXPECT_EQ(Suma(Fichas(FichasDeResto(static_cast<Integer>(cantidad)))), cantidad);
    }
}

TEST_F(FichasTest, UnAsientoQueNoEstaEsUnError) {
    EXPECT_THROW(RestoDe(5), IndiceFuera);
    EXPECT_THROW(AsignarResto(-1, 10), IndiceFuera);
    EXPECT_THROW(ApuestaTotal(1, 5), IndiceFuera);
}

} // namespace
