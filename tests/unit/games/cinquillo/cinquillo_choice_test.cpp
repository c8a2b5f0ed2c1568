#include "games/cinquillo/cinquillo_choice.h"

#include <gtest/gtest.h>

#include "games/common/trick_state.h"
#include "tests/support/trick_hands.h"

using namespace prueba;

namespace {

struct Eleccion : testing::Test {
    void SetUp() override {
        MesaDeBazas(kCinquillo, 4);
        estado.JugadorActual = 2;
        Juega(100, kMedio);
    }
    static void Juega(Integer nivel, Integer caracter) {
        estado.NivelJugador(2) = nivel;
        estado.CaracterJugador(2) = caracter;
    }
    static void EnLaMesa(const std::vector<Carta>& cartas) {
        for (const Carta& carta : cartas)
            bazas.CartaJugada(carta.palo, carta.valor) = 3;
    }
    static void Elige(const std::vector<Carta>& mano) {
        PonMano(2, mano);
        EligeCartaCinquillo();
    }
    // Value and hand position of each legal card, best first.
    static std::vector<std::pair<int, int>> Lista() {
        std::vector<std::pair<int, int>> lista;
        for (int sitio = 1; sitio <= bazas.NumJugables; ++sitio)
            lista.emplace_back(bazas.CartasJugables(sitio, 1), bazas.CartasJugables(sitio, 2));
        return lista;
    }
    // The value of the only legal card of a hand.
    static int Valor(const std::vector<Carta>& mano) {
        Elige(mano);
        EXPECT_EQ(bazas.NumJugables, 1);
        return bazas.CartasJugables(1, 1);
    }
};

using Jugables = std::vector<std::pair<int, int>>;

} // namespace

TEST_F(Eleccion, UnCincoValeSiempreYLoDemasTrasSuVecina) {
    for (Integer palo = kOros; palo <= kBastos; ++palo)
        EXPECT_TRUE(EsJugable(palo, 5));
    struct Caso {
        Integer carta, vecina;
    };
    const Caso casos[] = {{6, 5}, {7, 6}, {10, 7}, {11, 10}, {12, 11},
                          {4, 5}, {3, 4}, {2, 3},  {1, 2}};
    for (const Caso& caso : casos) {
        bazas.CartaJugada.Borra();
        EXPECT_FALSE(EsJugable(kCopas, caso.carta)) << caso.carta;
        EnLaMesa({{kOros, caso.vecina}});
        EXPECT_FALSE(EsJugable(kCopas, caso.carta)) << caso.carta;
        EnLaMesa({{kCopas, caso.vecina}});
        EXPECT_TRUE(EsJugable(kCopas, caso.carta)) << caso.carta;
    }
}

TEST_F(Eleccion, UnPaloPuedeCrecerSoloPorUnLado) {
    EnLaMesa({{kCopas, 5}, {kCopas, 6}, {kCopas, 7}, {kCopas, kSota}, {kCopas, kCaballo}});
    EXPECT_TRUE(EsJugable(kCopas, kRey));
    EXPECT_TRUE(EsJugable(kCopas, 4));
    EXPECT_FALSE(EsJugable(kCopas, kTres));
    EXPECT_FALSE(EsJugable(kCopas, kAs));
    EXPECT_TRUE(EsJugable(kOros, 5)); // its neighbour is still closed
}

TEST_F(Eleccion, ElRangoSeguidoNoTieneHueco) {
    EXPECT_EQ(RangoSeguido(1), 1);
    EXPECT_EQ(RangoSeguido(7), 7);
    EXPECT_EQ(RangoSeguido(10), 8);
    EXPECT_EQ(RangoSeguido(12), 10);
}

TEST_F(Eleccion, SinNadaQueTenderNoHayCarta) {
    Elige({{kOros, 4}, {kCopas, 6}, {kBastos, kRey}});
    EXPECT_EQ(bazas.NumJugables, 0);
    EXPECT_EQ(estado.CartaElegida, 0);
    EXPECT_FALSE(LugarJugable(1));
}

