// Whole hands of Póker: the ante, the rounds of bets, the discards, the showdown, the end of the match.

#include "games/poker/poker_driver.h"

#include <gtest/gtest.h>

#include "betting/bet_state.h"
#include "betting/chips.h"
#include "core/random.h"
#include "games/common/hands.h"
#include "games/common/money_hands.h"
#include "games/poker/bet_round.h"
#include "games/poker/bet_turn.h"
#include "games/poker/discard_round.h"
#include "games/poker/poker_state.h"
#include "games/poker/showdown.h"
#include "table/game_row.h"
#include "tests/support/live_table.h"
#include "tests/support/poker_seats.h"

using namespace prueba;

namespace {

constexpr Integer kSalida = 2, kPrimera = 3, kSegunda = 5;

struct ManosDePoker : MesaViva {
    ManosDePoker() {
        Juega(kPoker);
        TodoSolo();
        p.siempre_continua = true;
        estado.LeyApertura = 14;
        estado.PartidaEnCurso = true;
        estado.ManoEnCurso = true;
        estado.JugadorMano = 1;
        estado.JuegosJugados = 1;
        estado.PasoSentido = 1;
        for (Integer asiento = 1; asiento <= 4; ++asiento) {
            estado.NombreJugador(asiento) = kNombres[asiento - 1];
            Tiene(asiento, 100);
        }
    }
    static void Tiene(Integer asiento, Integer puntos) { AsignarResto(asiento, puntos); }
    static void Da(Integer asiento, const std::string& cartas) { PonMano(asiento, Cartas(cartas)); }
    // The seat has put that much in, and it lies in the pot.
    static void Puso(Integer asiento, Integer fase, Integer puntos) {
        apuestas.Apuesta(asiento, 1, fase) = puntos;
        AsignarResto(kBote, static_cast<Integer>(RestoDe(kBote) + puntos));
    }
    // What is left of the pile.
    static void PonElMazo(const std::vector<Carta>& cartas) {
        estado.PosicionMazo = 11;
        estado.CartasEnMazo = static_cast<Integer>(cartas.size());
        for (int i = 0; i < estado.CartasEnMazo; ++i) {
            const Carta& carta = cartas[static_cast<std::size_t>(i)];
            estado.Baraja(11 + i, 1) = carta.palo;
            estado.Baraja(11 + i, 2) = carta.valor;
        }
    }
    static const std::string& Rotulo(Integer asiento) { return estado.RotuloSerie(asiento, 1); }
    static bool Ronda(Integer fase) {
        apuestas.FaseApuesta = fase;
        return RondaDeApuestas();
    }
    // Seats 1 and 4 alone, with nothing in hand.
    void DosSinNada() {
        Da(1, "9o 7c 5e 3b 2o");
        Da(4, "10c 8o 6b 4c 2e");
    }
    static RegistroJuego& Registro() { return estado.Juegos(estado.JuegosJugados); }

    static constexpr const char* kNombres[] = {"Ana", "Luis", "Eva", "Blas"};
};

} // namespace

TEST_F(ManosDePoker, LaApuestaDeSalidaVaAlBoteYQuienTieneMenosPoneLoQueLeQueda) {
    Tiene(3, 2);
    Tiene(4, 0);
    PonApuestaDeSalida();
    EXPECT_EQ(RestoDe(kBote), 5 + 5 + 2);
    EXPECT_EQ(apuestas.Apuesta(1, 1, kSalida), 5);
    EXPECT_EQ(apuestas.Apuesta(3, 1, kSalida), 2);
    EXPECT_EQ(apuestas.Apuesta(4, 1, kSalida), 0);
    EXPECT_EQ(RestoDe(3), 0);
}

TEST_F(ManosDePoker, LaApuestaDeSalidaNoPasaDelLimiteDeLaManoNiAvisa) {
    Puso(1, kSalida, 23);
    Puso(2, kSalida, 25);
    PonApuestaDeSalida();
    EXPECT_EQ(apuestas.Apuesta(1, 1, kSalida), 25);
    EXPECT_EQ(apuestas.Apuesta(2, 1, kSalida), 25);
    EXPECT_TRUE(p.mensajes.empty());
}

TEST_F(ManosDePoker, DosRondasDeMeReservoSonUnaManoNulaYElBoteSeQueda) {
    DosSinNada();
    Puso(1, kSalida, 5);
    Puso(4, kSalida, 5);
    ASSERT_TRUE(Ronda(kPrimera));
    EXPECT_TRUE(poker.ManoNula);
    EXPECT_EQ(Rotulo(1), "Me reservo");
    EXPECT_EQ(Rotulo(4), "Me reservo");
    ASSERT_EQ(Titulos(), std::vector<std::string>{"Fin de la mano"});
    EXPECT_EQ(RestoDe(kBote), 10);
    EXPECT_EQ(estado.NumCartas(1, 1), 5);
}

