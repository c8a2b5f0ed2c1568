// The order number, the name of a hand, and the tables of the deck.

#include "games/poker/combinations.h"
#include "games/poker/hand_text.h"
#include "games/poker/hand_value.h"

#include <gtest/gtest.h>

#include <optional>

#include "core/numeric.h"
#include "games/poker/hand_reading.h"
#include "tests/support/poker_hands.h"

using namespace prueba;

namespace {

constexpr Integer kJota = 11, kDama = 12, kReyFrances = 13;
const Carta kPrimerComodin{kComodin, 91}, kSegundoComodin{kComodin, 92};

struct NumeroDeOrden : testing::Test {
    void Baraja(int cartas, int comodines) {
        baraja_.emplace(static_cast<Integer>(14 - cartas / 4), static_cast<Integer>(comodines + 1));
    }
    static Long Vale(const std::vector<Carta>& cartas) {
        PonMano(1, cartas);
        AnalizaJugada(1);
        return ValorJugada(poker.MejorJugada(1), 1);
    }
    static std::string SeLlama(const std::vector<Carta>& cartas) {
        PonMano(1, cartas);
        AnalizaJugada(1);
        return TextoJugada(1, poker.MejorJugada(1));
    }

private:
    std::optional<BarajaDePoker> baraja_;
};

using TablasDePoker = NumeroDeOrden;
using TextoDeJugada = NumeroDeOrden;

} // namespace

TEST_F(NumeroDeOrden, DosParejasNaturalesIgualesEnOtrosPalosEmpatan) {
    Baraja(52, 1);
    EXPECT_EQ(Vale({{1, 9}, {2, 9}, {3, 2}, {4, 5}, {1, kReyFrances}}),
              Vale({{3, 9}, {4, 9}, {1, 2}, {2, 5}, {4, kReyFrances}}));
}

TEST_F(NumeroDeOrden, LaMismaParejaConComodinPierdePorUno) {
    Baraja(52, 1);
    const Long natural = Vale({{1, kReyFrances}, {2, kReyFrances}, {3, 2}, {4, 5}, {1, 9}});
    EXPECT_EQ(Vale({{1, kReyFrances}, kPrimerComodin, {3, 2}, {4, 5}, {1, 9}}), natural - 1);
}

TEST_F(NumeroDeOrden, UnaEscaleraNaturalGanaALaMismaConComodin) {
    Baraja(52, 1);
    EXPECT_GT(Vale({{1, 5}, {2, 6}, {3, 7}, {4, 8}, {1, 9}}),
              Vale({{1, 5}, {2, 6}, {3, 7}, {4, 8}, kPrimerComodin}));
}

// The first and the last hand without anything: 7 5 4 3 2 and A K Q J 9 in 1020 ways each.
TEST_F(NumeroDeOrden, LaCartaMayorVaDe1020EnMilVeinte) {
    Baraja(52, 0);
    EXPECT_EQ(Vale({{1, 7}, {2, 5}, {3, 4}, {4, 3}, {1, 2}}), 1020);
    EXPECT_EQ(Vale({{1, 1}, {2, kReyFrances}, {3, kDama}, {4, kJota}, {1, 9}}),
              poker.CuentaJugada(poker.CartaMayor));
}

TEST_F(NumeroDeOrden, LasFigurasSeOrdenanEntreSi) {
    Baraja(52, 0);
    EXPECT_LT(Vale({{1, kJota}, {2, kJota}, {3, kDama}, {4, kDama}, {1, kReyFrances}}),
              Vale({{1, 1}, {2, 1}, {3, kDama}, {4, kDama}, {1, kReyFrances}}));
}

TEST_F(NumeroDeOrden, ConDosComodinesUnTrioNoPierdeConLaMejorDoblePareja) {
    Baraja(52, 2);
    const Long doble = Vale({{1, 1}, {2, 1}, {3, kReyFrances}, {4, kReyFrances}, {1, 10}});
    const Long trio = Vale({{1, 2}, {2, 2}, {3, 3}, kPrimerComodin, kSegundoComodin});
    EXPECT_EQ(trio, doble + 1);
}

TEST_F(NumeroDeOrden, ConDosComodinesUnPokerNoPierdeConElMejorFull) {
    Baraja(52, 2);
    const Long full = Vale({{1, 1}, {2, 1}, {3, 1}, {4, kReyFrances}, {1, kReyFrances}});
    EXPECT_EQ(Vale({{1, 2}, {2, 2}, {3, 2}, kPrimerComodin, kSegundoComodin}), full + 1);
}

