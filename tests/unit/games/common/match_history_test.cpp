// A finished match enters the history: who has won and lost it and by how much in each game, and what is asked.

#include "games/common/match_history.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>

#include "betting/bet_state.h"
#include "betting/chips.h"
#include "games/common/hands.h"
#include "tests/support/open_forms.h"

namespace {

using testing::ElementsAre;
using testing::Field;
using testing::HasSubstr;
using testing::IsEmpty;

class MatchHistoryTest : public testing::Test {
protected:
    // A match that is over, the seats with what they hold.
    void ConDinero(Integer juego, std::array<Integer, 4> restos) {
        mesa.Pon(juego);
        estado.JugadorBanca = 2;
        for (Integer asiento = 1; asiento <= 4; ++asiento)
            AsignarResto(asiento, restos[static_cast<std::size_t>(asiento - 1)]);
    }
    void PorManos(Integer juego, std::array<Integer, 4> manos, Integer ganador) {
        mesa.Pon(juego);
        for (int asiento = 1; asiento <= 4; ++asiento)
            estado.JuegosGanados(asiento) = manos[static_cast<std::size_t>(asiento - 1)];
        estado.GanadorPartida = ganador;
    }
    void Contesta(std::initializer_list<Boton> respuestas) {
        for (const Boton boton : respuestas)
            mesa.Responde(boton);
    }
    std::vector<std::string> Titulos() {
        std::vector<std::string> titulos;
        for (const CajaMensaje& caja : mesa.Mensajes())
            titulos.push_back(caja.titulo);
        return titulos;
    }
    prueba::MesaConFormas mesa;
};

constexpr const char* kPregunta = "Histórico de partidas jugadas";
constexpr const char* kError = "Error al guardar los datos";

TEST_F(MatchHistoryTest, InTheGamesOfHandsTheFigureIsTheHandsWon) {
    for (const Integer juego : {kTute, kBrisca, kCinquillo}) {
        PorManos(juego, {1, 0, 3, 2}, 3);
        const PartidaTerminada partida = RecuerdaPartida();
        EXPECT_THAT(partida.ganadores, ElementsAre(Anotado{"Jugador3", 3}));
        EXPECT_THAT(partida.perdedores, ElementsAre(Anotado{"Jugador1", 1}, Anotado{"Jugador2", 0},
                                                    Anotado{"Jugador4", 2}));
        EXPECT_FALSE(partida.por_parejas);
    }
}

TEST_F(MatchHistoryTest, ASeatThatDoesNotPlayIsNotAmongTheLosers) {
    PorManos(kTute, {3, 0, 0, 2}, 1);
    estado.EstadoJugador(2) = kDesactivado;
    EXPECT_THAT(RecuerdaPartida().perdedores,
                ElementsAre(Anotado{"Jugador3", 0}, Anotado{"Jugador4", 2}));
}

TEST_F(MatchHistoryTest, InPairsTheTeamsFigureStandsAtItsFirstName) {
    PorManos(kBrisca, {1, 3, 0, 0}, 2);
    estado.ModalidadJuego = kDosParejas;
    const PartidaTerminada partida = RecuerdaPartida();
    EXPECT_THAT(partida.ganadores, ElementsAre(Anotado{"Jugador2", 3}, Anotado{"Jugador4", 0}));
    EXPECT_THAT(partida.perdedores, ElementsAre(Anotado{"Jugador1", 1}, Anotado{"Jugador3", 0}));
    EXPECT_TRUE(partida.por_parejas);
}

TEST_F(MatchHistoryTest, InPokerTheFigureIsWhatTheChipsHaveGained) {
    ConDinero(kPoker, {0, 0, 800, 0});
    estado.GanadorPartida = 3;
    const PartidaTerminada partida = RecuerdaPartida();
    EXPECT_THAT(partida.ganadores, ElementsAre(Anotado{"Jugador3", 600}));
    EXPECT_THAT(partida.perdedores,
                ElementsAre(Anotado{"Jugador1", -200}, Anotado{"Jugador2", -200},
                            Anotado{"Jugador4", -200}));
}

TEST_F(MatchHistoryTest, ThePotAndTheNumberOfSeatsCountForWhatASeatBeganWith) {
    ConDinero(kPoker, {250, 0, 0, 0});
    AsignarResto(kBote, 50);
    estado.EstadoJugador(2) = kDesactivado;
    estado.GanadorPartida = 1;
    EXPECT_THAT(RecuerdaPartida().ganadores, ElementsAre(Anotado{"Jugador1", 150}));
    EXPECT_THAT(RecuerdaPartida().perdedores,
                ElementsAre(Anotado{"Jugador3", -100}, Anotado{"Jugador4", -100}));
}

TEST_F(MatchHistoryTest, InPokerAPairHasItsMoneyTogether) {
    ConDinero(kPoker, {0, 300, 0, 500});
    estado.ModalidadJuego = kDosParejas;
    estado.GanadorPartida = 4;
    const PartidaTerminada partida = RecuerdaPartida();
    EXPECT_THAT(partida.ganadores, ElementsAre(Anotado{"Jugador2", 400}, Anotado{"Jugador4", 0}));
    EXPECT_THAT(partida.perdedores, ElementsAre(Anotado{"Jugador1", -400}, Anotado{"Jugador3", 0}));
}

TEST_F(MatchHistoryTest, InBlackJackTheBankWinsAloneWhenNobodyElseHasFunds) {
    ConDinero(kBlackJack, {0, 800, 0, 0});
    const PartidaTerminada partida = RecuerdaPartida();
    EXPECT_THAT(partida.ganadores, ElementsAre(Field(&Anotado::figura, 600)));
    EXPECT_THAT(partida.perdedores,
                ElementsAre(Anotado{"Jugador1", -200}, Anotado{"Jugador3", -200},
                            Anotado{"Jugador4", -200}));
}

TEST_F(MatchHistoryTest, InBlackJackWhoHasFundsWinsAgainstABankWithoutAny) {
    ConDinero(kBlackJack, {550, 0, 0, 250});
    estado.NombreJugador(2) = "Banca";
    const PartidaTerminada partida = RecuerdaPartida();
    EXPECT_THAT(partida.ganadores, ElementsAre(Anotado{"Jugador1", 350}, Anotado{"Jugador4", 50}));
    EXPECT_THAT(partida.perdedores, ElementsAre(Anotado{"Banca", -200}, Anotado{"Jugador3", -200}));
}

// Against a bank that is ruined one may win with less than at the start.
TEST_F(MatchHistoryTest, AWinnerOfBlackJackMayHaveLostMoney) {
    ConDinero(kBlackJack, {500, 0, 150, 150});
    EXPECT_THAT(
        RecuerdaPartida().ganadores,
        ElementsAre(Anotado{"Jugador1", 300}, Anotado{"Jugador3", -50}, Anotado{"Jugador4", -50}));
}

TEST_F(MatchHistoryTest, AGoldenMatchOfBlackJackIsWrittenToTheByte) {
    ConDinero(kBlackJack, {550, 0, 0, 250});
    estado.NombreJugador(2) = "Banca";
    mesa.LaPlataforma().primer_dia = {2026, 11, 20, 22, 47, 5};
    Contesta({Boton::Si});
    PreguntaPorHistorico();
    const char* raiz = std::getenv("ZOVIN_SOURCE");
    std::ifstream dorado(std::string(raiz == nullptr ? "." : raiz) +
                             "/tests/golden/history/ZOV3131.HIS",
                         std::ios::binary);
    std::stringstream bytes;
    bytes << dorado.rdbuf();
    EXPECT_EQ(mesa.Archivo("ZOV3131.HIS"), bytes.str());
}

TEST_F(MatchHistoryTest, OnANoNothingIsWritten) {
    PorManos(kTute, {3, 0, 0, 0}, 1);
    Contesta({Boton::No});
    PreguntaPorHistorico();
    EXPECT_FALSE(mesa.Hay("ZOV5131.HIS"));
    EXPECT_THAT(Titulos(), ElementsAre(kPregunta));
}

TEST_F(MatchHistoryTest, TheEndOfAMatchAsksAndWrites) {
    PorManos(kTute, {3, 0, 0, 0}, 1);
    Contesta({Boton::Salir, Boton::Si});
    FinalPartida();
    EXPECT_THAT(Titulos(), ElementsAre("Final de Partida", kPregunta));
    EXPECT_EQ(mesa.Archivo("ZOV5131.HIS").size(), kAnchoBloque);
    EXPECT_FALSE(estado.PartidaEnCurso);
}

TEST_F(MatchHistoryTest, AFullDiskIsToldAndAskedAboutAgainUntilItIsGivenUp) {
    PorManos(kTute, {3, 0, 0, 0}, 1);
    mesa.Memoria().de_solo_lectura.insert("juego");
    Contesta({Boton::Si, Boton::Salir, Boton::Si, Boton::Salir, Boton::No});
    PreguntaPorHistorico();
    EXPECT_THAT(Titulos(), ElementsAre(kPregunta, kError, kPregunta, kError, kPregunta));
    EXPECT_THAT(mesa.Mensajes()[1].texto, HasSubstr("ZOV5131.HIS"));
    EXPECT_FALSE(mesa.Hay("ZOV5131.HIS"));
}

TEST_F(MatchHistoryTest, WhoeverAlwaysSaysYesComesToAnEnd) {
    PorManos(kTute, {3, 0, 0, 0}, 1);
    mesa.Memoria().de_solo_lectura.insert("juego");
    PreguntaPorHistorico();
    EXPECT_EQ(mesa.Mensajes().back().titulo, kError);
}

} // namespace