// A 6 over a suit of which the seat holds 10 and 12: own distances 2 and 4, others wait with the 7 and the 11,
// at 1 and 3. Ten times the means: 30 and 20. 30 x 100 + 28 - 20.
TEST_F(Eleccion, ElValorPesaLasPropiasYDescuentaLasAjenas) {
    EnLaMesa({{kOros, 5}});
    EXPECT_EQ(Valor({{kOros, 6}, {kOros, 10}, {kOros, 12}}), 3008);
}

// Level 60 and above does not count the card that comes next: only the 12, at 4.
TEST_F(Eleccion, DesdeElNivelSesentaLaSiguienteNoCuenta) {
    EnLaMesa({{kOros, 5}});
    Juega(59, kMedio);
    EXPECT_EQ(Valor({{kOros, 6}, {kOros, 7}, {kOros, 12}}),
              2503); // own 1 and 4: 25; others 2 and 3: 25
    Juega(60, kMedio);
    EXPECT_EQ(Valor({{kOros, 6}, {kOros, 7}, {kOros, 12}}), 4003); // own 4
}

// Level 75 and above fears nothing behind a card of its own that comes next.
TEST_F(Eleccion, DesdeElNivelSetentaYCincoQuienTieneLaSiguienteNoTemeALasAjenas) {
    EnLaMesa({{kOros, 5}});
    Juega(74, kMedio);
    EXPECT_EQ(Valor({{kOros, 6}, {kOros, 7}, {kOros, 12}}), 4003);
    Juega(75, kMedio);
    EXPECT_EQ(Valor({{kOros, 6}, {kOros, 7}, {kOros, 12}}), 4028);
}

// A 5 opens both sides. With the 4 of its own the lower side is closed to the others: they wait only with the
// 6, 7, 10, 11 and 12, at 1 to 5. Of its own the 2 counts, at 3, and the 4 does not: it comes next.
TEST_F(Eleccion, UnCincoMiraLosDosLados) {
    EXPECT_EQ(Valor({{kOros, 5}, {kOros, 4}, {kOros, 2}}), 3000 + 28 - 30);
    Juega(59, kMedio);
    // Own 4 and 2 at 1 and 3: 20. Others: 1 and 3 at 4 and 2, and 1 to 5 above: 21 over 7 is 3.
    EXPECT_EQ(Valor({{kOros, 5}, {kOros, 4}, {kOros, 2}}), 2000 + 28 - 30);
}

TEST_F(Eleccion, ConElSeisPropioSeCierraElLadoAlto) {
    // Own: the 6 comes next. Others wait with 4, 3, 2 and 1, at 1 to 4: 25.
    EXPECT_EQ(Valor({{kOros, 5}, {kOros, 6}}), 28 - 25);
}

TEST_F(Eleccion, ElAgresivoTemeMenosALasAjenas) {
    EnLaMesa({{kOros, 5}});
    // Others wait with 7, 10, 11 and 12, at 1 to 4: 25. An aggressive seat counts 20.
    EXPECT_EQ(Valor({{kOros, 6}}), 3);
    Juega(100, kAgresivo);
    EXPECT_EQ(Valor({{kOros, 6}}), 8);
    Juega(100, kConservador);
    EXPECT_EQ(Valor({{kOros, 6}}), 3);
}

TEST_F(Eleccion, LosMediosSeRedondeanAlPar) {
    EnLaMesa({{kOros, 5}, {kOros, 4}, {kOros, 6}});
    // Behind the 7 the seat holds 10, 11 and 12 with the first of them next: 2 and 3, mean 25.
    // Behind the 3 it holds nothing: the 2 and the 1 wait, mean 15.
    Elige({{kOros, 7}, {kOros, 10}, {kOros, 11}, {kOros, 12}, {kOros, 3}});
    EXPECT_EQ(Lista(), (Jugables{{2528, 1}, {13, 5}}));
    // Four strangers and a distance of 1, 2, 3 and 4, over three of them: 2 and 1 and ... thirds are cut.
    bazas.CartaJugada.Borra();
    EnLaMesa({{kCopas, 5}});
    Juega(50, kMedio);
    // Own 7 and 10, at 1 and 2: 15. Others 11 and 12, at 3 and 4: 35.
    EXPECT_EQ(Valor({{kCopas, 6}, {kCopas, 7}, {kCopas, 10}}), 1500 + 28 - 35);
    // Own 7, 10 and 12, at 1, 2 and 4: 70 / 3 is 23. Others 11, at 3: 30.
    EXPECT_EQ(Valor({{kCopas, 6}, {kCopas, 7}, {kCopas, 10}, {kCopas, 12}}), 2300 + 28 - 30);
}

