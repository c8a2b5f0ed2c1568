#include "games/common/trick_state.h"
#include "games/trick/trick.h"

#include <gtest/gtest.h>

#include <memory>

#include "games/trick/trick_rules.h"
#include "tests/support/trick_table.h"

using namespace prueba;

namespace {

struct UnaBaza : testing::Test {
    void Mesa(Integer juego, Integer jugadores) {
        mesa = std::make_unique<MesaDeTrick>(juego, jugadores);
        Pinta({kBastos, 4});
        estado.ManoEnCurso = true;
        Sale(2);
    }
    static void Sale(Integer asiento) {
        estado.JugadorSalida = asiento;
        estado.JugadorActual = asiento;
        AsientoAnterior(estado.JugadorActual);
    }
    std::unique_ptr<MesaDeTrick> mesa;
};

bool MereceBusqueda(Integer juego, Integer jugadores, int cartas) {
    estado.JuegoActivo = juego;
    estado.NumJugadores = jugadores;
    return ReglasEnMesa().merece_busqueda(cartas);
}

} // namespace

TEST_F(UnaBaza, SeApuntanGanadorTantosYCartas) {
    Mesa(kBrisca, 2);
    estado.NumBaza = 4;
    PonMano(2, {{kOros, kSota}});
    PonMano(4, {{kOros, kRey}});
    ASSERT_TRUE(JuegaBaza());
    EXPECT_EQ(estado.NumBaza, 5);
    EXPECT_EQ(estado.GanadorBaza, 4);
    EXPECT_EQ(bazas.GanadorDeBaza(5), 4);
    EXPECT_EQ(bazas.TantosBaza, Currency{6});
    EXPECT_EQ(bazas.TantosJugador(4), Currency{6});
    EXPECT_EQ(bazas.TantosDeBaza(5), Currency{6});
    EXPECT_EQ(bazas.CartaJugada(kOros, kSota), 2);
    EXPECT_EQ(bazas.CartaJugada(kOros, kRey), 4);
    EXPECT_EQ(bazas.RegistroBazas(2 + 5, 5), kOros);
    EXPECT_EQ(bazas.RegistroBazas(2 + 10, 5), kSota);
    EXPECT_EQ(bazas.RegistroBazas(2 + 15, 5), 0);
    EXPECT_EQ(bazas.RegistroBazas(4 + 15, 5), 1);
    EXPECT_EQ(bazas.RegistroBazas(3 + 5, 5), 0);
}

TEST_F(UnaBaza, LasDiezUltimasSonSoloDelTute) {
    for (const Integer juego : {kTute, kBrisca}) {
        Mesa(juego, 2);
        PonMano(2, {{kOros, kSota}});
        PonMano(4, {{kOros, kRey}});
        ASSERT_TRUE(JuegaBaza());
        EXPECT_EQ(bazas.TantosJugador(4), Currency{juego == kTute ? 16 : 6});
    }
}

TEST_F(UnaBaza, ConCartasEnManoNoHayDiezUltimas) {
    Mesa(kTute, 2);
    PonMano(2, {{kOros, kSota}, {kOros, 7}});
    PonMano(4, {{kOros, kRey}, {kOros, kAs}});
    ASSERT_TRUE(JuegaBaza());
    EXPECT_LT(bazas.TantosBaza, Currency{16});
}

TEST_F(UnaBaza, LaUltimaBazaNoSeBusca) {
    Mesa(kBrisca, 2);
    PonMano(2, {{kOros, kSota}});
    PonMano(4, {{kOros, kRey}});
    ASSERT_TRUE(JuegaBaza());
    EXPECT_FALSE(bazas.BusquedaActiva);
}

TEST_F(UnaBaza, LaPenultimaSiYConElRelojDeArena) {
    Mesa(kBrisca, 2);
    PonMano(2, {{kOros, kSota}, {kCopas, 4}});
    PonMano(4, {{kOros, kRey}, {kCopas, 5}});
    mesa->Escucha({"CambiarCursor"});
    ASSERT_TRUE(JuegaBaza());
    EXPECT_TRUE(bazas.BusquedaActiva);
    ASSERT_FALSE(mesa->traza.empty());
    EXPECT_EQ(mesa->traza.front(), R"(CambiarCursor("mesa", "RelojArena"))");
}

TEST(LimiteDeBusqueda, EnTuteSieteMenosLosJugadores) {
    EXPECT_FALSE(MereceBusqueda(kTute, 2, 6)); // the hand of six, as long as there is a stock
    EXPECT_TRUE(MereceBusqueda(kTute, 2, 5));
    EXPECT_FALSE(MereceBusqueda(kTute, 3, 5));
    EXPECT_TRUE(MereceBusqueda(kTute, 3, 4));
    EXPECT_FALSE(MereceBusqueda(kTute, 4, 4));
    EXPECT_TRUE(MereceBusqueda(kTute, 4, 3));
    EXPECT_FALSE(MereceBusqueda(kTute, 4, 1));
}

TEST(LimiteDeBusqueda, EnBriscaDesdeDosCartas) {
    EXPECT_TRUE(MereceBusqueda(kBrisca, 4, 3));
    EXPECT_TRUE(MereceBusqueda(kBrisca, 2, 2));
    EXPECT_FALSE(MereceBusqueda(kBrisca, 2, 1));
}

// The trick blinks while it lies there, and is written down afterwards.
TEST_F(UnaBaza, LaBazaParpadeaAntesDeRecogerse) {
    Mesa(kBrisca, 2);
    PonMano(2, {{kOros, kSota}});
    PonMano(4, {{kOros, kRey}});
    mesa->Escucha({"Pausa", "Sonido"});
    ASSERT_TRUE(JuegaBaza());
    const std::vector<std::string> esperados{"Pausa(150)",    "Pausa(420)", "Pausa(180)",
                                             "Sonido(1, 26)", "Pausa(420)", "Pausa(180)",
                                             "Sonido(1, 26)", "Pausa(500)"};
    ASSERT_GE(mesa->traza.size(), esperados.size());
    EXPECT_EQ(std::vector(mesa->traza.end() - 8, mesa->traza.end()), esperados);
}

TEST_F(UnaBaza, ElTuteLigaCuandoElMazoSeAcaba) {
    Mesa(kTute, 2);
    PonMano(2, {{kOros, kSota}});
    PonMano(4, {{kOros, kRey}});
    estado.CartasEnMazo = 1;
    ASSERT_TRUE(JuegaBaza());
    EXPECT_FALSE(bazas.Arrastre);
    PonMano(2, {{kOros, kSota}});
    PonMano(4, {{kOros, kRey}});
    estado.CartasEnMazo = 0;
    Sale(4);
    ASSERT_TRUE(JuegaBaza());
    EXPECT_TRUE(bazas.Arrastre);
}

TEST_F(UnaBaza, LaBriscaNoLigaNunca) {
    Mesa(kBrisca, 2);
    PonMano(2, {{kOros, kSota}});
    PonMano(4, {{kOros, kRey}});
    ASSERT_TRUE(JuegaBaza());
    EXPECT_FALSE(bazas.Arrastre);
}
