// The score report: which games are on its pages, what each game's record looks like, how the pages are turned.

#include "reports/marcador.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "forms/form.h"
#include "forms/refresh.h"
#include "tests/support/open_forms.h"

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

class MarcadorTest : public testing::Test {
protected:
    ~MarcadorTest() override { marcador::Deja(); }

    // A match that is over after so many games.
    void Acabada(Integer juego, Integer juegos) {
        mesa.Pon(juego);
        estado.JuegosJugados = juegos;
        for (int n = 1; n <= juegos; ++n)
            estado.Juegos(n).Inicio = "Ana";
    }
    static std::vector<std::string> Lineas(int pagina = 0) {
        return LineasDe(marcador::Pagina(pagina));
    }
    // The items of one line of the page.
    static std::vector<std::string> LineasEn(int y) {
        std::vector<std::string> lineas;
        const std::string altura = ", " + std::to_string(y) + ", ";
        for (const std::string& linea : Lineas()) {
            if (linea.find(altura) == linea.find(','))
                lineas.push_back(linea);
        }
        return lineas;
    }
    static void Pulsa(Integer boton) {
        informe.BotonActivo = boton;
        marcador::PulsaPagina();
    }
    prueba::MesaConFormas mesa;
};

// ---- which games, which page

TEST_F(MarcadorTest, WithNoFinishedGameThereIsOnlyTheHeadingAndNoManosGanadas) {
    Acabada(kTute, 1);
    estado.PartidaEnCurso = true;
    EXPECT_THAT(Lineas(), ElementsAre("506, 14, negro, normal, \"1 ene 2000  00:00:00\"",
                                      "16, 12, negro, negrita, \"INFORME DE LA PARTIDA ACTUAL\"",
                                      "16, 42, negro, normal, \"Mano   Sale\"",
                                      "168, 42, negro, normal, \"Jugador1\"",
                                      "294, 42, negro, normal, \"Jugador2\"",
                                      "420, 42, negro, normal, \"Jugador3\"",
                                      "546, 42, negro, normal, \"Jugador4\"",
                                      "282, 478, negro, normal, \"Página: 1 de 1\""));
}

TEST_F(MarcadorTest, TheGameUnderWayIsNotShownAndTheLastOneOfAFinishedMatchIs) {
    Acabada(kTute, 3);
    EXPECT_THAT(Lineas(), Contains(HasSubstr("\" 3\"")));
    estado.PartidaEnCurso = true;
    EXPECT_THAT(Lineas(), Contains(HasSubstr("\" 2\"")));
    EXPECT_THAT(Lineas(), Not(Contains(HasSubstr("\" 3\""))));
}

TEST_F(MarcadorTest, WithExactlyTenGamesTheLastPageIsPageOne) {
    Acabada(kTute, 10);
    estado.JuegosGanados(1) = 10;
    marcador::Abre();
    EXPECT_EQ(informe.PrimeraUltimaPagina, 1);
    EXPECT_THAT(Lineas(), Contains(HasSubstr("\"Página: 1 de 1\"")));
    EXPECT_THAT(Lineas(), Contains(HasSubstr("\" 1\"")));
    EXPECT_THAT(Lineas(), Contains(HasSubstr("\"10\"")));
    EXPECT_THAT(Lineas(), Contains(HasSubstr("Manos ganadas")));
}

TEST_F(MarcadorTest, TheReportOpensAtItsLastPage) {
    Acabada(kTute, 11);
    marcador::Abre();
    EXPECT_EQ(informe.PrimeraLinea, 11);
    EXPECT_EQ(informe.PrimeraUltimaPagina, 11);
    EXPECT_EQ(informe.UltimaLinea, 11);
    EXPECT_EQ(informe.LineasPagina, 10);
    EXPECT_THAT(Lineas(), Contains("282, 478, negro, normal, \"Página: 2 de 2\""));
    EXPECT_THAT(Lineas(), Not(Contains(HasSubstr("\"10\""))));
}

