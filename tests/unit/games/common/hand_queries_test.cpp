#include "games/common/hand_queries.h"
#include "games/common/trick_state.h"

#include <gtest/gtest.h>

#include "tests/support/trick_hands.h"

using namespace prueba;

namespace {

struct ConsultasMano : testing::Test {
    void SetUp() override { MesaDeBazas(kTute, 4); }
};

const std::vector<Carta> kCuatroReyes = {
    {kOros, kRey}, {kCopas, kRey}, {kEspadas, kRey}, {kBastos, kRey}};
const std::vector<Carta> kCuatroCaballos = {
    {kOros, kCaballo}, {kCopas, kCaballo}, {kEspadas, kCaballo}, {kBastos, kCaballo}};

std::vector<Carta> Junta(std::vector<Carta> una, const std::vector<Carta>& otra) {
    una.insert(una.end(), otra.begin(), otra.end());
    return una;
}

} // namespace

TEST_F(ConsultasMano, BuscaCartaDejaElLugarDeLaCarta) {
    PonMano(3, {{kCopas, 4}, {kOros, kAs}, {kBastos, kSota}});
    EXPECT_TRUE(BuscaCarta(3, kBastos, kSota));
    EXPECT_EQ(bazas.LugarCarta, 3);
    EXPECT_TRUE(BuscaCarta(3, kCopas, 4));
    EXPECT_EQ(bazas.LugarCarta, 1);
}

TEST_F(ConsultasMano, BuscaCartaQueElAsientoNoTiene) {
    PonMano(3, {{kCopas, 4}, {kOros, kAs}});
    PonMano(2, {{kCopas, kAs}});
    EXPECT_FALSE(BuscaCarta(3, kCopas, kAs));
    EXPECT_EQ(bazas.LugarCarta, 0);
    EXPECT_FALSE(BuscaCarta(3, kSinCarta, 0));
    EXPECT_FALSE(BuscaCarta(1, kCopas, kAs));
}

TEST_F(ConsultasMano, CuentaPaloSoloLasDelAsientoYDelPalo) {
    PonMano(3, {{kCopas, 4}, {kOros, kAs}, {kCopas, kRey}});
    PonMano(2, {{kCopas, kAs}, {kBastos, 2}});
    EXPECT_EQ(CuentaPalo(3, kCopas), 2);
    EXPECT_EQ(CuentaPalo(3, kOros), 1);
    EXPECT_EQ(CuentaPalo(3, kBastos), 0);
    EXPECT_EQ(CuentaPalo(3, kSinCarta), 0);
    EXPECT_EQ(CuentaPalo(1, kCopas), 0);
}

TEST_F(ConsultasMano, UnHuecoEnLaManoNoEscondeLoQueSigue) {
    PonMano(3, {{kCopas, 4}, {kOros, kAs}, {kCopas, kRey}});
    estado.Mano(3, 1, 2, kPalo) = kSinCarta;
    estado.Mano(3, 1, 2, kValor) = 0;
    estado.NumCartas(3, 1) = 2;
    EXPECT_EQ(CuentaPalo(3, kCopas), 2);
    EXPECT_TRUE(BuscaCarta(3, kCopas, kRey));
    EXPECT_EQ(bazas.LugarCarta, 3);
}

TEST_F(ConsultasMano, ReyesYCaballosDeLosCuatroPalosDanReyes) {
    PonMano(1, Junta(kCuatroCaballos, kCuatroReyes));
    ExaminaMano(1);
    EXPECT_EQ(bazas.TuteEnMano, kRey);
    EXPECT_TRUE(bazas.HayCante);
}

TEST_F(ConsultasMano, CuatroCaballosDanCaballos) {
    PonMano(1, Junta({{kOros, kAs}}, kCuatroCaballos));
    ExaminaMano(1);
    EXPECT_EQ(bazas.TuteEnMano, kCaballo);
    EXPECT_FALSE(bazas.HayCante);
}

TEST_F(ConsultasMano, TresReyesNoSonTute) {
    PonMano(1, {{kOros, kRey}, {kCopas, kRey}, {kBastos, kRey}});
    ExaminaMano(1);
    EXPECT_EQ(bazas.TuteEnMano, 0);
}

TEST_F(ConsultasMano, CaballoYReyDeUnPaloSeCantan) {
    PonMano(2, {{kEspadas, kRey}, {kOros, 7}, {kEspadas, kCaballo}, {kCopas, kRey}});
    ExaminaMano(2);
    EXPECT_TRUE(bazas.HayCante);
    EXPECT_TRUE(bazas.PaloCantable(kEspadas));
    EXPECT_FALSE(bazas.PaloCantable(kCopas));
    EXPECT_FALSE(bazas.PaloCantable(kOros));
}

TEST_F(ConsultasMano, PaloYaCantadoPorCualquieraNoSeCanta) {
    PonMano(2, {{kEspadas, kRey}, {kEspadas, kCaballo}, {kOros, kRey}, {kOros, kCaballo}});
    bazas.PaloCantado(kEspadas) = 4;
    ExaminaMano(2);
    EXPECT_FALSE(bazas.PaloCantable(kEspadas));
    EXPECT_TRUE(bazas.PaloCantable(kOros));
    bazas.PaloCantado(kOros) = 2;
    ExaminaMano(2);
    EXPECT_FALSE(bazas.PaloCantable(kOros));
    EXPECT_FALSE(bazas.HayCante);
}

TEST_F(ConsultasMano, CadaExamenOlvidaElAnterior) {
    PonMano(1, Junta(kCuatroCaballos, kCuatroReyes));
    PonMano(2, {{kOros, 5}});
    ExaminaMano(1);
    ExaminaMano(2);
    EXPECT_EQ(bazas.TuteEnMano, 0);
    EXPECT_FALSE(bazas.HayCante);
    EXPECT_EQ(bazas.MapaMano(kOros, kRey), 0);
    EXPECT_EQ(bazas.MapaMano(kOros, 5), 1);
}

TEST_F(ConsultasMano, PotenciaPorPalo) {
    estado.PaloTriunfo = kBastos;
    bazas.PaloSalida = kCopas;
    EXPECT_EQ(PotenciaCarta(kOros, kAs), 10);
    EXPECT_EQ(PotenciaCarta(kCopas, 2), 11);
    EXPECT_EQ(PotenciaCarta(kBastos, 2), 21);
    EXPECT_EQ(PotenciaCarta(kBastos, kAs), 30);
}

TEST_F(ConsultasMano, TriunfoDeSalidaCuentaSoloComoTriunfo) {
    estado.PaloTriunfo = kCopas;
    bazas.PaloSalida = kCopas;
    EXPECT_EQ(PotenciaCarta(kCopas, kTres), 29);
}