TEST_F(ManosDePoker, QuienPasaAntesDeQueAlguienApuesteVuelveATenerTurno) {
    Da(1, "9o 7c 5e 3b 2o");
    Da(4, "Ao Ac Ae Kb 2e");
    Puso(1, kSalida, 5);
    Puso(4, kSalida, 5);
    estado.CaracterJugador(1) = estado.CaracterJugador(4) = kMedio;
    EncolaAzar({0.99, 0.5, 0.99});
    ASSERT_TRUE(Ronda(kPrimera));
    EXPECT_FALSE(poker.ManoNula);
    EXPECT_EQ(poker.UltimoSubidor, 4);
    EXPECT_EQ(Rotulo(1), "P a s o") << "with nothing in hand it does not stay";
    EXPECT_EQ(estado.NumCartas(1, 1), 0);
    EXPECT_EQ(estado.NumDescartes, 5);
}

TEST_F(ManosDePoker, ConTodosEnElLimiteNoHayRondaYLaManoNoEsNula) {
    DosSinNada();
    Puso(1, kSalida, 25);
    Puso(4, kSalida, 25);
    ASSERT_TRUE(Ronda(kPrimera));
    EXPECT_FALSE(poker.ManoNula);
    EXPECT_EQ(poker.TurnosRonda, 0);
    EXPECT_TRUE(p.mensajes.empty());
}

TEST_F(ManosDePoker, QuienSeQuedoSinFichasPorDebajoDelLimiteNoHaceNulasTodasLasManos) {
    DosSinNada();
    Da(2, "10o 8e 6c 4b 2c");
    Puso(1, kSalida, 25);
    Puso(2, kSalida, 12);
    Puso(4, kSalida, 25);
    Tiene(2, 0);
    ASSERT_TRUE(Ronda(kPrimera));
    EXPECT_FALSE(poker.ManoNula);
}

TEST_F(ManosDePoker, SiLosDemasFueronConSuRestoNoHayMasApuestasNiManoNula) {
    DosSinNada();
    Puso(1, kSalida, 5);
    Puso(4, kSalida, 5);
    Tiene(4, 0);
    ASSERT_TRUE(Ronda(kSegunda));
    EXPECT_FALSE(poker.ManoNula);
    EXPECT_EQ(Rotulo(1), "");
}

TEST_F(ManosDePoker, EnLosDescartesCadaUnoDiceLasQueTiraYRecibeOtras) {
    Da(1, "Ao Ac 9e 7b 2o");
    Da(4, "Ko Qo 10o 5o 2o");
    PonElMazo({{kCopas, 3}, {kCopas, 4}, {kEspadas, 5}});
    estado.JugadoresEnMano = 2;
    ASSERT_TRUE(RondaDeDescartes());
    EXPECT_EQ(Rotulo(1), "Descarto 3 cartas");
    EXPECT_EQ(Rotulo(4), "No quiero cartas");
    EXPECT_EQ(estado.NumCartas(1, 1), 5);
    EXPECT_EQ(estado.NumDescartes, 3);
    EXPECT_EQ(poker.JugadaCreidaMin(1), poker.Pareja);
    EXPECT_EQ(poker.JugadaCreidaMax(1), poker.Trio);
    EXPECT_EQ(poker.JugadaCreidaMin(4), poker.Figuras);
}

TEST_F(ManosDePoker, SiTodosPasanMenosUnoCobraSinEnsenarSuJugada) {
    Da(4, "Ao Ac 9e 7b 2o");
    Puso(1, kSalida, 5);
    Puso(4, kSalida, 15);
    estado.JugadoresEnMano = 1;
    ASSERT_TRUE(FinalDeMano());
    ASSERT_EQ(p.mensajes.size(), 1U);
    EXPECT_EQ(p.mensajes[0].texto, "Blas, has ganado la mano. ");
    EXPECT_EQ(RestoDe(4), 120);
    EXPECT_EQ(RestoDe(kBote), 0);
    EXPECT_EQ(Registro().Total, 20);
    EXPECT_EQ(Registro().Marcas(4, 1), 1);
    EXPECT_EQ(Registro().Texto2(4), "A A 9 7 2");
    EXPECT_EQ(Registro().Texto1(1), "");
}

