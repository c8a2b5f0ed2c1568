#include "games/common/trick_state.h"
#include "games/trick/hand_end.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

#include "core/session_state.h"
#include "tests/support/trick_table.h"

using namespace prueba;

namespace {

struct FinalDeMano : testing::Test {
    void Mesa(Integer juego, Integer jugadores) {
        mesa = std::make_unique<MesaDeTrick>(juego, jugadores);
        estado.JuegosJugados = 1;
        estado.ManoEnCurso = true;
    }
    static void Tantos(int uno, int dos, int tres, int cuatro) {
        bazas.TantosJugador(1) = uno;
        bazas.TantosJugador(2) = dos;
        bazas.TantosJugador(3) = tres;
        bazas.TantosJugador(4) = cuatro;
    }
    static void Bazas(const std::vector<Integer>& ganadores) {
        for (const Integer ganador : ganadores)
            bazas.GanadorDeBaza(++estado.NumBaza) = ganador;
        estado.GanadorBaza = ganadores.back();
    }
    std::unique_ptr<MesaDeTrick> mesa;
};

} // namespace

TEST_F(FinalDeMano, GanaQuienTieneMasTantos) {
    Mesa(kBrisca, 4);
    Tantos(40, 15, 45, 20);
    Bazas({1, 2, 3, 4});
    ASSERT_TRUE(FinalMano());
    EXPECT_EQ(estado.GanadorMano, 3);
    EXPECT_FALSE(estado.ManoEnCurso);
    EXPECT_EQ(estado.JuegosGanados(3), 1);
    EXPECT_EQ(mesa->TextoMensaje(), "Jugador1 : 40 tantos.\r\nJugador2 : 15 tantos.\r\n"
                                    "Jugador3 : 45 tantos.\r\nJugador4 : 20 tantos.\r\n\r\n"
                                    "Ha ganado la mano Jugador3");
    EXPECT_EQ(mesa->plataforma.mensajes.back().titulo, "Final de la mano");
    EXPECT_EQ(mesa->plataforma.mensajes.back().lineas, 6);
}

TEST_F(FinalDeMano, SoloSeCuentanLosAsientosActivos) {
    Mesa(kBrisca, 2);
    Tantos(0, 50, 0, 70);
    Bazas({2, 4});
    ASSERT_TRUE(FinalMano());
    EXPECT_EQ(mesa->TextoMensaje(), "Jugador2 : 50 tantos.\r\nJugador4 : 70 tantos.\r\n\r\n"
                                    "Jugador4, has ganado la mano. ");
}

// Seat 3 has won more tricks, seat 1 the later one.
TEST_F(FinalDeMano, AIgualdadGanaQuienGanoLaBazaMasTardia) {
    Mesa(kBrisca, 4);
    Tantos(45, 30, 45, 0);
    Bazas({3, 3, 3, 1, 2});
    ASSERT_TRUE(FinalMano());
    EXPECT_EQ(estado.GanadorMano, 1);
}

TEST_F(FinalDeMano, EnParejasSumaElEquipo) {
    Mesa(kBrisca, 4);
    estado.ModalidadJuego = kDosParejas;
    Tantos(10, 40, 45, 25);
    Bazas({1, 2, 3, 4});
    ASSERT_TRUE(FinalMano());
    EXPECT_EQ(estado.GanadorMano, 2);
    EXPECT_EQ(estado.JuegosGanados(2), 1);
    EXPECT_EQ(mesa->TextoMensaje(),
              "Jugador1 y Jugador3 : 55 tantos.\r\nJugador2 y Jugador4 : 65 tantos.\r\n\r\n"
              "Jugador2 y Jugador4, habéis ganado la mano. ");
    EXPECT_EQ(estado.Juegos(1).Marcas(2, 1), 1);
    EXPECT_EQ(estado.Juegos(1).Marcas(4, 1), 0);
    EXPECT_EQ(estado.Juegos(1).Texto1(4), "25");
}