TEST_F(MarcadorTest, ThePageButtonsGoToTheEndsAndOnePageOn) {
    Acabada(kTute, 35);
    marcador::Abre();
    EXPECT_EQ(informe.PrimeraLinea, 31);
    Pulsa(kRetrocede);
    EXPECT_EQ(informe.PrimeraLinea, 21);
    Pulsa(kAlPrincipio);
    EXPECT_EQ(informe.PrimeraLinea, 1);
    Pulsa(kAvanza);
    EXPECT_EQ(informe.PrimeraLinea, 11);
    Pulsa(kAlFinal);
    EXPECT_EQ(informe.PrimeraLinea, 31);
}

TEST_F(MarcadorTest, AtTheEndsThereIsNothingToTurnTo) {
    Acabada(kTute, 35);
    marcador::Abre();
    Pulsa(kAvanza);
    EXPECT_EQ(informe.PrimeraLinea, 31);
    Pulsa(kAlPrincipio);
    Pulsa(kRetrocede);
    EXPECT_EQ(informe.PrimeraLinea, 1);
    Pulsa(0);
    EXPECT_EQ(informe.PrimeraLinea, 1);
}

TEST_F(MarcadorTest, APageIsLookedAtWithoutTurningToIt) {
    Acabada(kTute, 35);
    marcador::Abre();
    EXPECT_THAT(Lineas(2), Contains(HasSubstr("\"11\"")));
    EXPECT_EQ(informe.PrimeraLinea, 31);
    EXPECT_THROW(marcador::Pagina(5), IndiceFuera);
    EXPECT_THROW(marcador::Pagina(-1), IndiceFuera);
    EXPECT_EQ(marcador::NumeroDePaginas(), 4);
}

TEST_F(MarcadorTest, TheButtonUnderThePointer) {
    const auto boton = [](int x, int y) {
        CualBoton(x, y);
        return informe.BotonActivo;
    };
    EXPECT_THAT((std::vector<Integer>{boton(1, 1), boton(24, 24), boton(30, 1), boton(53, 24),
                                      boton(59, 12), boton(82, 12), boton(88, 12), boton(111, 24)}),
                ElementsAre(1, 1, 2, 2, 3, 3, 4, 4));
    EXPECT_THAT((std::vector<Integer>{boton(0, 12), boton(25, 12), boton(29, 12), boton(54, 12),
                                      boton(58, 12), boton(83, 12), boton(87, 12), boton(112, 12),
                                      boton(12, 0), boton(12, 25)}),
                testing::Each(0));
}

TEST_F(MarcadorTest, EachPageButtonSaysWhereItGoes) {
    EXPECT_STREQ(marcador::Sugerencia(1), "Ir al principio ");
    EXPECT_STREQ(marcador::Sugerencia(2), "Retroceder una página ");
    EXPECT_STREQ(marcador::Sugerencia(3), "Avanzar una página ");
    EXPECT_STREQ(marcador::Sugerencia(4), "Ir al final ");
    EXPECT_STREQ(marcador::Sugerencia(0), "");
    EXPECT_STREQ(marcador::Sugerencia(5), "");
}

TEST_F(MarcadorTest, TheHistoryIsOpenedOverItAndReturnsToIt) {
    Acabada(kTute, 3);
    const MandosForma& mandos = *MandosDe(Forma::Marcador);
    mandos.abre();
    EXPECT_TRUE(mandos.pulsa("Pic_BotHistorico", 0));
    EXPECT_THAT(mesa.LaPlataforma().formas_abiertas, ElementsAre(Forma::Historic));
    EXPECT_TRUE(mandos.abierta());
    EXPECT_TRUE(mandos.pulsa("Pic_BotAyuda", 0));
    EXPECT_THAT(mesa.LaPlataforma().temas_ayuda, ElementsAre(kAyudaMarcador));
    EXPECT_FALSE(mandos.pulsa("Pic_BotAdeAtr", 5));
    EXPECT_FALSE(mandos.pulsa("Pic_Selector", 1));
    EXPECT_TRUE(mandos.cierra());
    EXPECT_FALSE(mandos.abierta());
    EXPECT_THAT(mesa.Sonidos(), ElementsAre(kSonidoSalir));
}