TEST_F(ManosDePoker, EnUnEmpateElPuntoImparEsDelPrimeroYEnsenanTodos) {
    Da(1, "Ao Ac 9e 7b 3o");
    Da(3, "Ae Ab 9o 7c 3e");
    Da(4, "Ko Kc 9b 7e 3c");
    Puso(1, kSalida, 10);
    Puso(3, kSalida, 10);
    Puso(4, kSalida, 10);
    Puso(2, kSalida, 1);
    estado.JugadoresEnMano = 3;
    ASSERT_TRUE(FinalDeMano());
    EXPECT_EQ(p.mensajes[0].texto,
              "Ana : Pareja de Ases\r\nEva : Pareja de Ases\r\nBlas : Pareja de "
              "Reyes\r\n\r\nHan empatado la mano Ana y Eva");
    EXPECT_EQ(p.mensajes[0].lineas, 5);
    EXPECT_EQ(estado.GanadorMano, 0);
    EXPECT_EQ(RestoDe(1), 116);
    EXPECT_EQ(RestoDe(3), 115);
    EXPECT_EQ(Registro().Marcas(1, 1), 1);
    EXPECT_EQ(Registro().Marcas(3, 1), 1);
    EXPECT_EQ(Registro().Marcas(4, 1), 2) << "the next rank is the next number";
}

TEST_F(ManosDePoker, CuatroGanadoresPidenUnRenglonMas) {
    Da(1, "Ao Kc 9e 7b 3o");
    Da(2, "Ac Ke 9b 7o 3c");
    Da(3, "Ae Kb 9o 7c 3e");
    Da(4, "Ab Ko 9c 7e 3b");
    estado.JugadoresEnMano = 4;
    for (Integer asiento = 1; asiento <= 4; ++asiento)
        Puso(asiento, kSalida, 5);
    ASSERT_TRUE(FinalDeMano());
    EXPECT_EQ(p.mensajes[0].lineas, 4 + 1 + 1 + 1);
    EXPECT_TRUE(p.mensajes[0].texto.ends_with("Han empatado la mano Ana, Luis, Eva y Blas"));
}

TEST_F(ManosDePoker, QuienNoTieneFichasNiApuestasVaConRayas) {
    Da(1, "Ao Kc 9e 7b 3o");
    Tiene(3, 0);
    estado.JugadoresEnMano = 1;
    Puso(1, kSalida, 5);
    ASSERT_TRUE(FinalDeMano());
    EXPECT_EQ(Registro().Texto1(3), "----");
    EXPECT_EQ(Registro().Texto1(2), "");
}

TEST_F(ManosDePoker, LasCartasDelRegistroVanConSusLetrasYElComodinConSuSigno) {
    estado.ComodinesJuego = 2;
    Juega(kPoker);
    Da(1, "10o 10c Je Kb #");
    estado.JugadoresEnMano = 1;
    Puso(1, kSalida, 5);
    ASSERT_TRUE(FinalDeMano());
    EXPECT_EQ(Registro().Texto1(1), "Trio");
    EXPECT_EQ(Registro().Texto2(1), "10 10 # K J");
}

TEST_F(ManosDePoker, SinFichasElManoLoEsElSiguienteQueTiene) {
    estado.JuegosJugados = 2;
    Tiene(2, 0);
    PasaLaManoConResto();
    EXPECT_EQ(estado.JugadorMano, 3);
}

TEST_F(ManosDePoker, LaPartidaAcabaCuandoUnoSoloTieneFichas) {
    EXPECT_FALSE(AcabaPoker());
    Tiene(1, 0);
    Tiene(3, 0);
    EXPECT_FALSE(AcabaPoker());
    Tiene(4, 0);
    EXPECT_TRUE(AcabaPoker());
    EXPECT_EQ(estado.GanadorPartida, 2);
    EXPECT_EQ(TextoFinalPoker(), "Ha ganado la partida Luis");
    estado.GanadorPartida = 4;
    EXPECT_EQ(TextoFinalPoker(), "Blas, has ganado la partida. ");
}

TEST_F(ManosDePoker, PorParejasLaPartidaEsDeLosDos) {
    estado.ModalidadJuego = kDosParejas;
    estado.GanadorPartida = 3;
    EXPECT_EQ(TextoFinalPoker(), "Han ganado la partida Ana y Eva");
    estado.GanadorPartida = 4;
    EXPECT_EQ(TextoFinalPoker(), "Luis y Blas, habéis ganado la partida. ");
}

TEST_F(ManosDePoker, UnaPartidaGuardadaConUnSoloAsientoConFichasSoloAcaba) {
    for (const Integer asiento : std::initializer_list<Integer>{1, 2, 4})
        Tiene(asiento, 0);
    ManoPoker();
    EXPECT_EQ(Titulos(),
              (std::vector<std::string>{"Final de Partida", "Histórico de partidas jugadas"}));
    EXPECT_EQ(estado.GanadorPartida, 3);
    EXPECT_EQ(estado.JuegosJugados, 1);
    EXPECT_FALSE(estado.PartidaEnCurso);
}
