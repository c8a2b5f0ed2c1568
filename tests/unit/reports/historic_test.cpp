// The history as a folder: the list of matches, the tabs with the totals, how its pages are turned.

#include "reports/historic.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

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

class HistoricTest : public testing::Test {
protected:
    ~HistoricTest() override { historic::Deja(); }

    void Pon(Integer juego) { mesa.Pon(juego); }
    void Juega(const FechaHora& fin, std::vector<Anotado> ganadores,
               std::vector<Anotado> perdedores, bool parejas = false) {
        mesa.Archivo(NombreHistorico(estado.JuegoActivo)) +=
            EscribeBloque({fin, std::move(ganadores), std::move(perdedores), parejas});
    }
    static FechaHora Dia(int dia) { return {2026, 11, dia, 22, 47, 0}; }
    static std::vector<std::string> Lineas(int pagina = 0) {
        return LineasDe(historic::Pagina(pagina));
    }
    // Name and count of each line of a tab.
    static std::vector<std::string> EnPestana(int pestana) {
        historic::PulsaPestana(pestana);
        std::vector<std::string> textos;
        const PaginaImpresa pagina = historic::Pagina();
        for (const Impreso& impreso : pagina.Impresos()) {
            if (impreso.y >= 58)
                textos.push_back(impreso.texto);
        }
        return textos;
    }
    void AbreTotales() {
        historic::Abre();
        historic::PulsaTotales();
    }
    prueba::MesaConFormas mesa;
};

TEST_F(HistoricTest, AMissingFileIsAnEmptyListWithoutTotals) {
    Pon(kTute);
    historic::Abre();
    EXPECT_FALSE(historic::HayTotales());
    EXPECT_THAT(
        Lineas(),
        ElementsAre(
            "16, 12, negro, normal, \"Fecha / Hora            Ganadores / Perdedores        "
            "         Manos  \""));
    historic::PulsaTotales();
    EXPECT_EQ(historic::Pestana(), 0);
    EXPECT_EQ(historic::MarcaDePagina(), "Página 1 de 1");
    EXPECT_THAT(mesa.Mensajes(), IsEmpty());
}

TEST_F(HistoricTest, EachMatchTakesTwoLinesTheNewestFirst) {
    Pon(kTute);
    Juega({2026, 11, 20, 9, 5, 0}, {{"Ana", 3}}, {{"Luis", 2}, {"Eva", 1}, {"Pepe", 0}});
    Juega({2026, 12, 1, 0, 30, 0}, {{"Luis", 5}}, {{"Ana", 4}});
    // Names are centred on 261, figures on 474.
    EXPECT_THAT(
        Lineas(),
        ElementsAre(
            testing::_, "16, 38, negro, normal, \"01-12-2026\"", "247, 38, negro, normal, \"Luis\"",
            "471, 38, negro, normal, \"5\"", "16, 53, negro, normal, \"00:30\"",
            "251, 53, negro, normal, \"Ana\"", "471, 53, negro, normal, \"4\"",
            "16, 76, negro, normal, \"20-11-2026\"", "251, 76, negro, normal, \"Ana\"",
            "471, 76, negro, normal, \"3\"", "16, 91, negro, normal, \"09:05\"",
            "209, 91, negro, normal, \"Luis, Eva, Pepe\"", "457, 91, negro, normal, \"2/1/0\""));
}

TEST_F(HistoricTest, OfAPairOnlyTheFirstFigureIsShown) {
    Pon(kBrisca);
    Juega(Dia(1), {{"Ana", 3}, {"Eva", 0}}, {{"Luis", 2}, {"Pepe", 0}}, true);
    EXPECT_THAT(Lineas(), testing::IsSupersetOf({"233, 38, negro, normal, \"Ana, Eva\"",
                                                 "471, 38, negro, normal, \"3\"",
                                                 "471, 53, negro, normal, \"2\""}));
}

TEST_F(HistoricTest, MoneyHasItsOwnHeading) {
    Pon(kSieteYMedia);
    Juega(Dia(1), {{"Ana", 600}}, {{"Luis", -200}, {"Eva", -200}, {"Pepe", -200}});
    EXPECT_THAT(Lineas(), Contains("16, 12, negro, normal, \"Fecha / Hora            Ganadores / "
                                   "Perdedores               Ganancias\""));
    EXPECT_THAT(Lineas(), Contains(HasSubstr("\"-200/-200/-200\"")));
}

