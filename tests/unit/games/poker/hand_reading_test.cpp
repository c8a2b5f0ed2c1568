// What a hand of five is: categories, draws and their cards.

#include "games/poker/hand_reading.h"

#include <gtest/gtest.h>

#include <optional>

#include "games/poker/hand_value.h"
#include "tests/support/poker_hands.h"

using namespace prueba;

namespace {

constexpr Integer kJota = 11, kDama = 12, kReyFrances = 13;
const Carta kPrimerComodin{kComodin, 91}, kSegundoComodin{kComodin, 92};

struct LecturaDeMano : testing::Test {
    // So many cards, and jokers beside them.
    void Baraja(int cartas, int comodines) {
        baraja_.emplace(static_cast<Integer>(14 - cartas / 4), static_cast<Integer>(comodines + 1));
    }
    static void Lee(const std::vector<Carta>& cartas) {
        PonMano(1, cartas);
        AnalizaJugada(1);
    }
    static Integer Mejor() { return poker.MejorJugada(1); }
    static bool Tiene(Integer categoria) { return poker.Jugadas(1, categoria).Activa != 0; }
    static const RegistroJugada& De(Integer categoria) { return poker.Jugadas(1, categoria); }
    static std::vector<int> Cartas(Integer categoria) {
        std::vector<int> cartas;
        for (int i = 1; i <= 5; ++i)
            cartas.push_back(De(categoria).Cartas(i));
        return cartas;
    }

private:
    std::optional<BarajaDePoker> baraja_;
};

using Valores = std::vector<int>;

} // namespace

TEST_F(LecturaDeMano, TresFigurasIgualesYDosMasSonFigurasCon52CartasYTrioCon40) {
    const std::vector<Carta> mano{
        {1, kReyFrances}, {2, kReyFrances}, {3, kReyFrances}, {1, 1}, {2, kJota}};
    Baraja(52, 0);
    Lee(mano);
    EXPECT_EQ(Mejor(), poker.Figuras);
    EXPECT_TRUE(Tiene(poker.Trio));
    Baraja(40, 0);
    Lee(mano);
    EXPECT_EQ(Mejor(), poker.Trio);
    EXPECT_FALSE(Tiene(poker.Figuras));
}

TEST_F(LecturaDeMano, JotaDamaReyAsYUnComodinSonEscaleraYElComodinHaceDeDiez) {
    Baraja(52, 1);
    Lee({{1, kJota}, {2, kDama}, {3, kReyFrances}, {4, 1}, kPrimerComodin});
    EXPECT_EQ(Mejor(), poker.Escalera);
    EXPECT_EQ(Cartas(poker.Escalera), (Valores{1, 13, 12, 11, 91}));
    EXPECT_EQ(De(poker.Escalera).ValorComodin, 10);
    EXPECT_FALSE(Tiene(poker.Figuras));
}

TEST_F(LecturaDeMano, CuatroFigurasConUnaParejaYUnComodinSonFigurasYElComodinEsUnAs) {
    Baraja(52, 1);
    Lee({{1, kJota}, {2, kDama}, {3, kDama}, {4, kReyFrances}, kPrimerComodin});
    EXPECT_EQ(Mejor(), poker.Figuras);
    EXPECT_EQ(Cartas(poker.Figuras), (Valores{91, 13, 12, 12, 11}));
    EXPECT_EQ(De(poker.Figuras).ValorComodin, 1);
}

TEST_F(LecturaDeMano, UnaParejaYUnComodinSonTrio) {
    Baraja(52, 1);
    Lee({{1, 4}, {2, 4}, {3, 9}, {4, kDama}, kPrimerComodin});
    EXPECT_EQ(Mejor(), poker.Trio);
    EXPECT_FALSE(Tiene(poker.Pareja));
    EXPECT_EQ(Cartas(poker.Trio), (Valores{4, 12, 9, 0, 0}));
    EXPECT_EQ(De(poker.Trio).Calidad, 3);
}

TEST_F(LecturaDeMano, UnaParejaYDosComodinesSiguenSiendoTrio) {
    Baraja(52, 2);
    Lee({{1, kReyFrances}, {2, kReyFrances}, {3, 9}, kPrimerComodin, kSegundoComodin});
    EXPECT_EQ(Mejor(), poker.Trio);
    EXPECT_EQ(De(poker.Trio).Calidad, 4);
}

