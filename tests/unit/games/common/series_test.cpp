#include "games/common/series.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "core/game_state.h"

namespace {

constexpr Integer kSota = 10, kCaballo = 11, kRey = 12, kReyFrances = 13;

void PonValoresDeBlackJack() {
    for (int valor = 1; valor <= 13; ++valor)
        estado.ValorCarta(valor) = std::min(valor, 10);
}

void PonValoresDeSieteYMedia() {
    for (int valor = 1; valor <= 7; ++valor)
        estado.ValorCarta(valor) = valor;
    for (Integer figura : {kSota, kCaballo, kRey})
        estado.ValorCarta(figura) = Currency::DeDiezmilesimas(5000);
}

void PonSerie(int asiento, int serie, const std::vector<Integer>& valores) {
    estado.NumCartas(asiento, serie) = static_cast<Integer>(valores.size());
    for (std::size_t i = 0; i < valores.size(); ++i) {
        estado.Mano(asiento, serie, i + 1, kPalo) = kCopas;
        estado.Mano(asiento, serie, i + 1, kValor) = valores[i];
    }
}

class BlackJackSeries : public testing::Test {
protected:
    void SetUp() override {
        estado = {};
        estado.JuegoActivo = kBlackJack;
        PonValoresDeBlackJack();
        series = {true, true};
    }
};

class SieteYMediaSeries : public testing::Test {
protected:
    void SetUp() override {
        estado = {};
        estado.JuegoActivo = kSieteYMedia;
        PonValoresDeSieteYMedia();
        series = {true, true};
    }
};

TEST_F(BlackJackSeries, UnaSerieVaciaDaCero) {
    EXPECT_EQ(PuntosSerie(1, 1), 0);
    EXPECT_FALSE(series.ManoBlanda);
}

TEST_F(BlackJackSeries, AsYReySonVeintiunoBlando) {
    PonSerie(3, 1, {kAs, kReyFrances});
    EXPECT_EQ(PuntosSerie(3, 1), 21);
    EXPECT_TRUE(series.ManoBlanda);
    EXPECT_FALSE(series.ManoDura);
}

TEST_F(BlackJackSeries, AsNueveYCincoSonQuinceDuro) {
    PonSerie(3, 1, {kAs, 9, 5});
    EXPECT_EQ(PuntosSerie(3, 1), 15);
    EXPECT_FALSE(series.ManoBlanda);
    EXPECT_TRUE(series.ManoDura);
}

TEST_F(BlackJackSeries, DeDosAsesSoloUnoCuentaOnce) {
    PonSerie(1, 1, {kAs, kAs});
    EXPECT_EQ(PuntosSerie(1, 1), 12);
    EXPECT_TRUE(series.ManoBlanda);
}

TEST_F(BlackJackSeries, ElAsCuentaOnceHastaLaSumaDeOnce) {
    PonSerie(1, 1, {5, 5, kAs});
    EXPECT_EQ(PuntosSerie(1, 1), 21);
    EXPECT_TRUE(series.ManoBlanda);
    PonSerie(1, 1, {5, 6, kAs});
    EXPECT_EQ(PuntosSerie(1, 1), 12);
    EXPECT_TRUE(series.ManoDura);
}

TEST_F(BlackJackSeries, SinAsEsDuraAunqueSePase) {
    PonSerie(2, 1, {kReyFrances, 9, 5});
    EXPECT_EQ(PuntosSerie(2, 1), 24);
    EXPECT_TRUE(series.ManoDura);
}

TEST_F(BlackJackSeries, CuentaLaSeriePedidaYNoLasOtras) {
    PonSerie(4, 1, {10, 10});
    PonSerie(4, 3, {10, 2});
    EXPECT_EQ(PuntosSerie(4, 3), 12);
    EXPECT_EQ(PuntosSerie(4, 1), 20);
    EXPECT_EQ(PuntosSerie(4, 2), 0);
}

TEST_F(SieteYMediaSeries, LasFigurasValenMediaYElAsUno) {
    PonSerie(1, 1, {7, kRey});
    EXPECT_EQ(PuntosSerie(1, 1), 7.5F);
    PonSerie(1, 1, {kAs, kSota, kCaballo});
    EXPECT_EQ(PuntosSerie(1, 1), 2);
}

TEST_F(SieteYMediaSeries, NuncaHayManoBlandaNiDura) {
    PonSerie(1, 1, {kAs, 5});
    EXPECT_EQ(PuntosSerie(1, 1), 6);
    EXPECT_FALSE(series.ManoBlanda);
    EXPECT_FALSE(series.ManoDura);
}

} // namespace