TEST_F(MarcadorTest, TheHeadTellsDateAndTimeInSpanish) {
    Acabada(kTute, 1);
    mesa.LaPlataforma().primer_dia = {2026, 11, 20, 22, 47, 5};
    EXPECT_THAT(Lineas(), Contains("499, 14, negro, normal, \"20 nov 2026  22:47:05\""));
}

// ---- Tute, Brisca, Cinquillo

TEST_F(MarcadorTest, TuteTellsPointsAndCantesAndMarksTheWinner) {
    Acabada(kTute, 1);
    RegistroJuego& registro = estado.Juegos(1);
    registro.Texto1 = {};
    registro.Texto1(1) = "85";
    registro.Cifra(1) = 2;
    registro.Marcas(1, 1) = 1;
    registro.Texto1(2) = "5";
    registro.Texto1(3) = "0";
    registro.Cifra(3) = 1;
    registro.Texto1(4) = "130";
    EXPECT_THAT(LineasEn(62), ElementsAre("16, 62, gris claro, normal, regla 646 62"));
    EXPECT_THAT(LineasEn(66), ElementsAre("23, 66, negro, normal, \" 1\"",
                                          "65, 66, negro, normal, \"Ana        \"",
                                          "136, 66, rojo, normal, \" 85 ptos /2 acus\"",
                                          "262, 66, azul, normal, \"  5 ptos\"",
                                          "388, 66, azul, normal, \"1 acus\"",
                                          "514, 66, azul, normal, \"130 ptos\""));
}

TEST_F(MarcadorTest, ATuteAtTheDealLeavesTheCellEmptyButForTheNote) {
    Acabada(kTute, 1);
    RegistroJuego& registro = estado.Juegos(1);
    for (int asiento = 1; asiento <= 4; ++asiento)
        registro.Texto1(asiento) = "0";
    registro.Marcas(3, 1) = 1;
    registro.Texto2(3) = "Tute de Reyes";
    EXPECT_THAT(LineasEn(66), SizeIs(2)); // the number and who led
    EXPECT_THAT(LineasEn(80), ElementsAre("392, 80, rojo, normal, \"Tute de Reyes\""));
}

TEST_F(MarcadorTest, InPairsSeatThreeOrFourIsRedThroughItsPartnersMark) {
    Acabada(kTute, 1);
    estado.ModalidadJuego = kDosParejas;
    estado.ParejaAsiento(2) = 4;
    estado.ParejaAsiento(4) = 2;
    RegistroJuego& registro = estado.Juegos(1);
    for (int asiento = 1; asiento <= 4; ++asiento)
        registro.Texto1(asiento) = "30";
    registro.Marcas(2, 1) = 1;
    registro.Texto2(4) = "Tute de Caballos";
    EXPECT_THAT(LineasEn(66), testing::IsSupersetOf({"136, 66, azul, normal, \" 30 ptos\"",
                                                     "262, 66, rojo, normal, \" 30 ptos\"",
                                                     "388, 66, azul, normal, \" 30 ptos\"",
                                                     "514, 66, rojo, normal, \" 30 ptos\""}));
    EXPECT_THAT(LineasEn(80), ElementsAre("518, 80, rojo, normal, \"Tute de Caballos\""));
    estado.ModalidadJuego = kIndividual;
    EXPECT_THAT(LineasEn(80), ElementsAre("518, 80, azul, normal, \"Tute de Caballos\""));
}