TEST_F(LecturaDeMano, SinParejaUnComodinHaceParejaConLaMasFuerte) {
    Baraja(52, 1);
    Lee({{1, 3}, {2, 8}, {3, kDama}, {4, 1}, kPrimerComodin});
    EXPECT_EQ(Mejor(), poker.Pareja);
    EXPECT_EQ(Cartas(poker.Pareja), (Valores{1, 12, 8, 3, 0}));
    EXPECT_EQ(De(poker.Pareja).Calidad, 4);
}

TEST_F(LecturaDeMano, DosParejasYUnComodinSonFull) {
    Baraja(52, 1);
    Lee({{1, 3}, {2, 3}, {3, 9}, {4, 9}, kPrimerComodin});
    EXPECT_EQ(Mejor(), poker.Full);
    EXPECT_EQ(Cartas(poker.Full), (Valores{9, 3, 0, 0, 0}));
    EXPECT_TRUE(Tiene(poker.Pareja));
}

TEST_F(LecturaDeMano, Siete_Ocho_NueveYDosComodinesSonProyectoYNoEscalera) {
    Baraja(52, 2);
    Lee({{1, 7}, {2, 8}, {3, 9}, kPrimerComodin, kSegundoComodin});
    EXPECT_EQ(Mejor(), poker.Pareja);
    EXPECT_TRUE(Tiene(poker.ProyEscalera));
    EXPECT_FALSE(Tiene(poker.Escalera));
    EXPECT_EQ(Cartas(poker.ProyEscalera), (Valores{92, 9, 8, 7, 0}));
    EXPECT_EQ(De(poker.ProyEscalera).ValorComodin, 10);
}

TEST_F(LecturaDeMano, TresDelMismoPaloYDosComodinesSonParejaYProyectoDeColorYNoColor) {
    Baraja(52, 2);
    Lee({{3, 2}, {3, 8}, {3, kReyFrances}, kPrimerComodin, kSegundoComodin});
    EXPECT_EQ(Mejor(), poker.Pareja);
    EXPECT_TRUE(Tiene(poker.ProyColor));
    EXPECT_FALSE(Tiene(poker.Color));
    EXPECT_EQ(De(poker.ProyColor).PaloJugada, 3);
    EXPECT_EQ(Cartas(poker.ProyColor), (Valores{13, 8, 2, 92, 0}));
}

TEST_F(LecturaDeMano, As_2_3_4_5EsLaEscaleraMasBajaCon52Cartas) {
    Baraja(52, 0);
    Lee({{1, 1}, {2, 2}, {3, 3}, {4, 4}, {1, 5}});
    EXPECT_EQ(Mejor(), poker.Escalera);
    EXPECT_EQ(Cartas(poker.Escalera), (Valores{5, 4, 3, 2, 1}));
    const Long baja = ValorJugada(poker.Escalera, 1);
    Lee({{1, 6}, {2, 2}, {3, 3}, {4, 4}, {1, 5}});
    EXPECT_LT(baja, ValorJugada(poker.Escalera, 1));
}

TEST_F(LecturaDeMano, As_5_6_7_8EsLaEscaleraMasBajaCon40Cartas) {
    Baraja(40, 0);
    Lee({{1, 1}, {2, 5}, {3, 6}, {4, 7}, {1, 8}});
    EXPECT_EQ(Mejor(), poker.Escalera);
    EXPECT_EQ(Cartas(poker.Escalera), (Valores{8, 7, 6, 5, 1}));
}

TEST_F(LecturaDeMano, ElAsTambienCierraDiezJotaDamaRey) {
    Baraja(40, 0);
    Lee({{1, 1}, {2, 10}, {3, kJota}, {4, kDama}, {1, kReyFrances}});
    EXPECT_EQ(Mejor(), poker.Escalera);
    EXPECT_EQ(Cartas(poker.Escalera), (Valores{1, 13, 12, 11, 10}));
}

TEST_F(LecturaDeMano, NingunaEscaleraPasaPorElAs) {
    Baraja(40, 0);
    Lee({{1, kDama}, {2, kReyFrances}, {3, 1}, {4, 5}, {1, 6}});
    EXPECT_EQ(Mejor(), poker.CartaMayor);
    EXPECT_FALSE(Tiene(poker.ProyEscalera));
}