TEST_F(Eleccion, UnValorBajoCeroVaElUltimo) {
    // Behind the 6 de oros all four wait (28 - 25); behind the 11 de copas the Rey (28 - 10); behind the 5 de
    // bastos everybody: 25 above and below, and the seat holds none.
    EnLaMesa({{kOros, 5}, {kCopas, 10}, {kEspadas, 4}, {kEspadas, 5}});
    bazas.CartaJugada(kCopas, 5) = bazas.CartaJugada(kCopas, 6) = bazas.CartaJugada(kCopas, 7) = 1;
    Elige({{kOros, 6}, {kBastos, 5}, {kCopas, 11}});
    // 5 de bastos: 4 + 3 + 2 + 1 + 1 + 2 + 3 + 4 + 5 over 9 is 2.78: 28 - 28.
    EXPECT_EQ(Lista(), (Jugables{{18, 3}, {3, 1}, {0, 2}}));
}

TEST_F(Eleccion, LasDelMismoValorGuardanElOrdenDeLaMano) {
    EnLaMesa({{kOros, 5}, {kCopas, 5}, {kEspadas, 5}});
    Elige({{kEspadas, 6}, {kOros, 6}, {kBastos, 7}, {kCopas, 6}});
    EXPECT_EQ(Lista(), (Jugables{{3, 1}, {3, 2}, {3, 4}}));
    EXPECT_EQ(estado.CartaElegida, 1);
    EXPECT_TRUE(LugarJugable(4));
    EXPECT_FALSE(LugarJugable(3));
}

TEST_F(Eleccion, SinRuidoSeJuegaLaMejor) {
    EnLaMesa({{kOros, 5}});
    Juega(90, kMedio);
    estado.AzarTurno = 0.999F;
    Elige({{kOros, 4}, {kOros, 6}, {kOros, kRey}});
    EXPECT_EQ(estado.CartaElegida, 2);
}

TEST_F(Eleccion, ElRuidoEmpiezaPorEncimaDelNivel) {
    EnLaMesa({{kOros, 5}});
    const std::vector<Carta> mano{{kOros, 4}, {kOros, 6}, {kOros, kRey}};
    Juega(50, kMedio);
    estado.AzarTurno = 0.495F; // 50: not above the level
    Elige(mano);
    EXPECT_EQ(estado.CartaElegida, 2);
    estado.AzarTurno = 0.5F; // 51: the place is the second of the two
    Elige(mano);
    EXPECT_EQ(estado.CartaElegida, 1);
    Juega(89, kMedio);
    estado.AzarTurno = 0.885F; // 89
    Elige(mano);
    EXPECT_EQ(estado.CartaElegida, 2);
    estado.AzarTurno = 0.895F; // 90
    Elige(mano);
    EXPECT_EQ(estado.CartaElegida, 1);
}

TEST_F(Eleccion, ANivelCincuentaLaMitadDeLasVecesEsAlAzar) {
    EnLaMesa({{kOros, 5}, {kCopas, 5}});
    Juega(50, kMedio);
    int al_azar = 0;
    for (int centesima = 0; centesima < 100; ++centesima) {
        estado.AzarTurno = (static_cast<float>(centesima) + 0.5F) / 100;
        Elige({{kOros, 4}, {kOros, 6}, {kCopas, 4}, {kCopas, 6}, {kOros, kRey}});
        al_azar += estado.CartaElegida != bazas.CartasJugables(1, 2) ? 1 : 0;
    }
    // Draws 0.50 to 0.99 pick places 3 and 4 of the four.
    EXPECT_EQ(al_azar, 50);
}

TEST_F(Eleccion, ElTutorDejaElNivelEnCien) {
    EnLaMesa({{kOros, 5}});
    Juega(0, kMedio);
    estado.AzarTurno = 0.9F;
    estado.TutorPulsado = true;
    Elige({{kOros, 4}, {kOros, 6}, {kOros, kRey}});
    EXPECT_EQ(estado.CartaElegida, 2);
    EXPECT_EQ(estado.NivelJugador(2), 100);
}