TEST_F(NumeroDeOrden, UnProyectoNoTieneNumero) {
    Baraja(52, 0);
    Vale({{1, 5}, {2, 6}, {3, 7}, {4, 8}, {1, kReyFrances}});
    EXPECT_EQ(ValorJugada(poker.ProyEscalera, 1), 0);
}

TEST_F(NumeroDeOrden, LasCombinacionesSonDe16Bits) {
    EXPECT_EQ(Combinaciones(48, 3), 17296);
    EXPECT_EQ(Combinaciones(5, 0), 1);
    EXPECT_EQ(Combinaciones(5, 5), 1);
    EXPECT_EQ(Combinaciones(5, 6), 0);
    EXPECT_EQ(Combinaciones(5, -1), 0);
    EXPECT_THROW(Combinaciones(52, 5), Desbordamiento);
}

TEST_F(TablasDePoker, La52TraeSusCuentas) {
    Baraja(52, 0);
    EXPECT_EQ(poker.TotalCombinaciones, 2598960);
    EXPECT_EQ(poker.CuentaJugada(poker.Figuras), 4032);
    EXPECT_EQ(poker.CuentaJugada(poker.Trio), 54144);
    EXPECT_EQ(poker.CuentaJugada(poker.ProyColor), 0);
    EXPECT_DOUBLE_EQ(poker.PorcJugada(poker.EscaleraColor), 40.0 / 2598960 * 100);
}

TEST_F(TablasDePoker, EnLasBarajasCortasCambianDosParesDeSitio) {
    Baraja(44, 0);
    EXPECT_EQ(poker.Trio, 10);
    EXPECT_EQ(poker.Figuras, 11);
    EXPECT_EQ(poker.Color, 13);
    EXPECT_EQ(poker.Full, 14);
    EXPECT_EQ(poker.NombreJugada(10), "Trio");
    Baraja(40, 0);
    EXPECT_EQ(poker.Trio, 11);
    EXPECT_EQ(poker.Figuras, 10);
    EXPECT_EQ(poker.Color, 14);
    EXPECT_EQ(poker.Full, 13);
    EXPECT_EQ(poker.NombreJugada(10), "Figuras     ");
    EXPECT_EQ(poker.NombreJugada(14), "Color       ");
}

TEST_F(TextoDeJugada, LosGruposVanEnPlural) {
    Baraja(52, 1);
    EXPECT_EQ(SeLlama({{1, 1}, {2, 1}, {3, 1}, {4, 6}, {1, 6}}), "Full de Ases y Seises");
    EXPECT_EQ(SeLlama({{1, 9}, {2, 9}, {3, 4}, {4, 4}, {1, 6}}),
              "Doble Pareja de Nueves y Cuatros");
    EXPECT_EQ(SeLlama({{1, 9}, {2, 9}, {3, 4}, {4, 3}, kPrimerComodin}), "Trio de Nueves");
}

TEST_F(TextoDeJugada, LoDemasSeLlamaPorSuCartaMasAlta) {
    Baraja(52, 0);
    EXPECT_EQ(SeLlama({{1, 2}, {2, 5}, {3, 8}, {4, kDama}, {1, 10}}), "Carta mayor a la Dama");
    EXPECT_EQ(SeLlama({{1, 2}, {1, 5}, {1, 8}, {1, kReyFrances}, {1, 10}}), "Color al Rey");
    EXPECT_EQ(SeLlama({{1, 1}, {2, 2}, {3, 3}, {4, 4}, {1, 5}}), "Escalera al Cinco");
}

TEST_F(TextoDeJugada, UnComodinEnLoMasAltoDeLaEscaleraSigueALaSegunda) {
    Baraja(52, 1);
    EXPECT_EQ(SeLlama({{1, 7}, {2, 8}, {3, 9}, {4, 10}, kPrimerComodin}), "Escalera a la Jota");
    EXPECT_EQ(SeLlama({{1, 10}, {2, kJota}, {3, kDama}, {4, kReyFrances}, kPrimerComodin}),
              "Escalera al As");
}

TEST_F(TextoDeJugada, FueraDeLasEscalerasElComodinDejaSuSitioALaSegunda) {
    Baraja(52, 1);
    EXPECT_EQ(SeLlama({{1, kJota}, {2, kDama}, {3, kDama}, {4, kReyFrances}, kPrimerComodin}),
              "Figuras al Rey");
}

TEST_F(TextoDeJugada, LosBlancosDeLosNombresCortosNoSeVen) {
    Baraja(40, 0);
    EXPECT_EQ(SeLlama({{1, 1}, {2, 1}, {3, 1}, {4, 6}, {1, 8}}), "Trio de Ases");
}