// The same cards of the joker: over the Rey it is the As, below the As the 10.
TEST_F(LecturaDeMano, UnComodinSobreElReyValeUnAs) {
    Baraja(52, 1);
    Lee({{1, 10}, {2, kJota}, {3, kDama}, {4, kReyFrances}, kPrimerComodin});
    EXPECT_EQ(Cartas(poker.Escalera), (Valores{91, 13, 12, 11, 10}));
    EXPECT_EQ(De(poker.Escalera).ValorComodin, 1);
}

TEST_F(LecturaDeMano, LaCartaMayorConFiguraTieneMejorCalidad) {
    Baraja(52, 0);
    Lee({{1, 2}, {2, 5}, {3, 8}, {4, kDama}, {1, 10}});
    EXPECT_EQ(Cartas(poker.CartaMayor), (Valores{12, 10, 8, 5, 2}));
    EXPECT_EQ(De(poker.CartaMayor).Calidad, 1);
    Lee({{1, 2}, {2, 5}, {3, 8}, {4, 4}, {1, 10}});
    EXPECT_EQ(De(poker.CartaMayor).Calidad, 2);
}

// Hearts and clubs, say: three low cards of the first suit, two of the second, all within five ranks. The second suit
// counts wherever both of its cards do, and it has no three.
TEST_F(LecturaDeMano, ElUltimoPaloConDosCartasTapaAlAnterior) {
    Baraja(52, 0);
    Lee({{1, 5}, {1, 6}, {1, 9}, {2, 7}, {2, 8}});
    EXPECT_FALSE(Tiene(poker.ProyEscalColor3));
    Lee({{2, 5}, {2, 6}, {2, 9}, {1, 7}, {1, 8}});
    EXPECT_TRUE(Tiene(poker.ProyEscalColor3));
    EXPECT_EQ(De(poker.ProyEscalColor3).PaloJugada, 2);
}

TEST_F(LecturaDeMano, UnColorConComodinLoPoneEnElPrimerHueco) {
    Baraja(52, 1);
    Lee({{1, 2}, {1, 8}, {1, kReyFrances}, {1, 1}, kPrimerComodin});
    EXPECT_EQ(Mejor(), poker.Color);
    EXPECT_EQ(Cartas(poker.Color), (Valores{1, 13, 91, 8, 2}));
    EXPECT_EQ(De(poker.Color).ValorComodin, 12);
}

TEST_F(LecturaDeMano, CadaLecturaBorraLaAnterior) {
    Baraja(52, 0);
    Lee({{1, 1}, {2, 1}, {3, 1}, {4, 1}, {1, 5}});
    Lee({{1, 2}, {2, 5}, {3, 8}, {4, kDama}, {1, 10}});
    EXPECT_EQ(Mejor(), poker.CartaMayor);
    EXPECT_FALSE(Tiene(poker.Poker));
    EXPECT_EQ(Cartas(poker.Poker), (Valores{0, 0, 0, 0, 0}));
    EXPECT_EQ(De(poker.Poker).Calidad, 1);
}

TEST_F(LecturaDeMano, CadaAsientoTieneSuLectura) {
    Baraja(52, 0);
    Lee({{1, 1}, {2, 1}, {3, 1}, {4, 1}, {1, 5}});
    PonMano(3, {{1, 2}, {2, 5}, {3, 8}, {4, kDama}, {1, 10}});
    AnalizaJugada(3);
    EXPECT_EQ(Mejor(), poker.Poker);
    EXPECT_EQ(poker.MejorJugada(3), poker.CartaMayor);
}

TEST_F(LecturaDeMano, LasFigurasSonAsJotaDamaYRey) {
    std::vector<int> figuras;
    for (Integer valor = 1; valor <= 92; ++valor) {
        if (EsFigura(valor))
            figuras.push_back(valor);
    }
    EXPECT_EQ(figuras, (Valores{1, 11, 12, 13}));
}

TEST_F(LecturaDeMano, UnComodinSeVePorSuPalo) {
    Baraja(52, 1);
    PonMano(2, {{1, 1}, {2, 2}, {3, 3}, {4, 4}, {1, 5}});
    PonMano(3, {{1, 1}, {2, 2}, {3, 3}, {4, 4}, kPrimerComodin});
    EXPECT_FALSE(TieneComodin(2));
    EXPECT_TRUE(TieneComodin(3));
}

TEST_F(LecturaDeMano, ConUnaBarajaQueNoExisteNoSeLee) {
    Baraja(52, 0);
    estado.CartasBaraja = 7;
    EXPECT_THROW(Lee({{1, 1}, {2, 2}, {3, 3}, {4, 4}, {1, 5}}), IndiceFuera);
}
