#include "games/common/trick_state.h"
#include "games/trick/card_rules.h"

#include <gtest/gtest.h>

#include "games/trick/choice_tute.h"
#include "tests/support/trick_hands.h"

using namespace prueba;

namespace {

struct ReglasTute : testing::Test {
    void SetUp() override {
        MesaDeBazas(kTute, 4);
        Pinta({kBastos, 4});
        bazas.Arrastre = true;
    }

    // The places of the seat's hand that the rules allow.
    static std::vector<int> Legales(Integer asiento) {
        TocaA(asiento);
        EligeCartaTute();
        std::vector<int> legales;
        for (int lugar = 1; lugar <= estado.NumCartas(asiento, 1); ++lugar) {
            if (CartaLegalTute(lugar))
                legales.push_back(lugar);
        }
        return legales;
    }
};

using Lugares = std::vector<int>;

} // namespace

TEST_F(ReglasTute, QuienSaleJuegaLoQueQuiere) {
    PonMano(2, {{kOros, 4}, {kBastos, kAs}, {kCopas, kRey}});
    EXPECT_EQ(Legales(2), (Lugares{1, 2, 3}));
}

TEST_F(ReglasTute, SinArrastreTodoVale) {
    bazas.Arrastre = false;
    EnMesa(1, {kOros, 7});
    PonMano(2, {{kOros, 4}, {kOros, kAs}, {kCopas, kRey}});
    EXPECT_EQ(Legales(2), (Lugares{1, 2, 3}));
}

TEST_F(ReglasTute, HayQueMontarSobreLaSalida) {
    EnMesa(1, {kOros, 7});
    PonMano(2, {{kOros, 4}, {kOros, kAs}, {kBastos, 2}, {kOros, kSota}});
    EXPECT_EQ(Legales(2), (Lugares{2, 4}));
}

TEST_F(ReglasTute, SinPoderMontarHayQueServir) {
    EnMesa(1, {kOros, kTres});
    PonMano(2, {{kOros, 4}, {kCopas, kAs}, {kBastos, kAs}, {kOros, kSota}});
    EXPECT_EQ(Legales(2), (Lugares{1, 4}));
}

TEST_F(ReglasTute, SinPaloHayQueFallarAunqueNoSeGane) {
    EnMesa(4, {kOros, 7});
    EnMesa(1, {kBastos, kAs});
    PonMano(2, {{kBastos, 2}, {kCopas, kAs}, {kBastos, kRey}});
    EXPECT_EQ(Legales(2), (Lugares{1, 3}));
}

TEST_F(ReglasTute, SinPaloNiTriunfosTodoVale) {
    EnMesa(1, {kOros, 7});
    PonMano(2, {{kEspadas, 2}, {kCopas, kAs}});
    EXPECT_EQ(Legales(2), (Lugares{1, 2}));
}

TEST_F(ReglasTute, BastaPasarLaSalidaAunqueOtraCartaSeaMayor) {
    EnMesa(4, {kOros, 5});
    EnMesa(1, {kOros, kAs});
    PonMano(2, {{kOros, 4}, {kOros, 6}, {kOros, kRey}});
    EXPECT_EQ(Legales(2), (Lugares{2, 3}));
}

// Lower than the card led, higher than a third card: free within the suit.
TEST_F(ReglasTute, QuienNoLlegaALaSalidaPeroPasaAOtraSirveLoQueQuiera) {
    EnMesa(4, {kOros, kTres});
    EnMesa(1, {kOros, 4});
    PonMano(2, {{kOros, 2}, {kOros, 7}, {kOros, kRey}, {kCopas, 2}});
    EXPECT_EQ(Legales(2), (Lugares{1, 2, 3}));
}

TEST_F(ReglasTute, TambienSeMontaALaPareja) {
    estado.ModalidadJuego = kDosParejas;
    EnMesa(4, {kOros, 7});
    PonMano(2, {{kOros, 4}, {kOros, kTres}});
    EXPECT_EQ(Legales(2), (Lugares{2}));
}

TEST_F(ReglasTute, AlTriunfoDeSalidaSeMontaOSeSirve) {
    EnMesa(1, {kBastos, kRey});
    PonMano(2, {{kBastos, 4}, {kOros, kAs}, {kBastos, 7}});
    EXPECT_EQ(Legales(2), (Lugares{1, 3}));
}

namespace {

struct Resolucion : testing::Test {
    void SetUp() override {
        MesaDeBazas(kBrisca, 4);
        Pinta({kBastos, 4});
    }
};

} // namespace

TEST_F(Resolucion, GanaLaMasAltaDelPaloDeSalida) {
    EnMesa(3, {kOros, kRey});
    EnMesa(4, {kOros, kTres});
    EnMesa(1, {kCopas, kAs});
    EnMesa(2, {kOros, 7});
    ResuelveBaza();
    EXPECT_EQ(estado.GanadorBaza, 4);
    EXPECT_EQ(bazas.TantosBaza, Currency{25});
}

TEST_F(Resolucion, ElTriunfoMasBajoGanaAlAs) {
    EnMesa(3, {kOros, kAs});
    EnMesa(4, {kBastos, 2});
    EnMesa(1, {kOros, kTres});
    EnMesa(2, {kEspadas, kAs});
    ResuelveBaza();
    EXPECT_EQ(estado.GanadorBaza, 4);
    EXPECT_EQ(bazas.TantosBaza, Currency{32});
}

TEST_F(Resolucion, TriunfoDeSalida) {
    EnMesa(1, {kBastos, 2});
    EnMesa(2, {kOros, kAs});
    EnMesa(3, {kBastos, 4});
    EnMesa(4, {kCopas, kAs});
    ResuelveBaza();
    EXPECT_EQ(estado.GanadorBaza, 3);
}

TEST_F(Resolucion, QuienNoHaJugadoNoCuenta) {
    EnMesa(2, {kOros, 2});
    EnMesa(4, {kCopas, kAs});
    ResuelveBaza();
    EXPECT_EQ(estado.GanadorBaza, 2);
    EXPECT_EQ(bazas.TantosBaza, Currency{11});
}