TEST_F(HistoricTest, InBlackJackTheLosersAreBankrupt) {
    Pon(kBlackJack);
    Juega(Dia(1), {{"Ana", 150}, {"Eva", 250}}, {{"Banca", -200}, {"Luis", -200}});
    EXPECT_THAT(Lineas(), Contains(HasSubstr("\"150/250\"")));
    EXPECT_THAT(Lineas(), Contains("439, 53, negro, normal, \"Bancarrota\""));
    EXPECT_THAT(Lineas(), Not(Contains(HasSubstr("-200"))));
}

TEST_F(HistoricTest, TwoMatchesOfTheSameMinuteStandSideBySideByTheNames) {
    Pon(kTute);
    Juega(Dia(3), {{"Ana", 3}}, {{"Luis", 2}});
    Juega(Dia(3), {{"Zoe", 3}}, {{"Luis", 2}});
    Juega(Dia(3), {{"Eva", 3}}, {{"Luis", 2}});
    std::vector<std::string> ganadores;
    const PaginaImpresa pagina = historic::Pagina();
    for (const Impreso& impreso : pagina.Impresos()) {
        if (impreso.texto.size() == 3)
            ganadores.push_back(impreso.texto);
    }
    EXPECT_THAT(ganadores, ElementsAre("Zoe", "Eva", "Ana"));
}

TEST_F(HistoricTest, ANameThatHasOnlyLostHasNoLineInAnyTab) {
    Pon(kTute);
    Juega(Dia(1), {{"Ana", 3}, {"Eva", 0}}, {{"Luis", 2}, {"Pepe", 0}}, true);
    AbreTotales();
    for (int pestana = 1; pestana <= kPestanas; ++pestana) {
        EXPECT_THAT(EnPestana(pestana), Not(IsEmpty()));
        EXPECT_THAT(EnPestana(pestana), Not(Contains(HasSubstr("Luis"))));
    }
}

TEST_F(HistoricTest, TwoWinnersOfARecordCountOneEach) {
    Pon(kBlackJack);
    Juega(Dia(1), {{"Ana", 10}, {"Eva", 20}}, {{"Banca", -30}});
    AbreTotales();
    EXPECT_THAT(EnPestana(kPartidasDeJugador), ElementsAre("Eva", "1", "Ana", "1"));
    EXPECT_THAT(EnPestana(kFigurasDeJugador), ElementsAre("Eva", "20", "Ana", "10"));
    EXPECT_THAT(EnPestana(kPartidasDePareja), IsEmpty());
}

TEST_F(HistoricTest, MatchesOfPairsCountForEachNameToo) {
    Pon(kTute);
    Juega(Dia(1), {{"Ana", 3}, {"Eva", 0}}, {{"Luis", 2}, {"Pepe", 0}}, true);
    Juega(Dia(2), {{"Ana", 4}, {"Eva", 0}}, {{"Luis", 2}, {"Pepe", 0}}, true);
    Juega(Dia(3), {{"Ana", 5}}, {{"Luis", 2}});
    AbreTotales();
    EXPECT_THAT(EnPestana(kPartidasDeJugador), ElementsAre("Ana", "3", "Eva", "2"));
    EXPECT_THAT(EnPestana(kFigurasDeJugador), ElementsAre("Ana", "12", "Eva", "0"));
    EXPECT_THAT(EnPestana(kPartidasDePareja), ElementsAre("Ana y Eva", "2"));
    EXPECT_THAT(EnPestana(kFigurasDePareja), ElementsAre("Ana y Eva", "7"));
}

TEST_F(HistoricTest, EqualCountsComeInDescendingOrderOfTheNameInItsColumns) {
    Pon(kTute);
    for (const char* nombre : {"Ana", "Zoe", "Antonia", "Luis"})
        Juega(Dia(1), {{nombre, 3}}, {{"Eva", 2}});
    AbreTotales();
    // Right-aligned, a longer name begins where a shorter one still has blanks.
    EXPECT_THAT(EnPestana(kPartidasDeJugador),
                ElementsAre("Antonia", "1", "Luis", "1", "Zoe", "1", "Ana", "1"));
}

TEST_F(HistoricTest, ATotalOfMoreThanSixDigitsStopsThere) {
    Pon(kPoker);
    for (int n = 1; n <= 11; ++n)
        Juega(Dia(n), {{"Ana", 99999}}, {{"Luis", -1}});
    AbreTotales();
    EXPECT_THAT(EnPestana(kFigurasDeJugador), ElementsAre("Ana", "999999"));
}