TEST_F(MarcadorTest, InBriscaTheOnlyLineStandsLower) {
    Acabada(kBrisca, 1);
    estado.Juegos(1).Texto1(2) = "61";
    estado.Juegos(1).Marcas(2, 1) = 1;
    EXPECT_THAT(LineasEn(72), ElementsAre("23, 72, negro, normal, \" 1\"",
                                          "65, 72, negro, normal, \"Ana        \"",
                                          "262, 72, rojo, normal, \" 61 ptos\""));
}

TEST_F(MarcadorTest, ASeatThatDoesNotPlayHasItsNameAndNothingElse) {
    Acabada(kTute, 1);
    estado.EstadoJugador(3) = kDesactivado;
    for (int asiento = 1; asiento <= 4; ++asiento)
        estado.Juegos(1).Texto1(asiento) = "30";
    estado.JuegosGanados(1) = 1;
    EXPECT_THAT(LineasEn(42), SizeIs(5));
    EXPECT_THAT(LineasEn(66), Not(Contains(HasSubstr("388, "))));
    EXPECT_THAT(LineasEn(110),
                ElementsAre("16, 110, negro, negrita, \"Manos ganadas\"",
                            "178, 110, verde, normal, \"1\"", "304, 110, verde, normal, \"0\"",
                            "556, 110, verde, normal, \"0\""));
}

TEST_F(MarcadorTest, CinquilloCountsAgainstTheLosersAndKeepsTheCardsBlue) {
    Acabada(kCinquillo, 1);
    RegistroJuego& registro = estado.Juegos(1);
    registro.Texto1(1) = "21";
    registro.Marcas(1, 1) = 1;
    registro.Texto1(2) = "7";
    registro.Texto2(2) = "2 12 ";
    registro.Texto1(3) = "14";
    registro.Texto2(3) = "A 7 10 ";
    registro.Texto1(4) = "0";
    EXPECT_THAT(LineasEn(66),
                testing::IsSupersetOf(
                    {"136, 66, rojo, normal, \" 21 ptos\"", "262, 66, azul, normal, \"-7 ptos\"",
                     "388, 66, azul, normal, \"-14 ptos\"", "514, 66, azul, normal, \"-\""}));
    EXPECT_THAT(LineasEn(80), ElementsAre("266, 80, azul, normal, \"2 12 \"",
                                          "392, 80, azul, normal, \"A 7 10 \""));
}

TEST_F(MarcadorTest, AWinnersCardsInCinquilloWouldBeBlueToo) {
    Acabada(kCinquillo, 1);
    estado.Juegos(1).Marcas(2, 1) = 1;
    estado.Juegos(1).Texto2(2) = "A ";
    EXPECT_THAT(LineasEn(80), ElementsAre("266, 80, azul, normal, \"A \""));
}

TEST_F(MarcadorTest, ALongListOfCardsIsDrawnNarrowerThanItsColumn) {
    Acabada(kCinquillo, 1);
    estado.Juegos(1).Texto2(2) = "A 2 3 4 6 7 10 11 12 ";
    const PaginaImpresa pagina = marcador::Pagina();
    const auto cartas =
        std::ranges::find_if(pagina.Impresos(), [](const Impreso& i) { return i.x == 266; });
    ASSERT_NE(cartas, pagina.Impresos().end());
    EXPECT_EQ(cartas->x2, 3 * 126);
}

TEST_F(MarcadorTest, TheHandsWonStandOnTheLastPageAlone) {
    Acabada(kTute, 12);
    estado.JuegosGanados(2) = 12;
    EXPECT_THAT(Lineas(1), Not(Contains(HasSubstr("Manos ganadas"))));
    EXPECT_THAT(Lineas(2), testing::IsSupersetOf({"16, 146, negro, negrita, \"Manos ganadas\"",
                                                  "304, 146, verde, normal, \"12\""}));
    estado.JuegosGanados.Borra();
    EXPECT_THAT(Lineas(2), Not(Contains(HasSubstr("Manos ganadas"))));
}