TEST_F(FinalDeMano, EnParejasAIgualdadGanaLaUltimaBaza) {
    Mesa(kBrisca, 4);
    estado.ModalidadJuego = kDosParejas;
    Tantos(30, 40, 30, 20);
    Bazas({2, 4, 3});
    ASSERT_TRUE(FinalMano());
    EXPECT_EQ(estado.GanadorMano, 1);
    EXPECT_TRUE(mesa->TextoMensaje().ends_with("Han ganado la mano Jugador1 y Jugador3"));
}

TEST_F(FinalDeMano, UnTuteGanaAunSinTantos) {
    Mesa(kTute, 4);
    Tantos(30, 0, 0, 0);
    bazas.TuteCantado = true;
    bazas.TuteEnMano = kCaballo;
    bazas.JugadorCante = 3;
    ASSERT_TRUE(FinalMano());
    EXPECT_EQ(estado.GanadorMano, 3);
    EXPECT_EQ(mesa->TextoMensaje(),
              "Se ha cantado Tute de Caballos\r\n\r\nHa ganado la mano Jugador3");
    EXPECT_EQ(estado.Juegos(1).Texto1(3), "0");
    EXPECT_EQ(estado.Juegos(1).Texto2(3), "Tute de Caballos");
    EXPECT_EQ(estado.Juegos(1).Texto2(1), "");
}

TEST_F(FinalDeMano, UnTuteEnParejasEsDelEquipo) {
    Mesa(kTute, 4);
    estado.ModalidadJuego = kDosParejas;
    bazas.TuteCantado = true;
    bazas.TuteEnMano = kRey;
    bazas.JugadorCante = 4;
    ASSERT_TRUE(FinalMano());
    EXPECT_EQ(estado.GanadorMano, 2);
    EXPECT_EQ(mesa->TextoMensaje(), "Se ha cantado Tute de Reyes\r\n\r\n"
                                    "Jugador2 y Jugador4, habéis ganado la mano. ");
    EXPECT_EQ(estado.Juegos(1).Texto2(4), "Tute de Reyes");
}

TEST_F(FinalDeMano, ElRegistroCuentaLosCantes) {
    Mesa(kTute, 4);
    Tantos(70, 60, 30, 10);
    Bazas({1, 2});
    bazas.PaloCantado(kOros) = 1;
    bazas.PaloCantado(kBastos) = 1;
    bazas.PaloCantado(kCopas) = 3;
    ASSERT_TRUE(FinalMano());
    EXPECT_EQ(estado.Juegos(1).Cifra(1), 2);
    EXPECT_EQ(estado.Juegos(1).Cifra(2), 0);
    EXPECT_EQ(estado.Juegos(1).Cifra(3), 1);
    EXPECT_EQ(estado.Juegos(1).Texto1(1), "70");
    EXPECT_EQ(estado.Juegos(1).Marcas(1, 1), 1);
}

TEST_F(FinalDeMano, SiSeDejaLaPartidaNoSeApuntaNada) {
    Mesa(kBrisca, 4);
    Tantos(40, 15, 45, 20);
    Bazas({1, 2, 3, 4});
    estado.PausaEntreJugadas = true;
    mesa->plataforma.siempre_continua = false;
    EXPECT_FALSE(FinalMano());
    EXPECT_EQ(estado.JuegosGanados(3), 0);
    EXPECT_EQ(estado.Juegos(1).Texto1(3), "");
}

TEST_F(FinalDeMano, LaMarcaParpadeaEnLosDosDelEquipo) {
    Mesa(kBrisca, 4);
    estado.ModalidadJuego = kDosParejas;
    Tantos(60, 0, 60, 0);
    Bazas({1});
    mesa->Escucha({"MarcaGanador"});
    ASSERT_TRUE(FinalMano());
    EXPECT_EQ(std::count(mesa->traza.begin(), mesa->traza.end(), "MarcaGanador(1, 1)"), 4);
    EXPECT_EQ(std::count(mesa->traza.begin(), mesa->traza.end(), "MarcaGanador(3, 1)"), 4);
    EXPECT_EQ(mesa->traza.size(), 16U);
}