TEST_F(HistoricTest, AWinnerWithoutANameIsCountedForItsFigure) {
    Pon(kTute);
    Juega(Dia(1), {{"Ana", 3}, {"", 2}, {"", 0}}, {{"Luis", 1}});
    AbreTotales();
    EXPECT_THAT(EnPestana(kPartidasDeJugador), ElementsAre("Ana", "1"));
    EXPECT_THAT(EnPestana(kFigurasDeJugador), ElementsAre("Ana", "3", "2"));
}

TEST_F(HistoricTest, EachTabHasItsHeadingsByTheGame) {
    const auto cabeceras = [this](Integer juego, int pestana) {
        Pon(juego);
        Juega(Dia(1), {{"Ana", 3}}, {{"Luis", 2}});
        AbreTotales();
        historic::PulsaPestana(pestana);
        std::vector<std::string> lineas;
        for (const std::string& linea : Lineas()) {
            if (linea.starts_with("16, "))
                lineas.push_back(linea);
        }
        return lineas;
    };
    for (const Integer juego : {kTute, kBrisca, kCinquillo}) {
        EXPECT_THAT(cabeceras(juego, 1),
                    ElementsAre("16, 12, verde, normal, \"Partidas ganadas por jugador\"",
                                "16, 34, negro, normal, \"                  Jugador                "
                                "   Partidas\""));
        EXPECT_THAT(cabeceras(juego, 2),
                    ElementsAre("16, 12, verde, normal, \"Manos ganadas por jugador\"",
                                "16, 34, negro, normal, \"                  Jugador                "
                                "    Manos  \""));
    }
    for (const Integer juego : {kPoker, kBlackJack, kSieteYMedia}) {
        EXPECT_THAT(cabeceras(juego, 2),
                    ElementsAre("16, 12, verde, normal, \"Ganancias obtenidas por jugador\"",
                                "16, 34, negro, normal, \"                  Jugador                "
                                "  Ganancias\""));
    }
    EXPECT_THAT(
        cabeceras(kTute, 3),
        ElementsAre("16, 12, verde, normal, \"Partidas ganadas por pareja\"",
                    "16, 34, negro, normal, \"                    Pareja                    "
                    "Partidas\""));
    EXPECT_THAT(
        cabeceras(kBrisca, 4),
        ElementsAre("16, 12, verde, normal, \"Manos ganadas por pareja\"",
                    "16, 34, negro, normal, \"                    Pareja                      "
                    "Manos  \""));
    EXPECT_THAT(cabeceras(kPoker, 4),
                ElementsAre("16, 12, verde, normal, \"Ganancias obtenidas por pareja\"",
                            "16, 34, negro, normal, \"                    Pareja                   "
                            "Ganancias\""));
}

// It is meant that the fourth tab has no heading where nobody ever plays in pairs.
TEST_F(HistoricTest, TheFourthTabHasAHeadingOnlyInPokerTuteAndBrisca) {
    for (const Integer juego : {kBlackJack, kSieteYMedia, kCinquillo}) {
        Pon(juego);
        Juega(Dia(1), {{"Ana", 3}}, {{"Luis", 2}});
        AbreTotales();
        historic::PulsaPestana(4);
        EXPECT_THAT(Lineas(), ElementsAre(HasSubstr("Pareja")));
    }
}

TEST_F(HistoricTest, PagesAreTurnedUpToTheEnds) {
    Pon(kTute);
    for (int n = 1; n <= 25; ++n)
        Juega({2026, 1, n, 20, 0, 0}, {{"Ana", n}}, {{"Luis", 2}});
    historic::Abre();
    EXPECT_EQ(historic::MarcaDePagina(), "Página 1 de 3");
    EXPECT_THAT(Lineas(), Contains(HasSubstr("25-01-2026")));
    historic::PasaPagina(-1);
    EXPECT_EQ(historic::PaginaEnVista(), 1);
    historic::PasaPagina(1);
    historic::PasaPagina(1);
    EXPECT_EQ(historic::MarcaDePagina(), "Página 3 de 3");
    EXPECT_THAT(Lineas(), Contains(HasSubstr("01-01-2026")));
    EXPECT_THAT(Lineas(), SizeIs(1 + 5 * 6));
    historic::PasaPagina(1);
    EXPECT_EQ(historic::PaginaEnVista(), 3);
    EXPECT_THROW(historic::Pagina(4), IndiceFuera);
    historic::PasaPagina(-10);
    EXPECT_EQ(historic::PaginaEnVista(), 1);
}