TEST_F(MarcadorTest, InPairsTheHandsWonAreTheTeams) {
    Acabada(kBrisca, 1);
    estado.ModalidadJuego = kDosParejas;
    estado.NombreJugador(1) = "Ana";
    estado.NombreJugador(2) = "Luis";
    estado.NombreJugador(3) = "Eva";
    estado.NombreJugador(4) = "Pepe";
    estado.JuegosGanados(1) = 2;
    estado.JuegosGanados(2) = 11;
    EXPECT_THAT(
        LineasEn(110),
        ElementsAre("16, 110, negro, negrita, \"Manos ganadas\"", "107, 110, negro, negrita, \":\"",
                    "126, 110, azul oscuro, normal, \"Ana y \"", "168, 110, negro, normal, \"Eva\"",
                    "189, 110, negro, normal, \" = \"", "210, 110, verde, normal, \"2\"",
                    "378, 110, azul oscuro, normal, \"Luis y \"",
                    "427, 110, negro, normal, \"Pepe\"", "455, 110, negro, normal, \" = \"",
                    "476, 110, verde, normal, \"11\""));
}

// ---- Póker

TEST_F(MarcadorTest, PokerTellsTheHandItsCardsAndThePot) {
    Acabada(kPoker, 1);
    RegistroJuego& registro = estado.Juegos(1);
    registro.Total = 120;
    registro.Marcas(1, 1) = 2;
    registro.Texto1(1) = "Pareja de J";
    registro.Texto2(1) = "J J 9 7 3";
    registro.Marcas(4, 1) = 1;
    registro.Texto1(4) = "Trío de 8";
    registro.Texto2(4) = "8 8 8 K 2";
    registro.Texto1(3) = "----";
    EXPECT_THAT(LineasEn(42),
                testing::IsSupersetOf({"16, 42, negro, normal, \"Mano   Sale        \"",
                                       "644, 42, negro, normal, \"Ganancias\""}));
    EXPECT_THAT(
        LineasEn(66),
        ElementsAre("23, 66, negro, normal, \" 1\"", "65, 66, azul, normal, \"Ana        \"",
                    "136, 66, azul, normal, \"Pareja de J\"", "388, 66, azul, normal, \"----\"",
                    "514, 66, rojo, normal, \"Trío de 8\"", "661, 66, negro, normal, \" 120\""));
    // The winner's cards too: they go by another column of marks.
    EXPECT_THAT(LineasEn(80), ElementsAre("136, 80, azul, normal, \"J J 9 7 3\"",
                                          "514, 80, azul, normal, \"8 8 8 K 2\""));
    registro.Marcas(4, 3) = 1;
    EXPECT_THAT(LineasEn(80), Contains("514, 80, rojo, normal, \"8 8 8 K 2\""));
    EXPECT_THAT(Lineas(), Not(Contains(HasSubstr("regla"))));
    EXPECT_THAT(Lineas(), Not(Contains(HasSubstr("caja"))));
}

// ---- Siete y media

TEST_F(MarcadorTest, SieteYMediaTellsFourSeriesAndBoxesTheFirstOfThoseAgainstTheBank) {
    Acabada(kSieteYMedia, 1);
    estado.NombreJugador(2) = "Ana"; // the bank of the record
    RegistroJuego& registro = estado.Juegos(1);
    registro.Total = -35;
    registro.Texto1(1) = "7 y 1/2Se pasó";
    registro.Texto2(1) = "5      Media  ";
    registro.Marcas(1, 1) = 1;
    registro.Marcas(1, 4) = 1;
    registro.Texto1(2) = "6             ";
    registro.Texto1(3) = "              ";
    EXPECT_THAT(LineasEn(42),
                testing::IsSupersetOf({"16, 42, negro, normal, \"Mano   Banca       \"",
                                       "644, 42, negro, normal, \"Resultado\""}));
    EXPECT_THAT(LineasEn(62), ElementsAre("16, 62, negro, normal, regla 707 62"));
    EXPECT_THAT(LineasEn(65), ElementsAre("133, 65, negro, normal, caja 195 79"));
    EXPECT_THAT(
        LineasEn(66),
        ElementsAre("23, 66, negro, normal, \" 1\"", "65, 66, azul, normal, \"Ana        \"",
                    "138, 66, rojo, normal, \"7 y 1/2\"", "201, 66, azul, normal, \"Se pasó\"",
                    "264, 66, azul, normal, \"6      \"", "661, 66, negro, normal, \" -35\""));
    EXPECT_THAT(LineasEn(80), ElementsAre("138, 80, azul, normal, \"5      \"",
                                          "201, 80, rojo, normal, \"Media  \""));
}

