// The file of a game as it is written, column by column, and what of a hand in play goes into it.

#include "betting/bet_state.h"
#include "storage/settings_layout.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "betting/chips.h"
#include "core/text.h"
#include "storage/between_hands.h"
#include "storage/settings.h"
#include "tests/support/settings_table.h"

namespace {

using namespace prueba;
using testing::ElementsAre;
using testing::SizeIs;
using testing::StartsWith;

constexpr int kBote = 0;

TEST_F(AjustesTest, ElNombreLlevaElJuegoEnDosCifras) {
    EXPECT_EQ(NombreIniJuego(kPoker), "ZOV0131.INI");
    EXPECT_EQ(NombreIniJuego(kBlackJack), "ZOV3131.INI");
    EXPECT_EQ(NombreIniJuego(kCinquillo), "ZOV7031.INI");
}

// Every line by hand, column by column.
TEST_F(AjustesTest, UnaPartidaDePokerSeEscribeEnSusColumnas) {
    mesa.Empieza(kPoker);
    const char* const nombres[]{"", "Ana", "Íñigo", "Mª José", "Jugador4"};
    for (int asiento = 1; asiento <= 4; ++asiento)
        estado.NombreJugador(asiento) = nombres[asiento];
    estado.NivelJugador(2) = 7;
    estado.EstadoJugador(3) = kDesactivado;
    estado.NumJugadores = 3;
    estado.PausaEntreJugadas = false;
    estado.LeyApertura = 14;
    estado.SentidoJuego = kInverso;
    estado.PasoSentido = -1;
    estado.SistemaReparto = 2;
    estado.ComodinesJuego = 3;
    estado.CartasBaraja = 6;
    estado.VentanaInfo = 2;
    estado.PartidaEnCurso = true;
    estado.JuegosJugados = 1;
    sesion.mano_apuntada = true;
    estado.JugadorMano = 2;
    estado.JugadorBanca = 4;
    estado.RestoInicial = 995;
    estado.ApuestaSalida = 12;
    estado.ApuestaMaxima = 100;
    estado.LimitePartida = 30;
    AsignarResto(kBote, 5);
    AsignarResto(1, 100);
    AsignarResto(4, 88);
    apuestas.Apuesta(1, 1, 2) = 45;
    apuestas.Apuesta(4, 1, 2) = 5;
    estado.JuegosGanados(4) = 1;
    RegistroJuego& registro = estado.Juegos(1);
    registro.Inicio = "Íñigo";
    registro.Total = 240;
    registro.Marcas(1, 1) = 2;
    registro.Marcas(4, 1) = 1;
    registro.Texto1(1) = "Pareja de Ases";
    registro.Texto1(3) = "----";
    registro.Texto1(4) = "Póker de Caballos"; // as wide as its columns
    registro.Texto2(1) = "A A K 10 9";
    registro.Texto2(4) = "J J J J #";
    registro.Cifra(4) = 3;

    EXPECT_THAT(
        JuegoGrabado(),
        ElementsAre("Ana      0501112"
                    "\xCD\xF1igo    0071113"
                    "M\xAA Jos\xE9  0502111"
                    "Jugador4 1001222" // columns 49 to 64
                    "0 01142233"      // to 74: pause, mode, opening law, sense, deal, jokers, seats
                    "62             " // to 89: cards, tips, blanks
                    "-10    001 2 4 0 -0" // to 108: match, hand, games, leader, bank, 0, step
                    "0995012100030    ",
                    "010200000000" // the pot: 5 = 1 + 2 x 2
                    "010201020101" // 100
                    "000000000000"
                    "000000000000"
                    "010101010101", // 88
                    "0045000"
                    "0000000"
                    "0000000"
                    "0005001",
                    "\xCD\xF1igo      240"
                    "2000Pareja de Ases   A A K 10 9     0"
                    "0000                                0"
                    "0000----                            0"
                    "1000P\xF3ker de CaballosJ J J J #      3"
                    "        "));
}

TEST_F(AjustesTest, CadaLineaTieneSuAncho) {
    estado.PartidaEnCurso = true;
    estado.JuegosJugados = 2;
    sesion.mano_apuntada = true;
    const auto lineas = JuegoGrabado();
    ASSERT_THAT(lineas, SizeIs(5));
    EXPECT_THAT(lineas[0], SizeIs(125));
    EXPECT_THAT(lineas[1], SizeIs(60));
    EXPECT_THAT(lineas[2], SizeIs(28));
    EXPECT_THAT(lineas[3], SizeIs(170));
    EXPECT_THAT(lineas[4], SizeIs(170));
}

TEST_F(AjustesTest, AlSalirEnElSeptimoJuegoHaySeisRegistrosYSeEscribe006) {
    estado.PartidaEnCurso = estado.ManoEnCurso = true;
    estado.JuegosJugados = 7;
    estado.JugadorMano = 3;
    for (int juego = 1; juego <= 7; ++juego)
        estado.Juegos(juego).Inicio = "Juego" + Numero(juego);
    const auto lineas = JuegoGrabado();
    ASSERT_THAT(lineas, SizeIs(3 + 6));
    EXPECT_EQ(Columnas(lineas[0], 97, 3), "006");
    EXPECT_EQ(Columnas(lineas[0], 101, 1), "2"); // one seat back
    EXPECT_EQ(Columnas(lineas[0], 92, 2), "-1");
    EXPECT_THAT(lineas[3], StartsWith("Juego1"));
    EXPECT_THAT(lineas[8], StartsWith("Juego6"));
}

TEST_F(AjustesTest, UnaManoApuntadaNoSePierdeAunqueNoHayaEmpezadoLaSiguiente) {
    estado.PartidaEnCurso = true;
    estado.JuegosJugados = 7;
    estado.JugadorMano = 3;
    sesion.mano_apuntada = true;
    estado.Juegos(7).Inicio = "Eva";
    const auto lineas = JuegoGrabado();
    ASSERT_THAT(lineas, SizeIs(3 + 7));
    EXPECT_EQ(Columnas(lineas[0], 97, 3), "007");
    EXPECT_EQ(Columnas(lineas[0], 101, 1), "3");
    EXPECT_THAT(lineas[9], StartsWith("Eva"));
}

// No game is finished yet, and the leader is written as it stands.
TEST_F(AjustesTest, EnElPrimerJuegoYAntesDeElLaManoNoRetrocede) {
    estado.PartidaEnCurso = true;
    for (const Integer juegos : std::initializer_list<Integer>{1, 0}) {
        estado.JuegosJugados = juegos;
        for (const Integer mano : std::initializer_list<Integer>{1, 3}) {
            estado.JugadorMano = mano;
            const auto lineas = JuegoGrabado();
            EXPECT_THAT(lineas, SizeIs(3));
            EXPECT_EQ(Columnas(lineas[0], 97, 3), "000");
            EXPECT_EQ(Columnas(lineas[0], 101, 1), Numero(mano));
        }
    }
}

// One back and then forward over the seats that do not play comes to the same seat, both ways round.
TEST_F(AjustesTest, LaManoGuardadaLlevaOtraVezAlMismoAsiento) {
    for (Integer sentido : {kDirecto, kInverso}) {
        for (Integer mano = 1; mano <= 4; ++mano) {
            for (int inactivo = 1; inactivo <= 4; ++inactivo) {
                if (inactivo == mano)
                    continue;
                mesa.Empieza(kTute);
                estado.PartidaEnCurso = true;
                estado.SentidoJuego = sentido;
                estado.PasoSentido = sentido == kDirecto ? 1 : -1;
                estado.EstadoJugador(inactivo) = kDesactivado;
                estado.JuegosJugados = 2;
                estado.JugadorMano = mano;
                ASSERT_EQ(GrabarIniJuego(), ErrorArchivo::Ninguno);
                LeerIniJuego();
                do
                    SiguienteAsiento(estado.JugadorMano);
                while (estado.EstadoJugador(estado.JugadorMano) != kActivado);
                EXPECT_EQ(estado.JugadorMano, mano) << "sentido " << sentido;
            }
        }
    }
}

TEST_F(AjustesTest, DeUnaManoAMediasSeGuardaElDineroDelPrincipio) {
    mesa.Empieza(kPoker);
    estado.PartidaEnCurso = estado.ManoEnCurso = true;
    estado.JuegosJugados = 3;
    estado.JugadorMano = 1;
    for (int asiento = 1; asiento <= 4; ++asiento)
        AsignarResto(asiento, 200);
    AsignarResto(kBote, 20);
    for (int asiento = 1; asiento <= 4; ++asiento)
        apuestas.Apuesta(asiento, 1, 2) = 5;
    AnotaDineroPrevio();
    AsignarResto(1, 150); // bets of the hand in play
    AsignarResto(kBote, 70);
    apuestas.Apuesta(1, 1, 2) = 10;
    apuestas.Apuesta(1, 1, 3) = 45;
    const EstadoJuego antes = estado;
    const auto lineas = JuegoGrabado();
    EXPECT_TRUE(estado == antes);

    EXPECT_EQ(Columnas(lineas[1], 1, 12), "010201010000");  // 20
    EXPECT_EQ(Columnas(lineas[1], 13, 12), "010201020103"); // 200
    EXPECT_EQ(lineas[2], "0005000"
                         "0005000"
                         "0005000"
                         "0005000");
    LeerIniJuego();
    EXPECT_EQ(RestoDe(kBote), 20);
    EXPECT_EQ(RestoDe(1), 200);
    EXPECT_EQ(apuestas.Apuesta(1, 1, 2), 5);
    EXPECT_EQ(apuestas.Apuesta(1, 1, 3), 0);
}

// A game without money has none when the hand begins.
TEST_F(AjustesTest, SinDineroAlEmpezarLaManoSeGuardaElQueHay) {
    estado.PartidaEnCurso = true;
    estado.JuegosJugados = 2;
    estado.JugadorMano = 1;
    AsignarResto(3, 5);
    apuestas.Apuesta(3, 1, 2) = 7;
    const auto lineas = JuegoGrabado();
    EXPECT_EQ(Columnas(lineas[1], 37, 12), "010200000000");
    EXPECT_EQ(Columnas(lineas[2], 15, 7), "0007000");
}

TEST_F(AjustesTest, UnaManoDePokerSinApuestasAcabadaGuardaElBoteConSusApuestas) {
    mesa.Empieza(kPoker);
    estado.PartidaEnCurso = true;
    estado.JuegosJugados = 1;
    for (int asiento = 1; asiento <= 4; ++asiento)
        AsignarResto(asiento, 200);
    AnotaDineroPrevio();
    for (int asiento = 1; asiento <= 4; ++asiento) {
        AsignarResto(asiento, 195);
        apuestas.Apuesta(asiento, 1, 2) = 5;
    }
    AsignarResto(kBote, 20);
    sesion.mano_apuntada = true;
    ASSERT_EQ(GrabarIniJuego(), ErrorArchivo::Ninguno);
    mesa.Empieza(kPoker);
    LeerIniJuego();
    EXPECT_EQ(estado.JuegosJugados, 1);
    EXPECT_EQ(RestoDe(kBote), 20);
    EXPECT_EQ(RestoDe(2), 195);
    EXPECT_EQ(apuestas.Apuesta(2, 1, 2), 5);
}

TEST_F(AjustesTest, MasDe99FichasDeUnaClaseSeGuardanAgrupadasSinPerderUnPunto) {
    mesa.Empieza(kPoker);
    apuestas.Fichas(kBote, 2) = 131; // antes of four, hand after hand
    apuestas.Fichas(kBote, 1) = 3;
    apuestas.Fichas(4, 6) = 99;
    const auto lineas = JuegoGrabado();
    EXPECT_EQ(Columnas(lineas[1], 1, 12), "000001010005"); // 265 = 5 + 10 + 250
    EXPECT_EQ(Columnas(lineas[1], 49, 12), "000000000099");
    LeerIniJuego();
    EXPECT_EQ(RestoDe(kBote), 265);
}

TEST_F(AjustesTest, DeMasDe999JuegosSeGuardanLosUltimos999) {
    estado.PartidaEnCurso = true;
    estado.JuegosJugados = 1001;
    sesion.mano_apuntada = true;
    for (int juego = 1; juego <= 1001; ++juego)
        estado.Juegos(juego).Total = static_cast<Integer>(juego);
    const auto lineas = JuegoGrabado();
    ASSERT_THAT(lineas, SizeIs(3 + 999));
    EXPECT_EQ(Columnas(lineas[0], 97, 3), "999");
    EXPECT_EQ(Columnas(lineas[3], 10, 5), "    3");
    EXPECT_EQ(Columnas(lineas.back(), 10, 5), " 1001");
    LeerIniJuego();
    EXPECT_EQ(estado.JuegosJugados, 999);
    EXPECT_EQ(estado.Juegos(999).Total, 1001);
}

TEST_F(AjustesTest, LasMarcasYLaCifraOcupanUnaColumna) {
    estado.JuegosJugados = 1;
    sesion.mano_apuntada = true;
    estado.Juegos(1).Inicio = "Ana";
    estado.Juegos(1).Marcas(1, 1) = 12;
    estado.Juegos(1).Marcas(1, 2) = -1;
    estado.Juegos(1).Cifra(1) = 34;
    const auto lineas = JuegoGrabado();
    EXPECT_EQ(Columnas(lineas[3], 15, 4), "1000");
    EXPECT_EQ(Columnas(lineas[3], 51, 1), "3");
}

TEST_F(AjustesTest, GrabarElJuegoContestaConElNumeroDelError) {
    mesa.Archivo("ZOV5131.INI") = "lo de antes";
    mesa.Memoria().de_solo_lectura = {"juego"};
    EXPECT_EQ(GrabarIniJuego(), ErrorArchivo::SinPermiso);
    EXPECT_EQ(mesa.Archivo("ZOV5131.INI"), "lo de antes");
}

} // namespace
