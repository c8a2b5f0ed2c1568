// The history files: the bytes of a block, what is read of any bytes, how a match is added.

#include "storage/history.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <sstream>

#include "core/game_state.h"
#include "tests/support/settings_files.h"

namespace {

using testing::ElementsAre;

const PartidaTerminada kPartida{.fin = {2026, 11, 20, 22, 47, 5},
                                .ganadores = {{"Peña", 3}},
                                .perdedores = {{"Luis", 2}, {"Eva", 1}, {"Pepe", 0}}};

class HistoryTest : public testing::Test {
protected:
    HistoryTest() { mesa.Empieza(kTute); }
    std::string& Archivo() { return mesa.Archivo("ZOV5131.HIS"); }
    prueba::SesionConArchivos mesa;
};

std::string Dorado(const std::string& nombre) {
    const char* raiz = std::getenv("ZOVIN_SOURCE");
    std::ifstream archivo(std::string(raiz == nullptr ? "." : raiz) + "/tests/golden/history/" +
                              nombre,
                          std::ios::binary);
    std::stringstream bytes;
    bytes << archivo.rdbuf();
    return bytes.str();
}

TEST_F(HistoryTest, EachGameHasItsFile) {
    EXPECT_EQ(NombreHistorico(kPoker), "ZOV0131.HIS");
    EXPECT_EQ(NombreHistorico(kBlackJack), "ZOV3131.HIS");
    EXPECT_EQ(NombreHistorico(kTute), "ZOV5131.HIS");
    EXPECT_EQ(NombreHistorico(kBrisca), "ZOV5831.HIS");
    EXPECT_EQ(NombreHistorico(kSieteYMedia), "ZOV6531.HIS");
    EXPECT_EQ(NombreHistorico(kCinquillo), "ZOV7031.HIS");
}

TEST_F(HistoryTest, ABlockIsPlainTextInItsColumns) {
    const std::string bloque = EscribeBloque(kPartida);
    //                       1           13       22       31       40   45   50
    EXPECT_EQ(bloque.substr(0, 54), "202611202247Pe\xF1"
                                    "a                           3          ");
    //                       55       64       73       82   87   92   97
    EXPECT_EQ(bloque.substr(54, 43), "Luis     Eva      Pepe         2    1    01");
    EXPECT_EQ(bloque.substr(97), std::string(83, ' ') + "\r\n");
    EXPECT_EQ(bloque.size(), 182U);
}

TEST_F(HistoryTest, OfAPairTheFigureStandsAtItsFirstName) {
    const std::string bloque = EscribeBloque({.fin = {2026, 1, 2, 3, 4, 5},
                                              .ganadores = {{"Ana", 3}, {"Eva", 0}},
                                              .perdedores = {{"Luis", 2}, {"Pepe", 0}},
                                              .por_parejas = true});
    EXPECT_EQ(bloque.substr(0, 97), "202601020304Ana      Eva                   3          "
                                    "Luis     Pepe                  2          2");
}

TEST_F(HistoryTest, NamesAndFiguresAreCutToTheirColumns) {
    const std::string bloque =
        EscribeBloque({.fin = {2026, 1, 2, 3, 4, 5},
                       .ganadores = {{"Maximiliano", 100000}, {"a", -10000}, {"b", 1}, {"c", 2}},
                       .perdedores = {}});
    EXPECT_EQ(bloque.substr(12, 42), "Maximiliaa        b        99999-9999    1");
    EXPECT_EQ(bloque.size(), 182U);
}

TEST_F(HistoryTest, ANameOfAnotherAlphabetKeepsTheBlocksInStep) {
    const std::string bloque = EscribeBloque(
        {.fin = {2026, 1, 2, 3, 4, 5}, .ganadores = {{"Ñandú€Ωé", 1}}, .perdedores = {}});
    EXPECT_EQ(bloque.substr(12, 9), "\xD1"
                                    "and\xFA\x80?\xE9 ");
    EXPECT_EQ(bloque.size(), 182U);
}

TEST_F(HistoryTest, AMatchIsAddedAtTheEnd) {
    ASSERT_EQ(AnadeAlHistorico(kTute, kPartida), ErrorArchivo::Ninguno);
    const std::string primero = Archivo();
    EXPECT_EQ(primero, EscribeBloque(kPartida));
    PartidaTerminada otra = kPartida;
    otra.fin.dia = 21;
    ASSERT_EQ(AnadeAlHistorico(kTute, otra), ErrorArchivo::Ninguno);
    EXPECT_EQ(Archivo(), primero + EscribeBloque(otra));
    EXPECT_FALSE(mesa.Hay("ZOV5131.HIS.MAL"));
}

TEST_F(HistoryTest, ACutBlockIsKeptAsideAndTheNextOneStandsInStep) {
    const std::string cortado = EscribeBloque(kPartida) + "20261120";
    Archivo() = cortado;
    EXPECT_EQ(LeeHistorico(kTute).Partidas(), 1);
    EXPECT_EQ(Archivo(), cortado); // reading changes nothing
    ASSERT_EQ(AnadeAlHistorico(kTute, kPartida), ErrorArchivo::Ninguno);
    EXPECT_EQ(Archivo(), EscribeBloque(kPartida) + EscribeBloque(kPartida));
    EXPECT_EQ(mesa.Archivo("ZOV5131.HIS.MAL"), cortado);
}

TEST_F(HistoryTest, NothingIsLostOfAFileOfAnyBytes) {
    std::string basura;
    for (int i = 0; i < 364; ++i)
        basura += static_cast<char>(i * 37 % 256);
    Archivo() = basura;
    ASSERT_EQ(AnadeAlHistorico(kTute, kPartida), ErrorArchivo::Ninguno);
    EXPECT_EQ(Archivo(), basura + EscribeBloque(kPartida));
    EXPECT_EQ(LeeHistorico(kTute).Partidas(), 3);
}

TEST_F(HistoryTest, WhereNothingCanBeWrittenTheOldHistoryIsWhole) {
    Archivo() = EscribeBloque(kPartida);
    mesa.Memoria().de_solo_lectura = {"juego"};
    EXPECT_EQ(AnadeAlHistorico(kTute, kPartida), ErrorArchivo::SinPermiso);
    EXPECT_EQ(Archivo(), EscribeBloque(kPartida));
}

TEST_F(HistoryTest, ACutFileThatCannotBeKeptAsideIsNotTouched) {
    Archivo() = EscribeBloque(kPartida) + "2026";
    mesa.Memoria().de_solo_lectura = {"juego"};
    EXPECT_EQ(AnadeAlHistorico(kTute, kPartida), ErrorArchivo::SinPermiso);
    EXPECT_EQ(Archivo(), EscribeBloque(kPartida) + "2026");
}

TEST_F(HistoryTest, AMissingFileIsEmpty) {
    EXPECT_EQ(LeeHistorico(kTute).Partidas(), 0);
    EXPECT_FALSE(mesa.Hay("ZOV5131.HIS"));
}

TEST_F(HistoryTest, FiguresAreReadWithoutTheirBlanksAndNonsenseIsNothing) {
    std::string bloque = EscribeBloque(kPartida);
    bloque.replace(39, 15, " 1 2 -  7abc  ");
    const BloqueHistorico leido(bloque);
    EXPECT_EQ(leido.FiguraGanador(1), 12);
    EXPECT_EQ(leido.FiguraGanador(2), -7);
    EXPECT_EQ(leido.FiguraGanador(3), 0);
}

TEST_F(HistoryTest, AGoldenFileIsReadAndWrittenToTheByte) {
    Archivo() = Dorado("ZOV5131.HIS");
    const Historico historico = LeeHistorico(kTute);
    ASSERT_EQ(historico.Partidas(), 3);
    EXPECT_EQ(historico.Partida(1).Fecha(), "20-11-2026");
    EXPECT_EQ(historico.Partida(1).Hora(), "22:47");
    EXPECT_TRUE(historico.Partida(1).PorParejas());
    EXPECT_EQ(historico.Partida(1).Ganador(2), "Eva");
    EXPECT_EQ(historico.Partida(3).Fecha(), "31-12-2025");
    EXPECT_EQ(TextoDeHistorico(historico.Partida(3).Ganador(1)), "Peña");
    EXPECT_EQ(historico.Partida(3).FiguraPerdedor(3), 1);

    mesa.Memoria().contenidos.clear();
    const PartidaTerminada partidas[] = {
        {.fin = {2025, 12, 31, 23, 59, 59},
         .ganadores = {{"Peña", 3}},
         .perdedores = {{"Luis", 2}, {"Eva", 0}, {"Pepe", 1}}},
        {.fin = {2026, 1, 1, 0, 5, 0}, .ganadores = {{"Luis", 10}}, .perdedores = {{"Pepe", 9}}},
        {.fin = {2026, 11, 20, 22, 47, 5},
         .ganadores = {{"Luis", 3}, {"Eva", 0}},
         .perdedores = {{"Peña", 2}, {"Pepe", 0}},
         .por_parejas = true}};
    for (const PartidaTerminada& partida : partidas)
        ASSERT_EQ(AnadeAlHistorico(kTute, partida), ErrorArchivo::Ninguno);
    EXPECT_EQ(Archivo(), Dorado("ZOV5131.HIS"));
}

} // namespace