TEST_F(MarcadorTest, ARuleTellsEachChangeOfBankAndOpensThePage) {
    Acabada(kSieteYMedia, 12);
    estado.Juegos(3).Inicio = "Luis";
    std::vector<std::string> reglas;
    for (int pagina : {1, 2}) {
        for (const std::string& linea : Lineas(pagina)) {
            if (linea.find("regla") != std::string::npos)
                reglas.push_back(linea);
        }
    }
    // Above games 1, 3 and 4, and above game 11, which opens the second page.
    EXPECT_THAT(reglas, ElementsAre("16, 62, negro, normal, regla 707 62",
                                    "16, 134, negro, normal, regla 707 134",
                                    "16, 170, negro, normal, regla 707 170",
                                    "16, 62, negro, normal, regla 707 62"));
}

// ---- Black Jack

TEST_F(MarcadorTest, BlackJackBeginsWithTheSeatAfterTheBank) {
    Acabada(kBlackJack, 1);
    estado.JugadorBanca = 2;
    estado.NombreJugador(2) = "Banca";
    RegistroJuego& registro = estado.Juegos(1);
    registro.Total = 40;
    registro.Texto1(3) = "Black J20     ";
    registro.Marcas(3, 1) = 1;
    registro.Texto2(4) = "18     Se pasó";
    registro.Marcas(4, 3) = 1;
    registro.Texto1(2) = "19             ";
    registro.Marcas(2, 1) = 1;
    EXPECT_THAT(
        LineasEn(42),
        ElementsAre("16, 42, negro, normal, \"Mano\"", "134, 42, negro, normal, \"Jugador3\"",
                    "278, 42, negro, normal, \"Jugador4\"", "422, 42, negro, normal, \"Jugador1\"",
                    "566, 42, negro, normal, \"Banca\"", "710, 42, negro, normal, \"Resultado\""));
    EXPECT_THAT(LineasEn(66),
                ElementsAre("23, 66, negro, normal, \" 1\"", "136, 66, rojo, normal, \"BlackJack\"",
                            "199, 66, azul, normal, \"20     \"",
                            "568, 66, rojo, normal, \"19     \"",
                            "727, 66, negro, normal, \"  40\""));
    EXPECT_THAT(LineasEn(80), ElementsAre("280, 80, rojo, normal, \"18     \"",
                                          "343, 80, azul, normal, \"Se pasó\""));
    EXPECT_THAT(Lineas(), Not(Contains(HasSubstr("regla"))));
}

TEST_F(MarcadorTest, BlackJackGoesRoundTheOtherWayToo) {
    Acabada(kBlackJack, 0);
    estado.JugadorBanca = 2;
    estado.NombreJugador(2) = "Banca";
    estado.PasoSentido = -1;
    EXPECT_THAT(LineasEn(42),
                testing::IsSupersetOf(
                    {"134, 42, negro, normal, \"Jugador1\"", "278, 42, negro, normal, \"Jugador4\"",
                     "422, 42, negro, normal, \"Jugador3\"", "566, 42, negro, normal, \"Banca\""}));
}

} // namespace