TEST_F(HistoricTest, TheTabsLieOneBehindTheOther) {
    Pon(kTute);
    for (int n = 1; n <= 25; ++n)
        Juega({2026, 1, n, 20, 0, 0}, {{"J" + std::to_string(n), n}}, {{"Luis", 2}});
    AbreTotales();
    EXPECT_EQ(historic::Pestana(), 1);
    EXPECT_EQ(historic::MarcaDePagina(), "Página 1 de 2");
    historic::PasaPagina(1);
    historic::PasaPagina(1);
    EXPECT_EQ(historic::Pestana(), 2);
    EXPECT_EQ(historic::PaginaEnVista(), 1);
    historic::PasaPagina(-1);
    EXPECT_EQ(historic::Pestana(), 1);
    EXPECT_EQ(historic::PaginaEnVista(), 2);
    historic::PulsaPestana(4);
    historic::PasaPagina(1);
    EXPECT_EQ(historic::Pestana(), 4);
    historic::PulsaTotales();
    EXPECT_EQ(historic::Pestana(), 0);
    historic::PulsaPestana(2);
    EXPECT_EQ(historic::Pestana(), 0);
}

TEST_F(HistoricTest, TheHandlesOfTheForm) {
    Pon(kTute);
    for (int n = 1; n <= 25; ++n)
        Juega({2026, 1, n, 20, 0, 0}, {{"Ana", n}}, {{"Luis", 2}});
    mesa.Olvida();
    const MandosForma& mandos = *MandosDe(Forma::Historic);
    mandos.abre();
    EXPECT_TRUE(mandos.pulsa("Pic_Carpeta", 2));
    EXPECT_EQ(historic::PaginaEnVista(), 2);
    EXPECT_TRUE(mandos.pulsa("Pic_Carpeta", 1));
    EXPECT_EQ(historic::PaginaEnVista(), 1);
    EXPECT_TRUE(mandos.pulsa("Pic_BotHisTt", 0));
    EXPECT_TRUE(mandos.pulsa("Pic_Pestana", 3));
    EXPECT_EQ(historic::Pestana(), 3);
    EXPECT_FALSE(mandos.pulsa("Pic_Pestana", 5));
    EXPECT_FALSE(mandos.pulsa("Pic_Carpeta", 3));
    EXPECT_TRUE(mandos.pulsa("Pic_BotAyuda", 0));
    EXPECT_THAT(mesa.LaPlataforma().temas_ayuda, ElementsAre(kAyudaHistorico));
    EXPECT_TRUE(mandos.cierra());
    EXPECT_FALSE(mandos.abierta());
    EXPECT_THAT(mesa.Sonidos(),
                ElementsAre(kSonidoPagina, kSonidoPagina, kSonidoPagina, kSonidoSalir));
}

TEST_F(HistoricTest, APageThatTurnsIsHeardAndOneThatStaysIsNot) {
    Pon(kTute);
    for (int n = 1; n <= 25; ++n)
        Juega({2026, 1, n, 20, 0, 0}, {{"J" + std::to_string(n), n}}, {{"Luis", 2}});
    historic::Abre();
    mesa.Olvida();
    historic::PasaPagina(-1);
    EXPECT_THAT(mesa.Sonidos(), IsEmpty());
    historic::PasaPagina(1);
    EXPECT_THAT(mesa.Sonidos(), ElementsAre(kSonidoPagina));
    historic::PulsaTotales();
    mesa.Olvida();
    historic::PulsaPestana(1);
    EXPECT_THAT(mesa.Sonidos(), IsEmpty());
    historic::PulsaPestana(2);
    EXPECT_THAT(mesa.Sonidos(), ElementsAre(kSonidoPagina));
}

TEST_F(HistoricTest, WhatIsNoDateIsShownAsItReads) {
    Pon(kTute);
    mesa.Archivo("ZOV5131.HIS") = std::string(182, 'x') + std::string(182, '\x01');
    EXPECT_THAT(Lineas(), testing::IsSupersetOf({"16, 38, negro, normal, \"xx-xx-xxxx\"",
                                                 "16, 53, negro, normal, \"xx:xx\"",
                                                 "16, 76, negro, normal, \"\?\?-\?\?-\?\?\?\?\""}));
    EXPECT_THAT(Lineas(), Contains(HasSubstr("\"xxxxxxxxx, xxxxxxxxx, xxxxxxxxx\"")));
}

} // namespace
