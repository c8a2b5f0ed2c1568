#include "games/blackjack/blackjack_statistics.h"

#include <gmock/gmock.h>

#include "tests/support/bank_statistics.h"

using namespace prueba;
using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;

namespace {

struct EstadisticaDeBlackJack : ManoConBanca {
    EstadisticaDeBlackJack() : ManoConBanca(kBlackJack) {}

    static PaginaImpresa Pagina() {
        PaginaImpresa pagina(750, 300);
        EstadisBj(pagina);
        return pagina;
    }
    // The texts of the list's line, from 1: lines are 16 points apart.
    static std::string Linea(int cual) {
        const PaginaImpresa pagina = Pagina();
        std::string linea;
        const int x_lista = estado.JugadorActual == estado.JugadorBanca ? 0 : 290;
        for (const Impreso& i : pagina.Impresos()) {
            if (i.clase == ClaseImpreso::Texto && i.x >= x_lista && i.y == 16 * cual)
                linea += (linea.empty() ? "" : " | ") + i.texto;
        }
        return linea;
    }
    static std::vector<std::string> Textos() {
        const PaginaImpresa pagina = Pagina();
        std::vector<std::string> textos;
        for (const Impreso& i : pagina.Impresos())
            textos.push_back(i.texto);
        return textos;
    }
    static void Asegura(Integer asiento, Integer puntos) {
        apuestas.Apuesta(asiento, 1, kFaseSeguro) = puntos;
    }
};

} // namespace

TEST_F(EstadisticaDeBlackJack, LaListaEmpiezaEn290SiNoJuegaLaBanca) {
    PonSerie(2, 1, {{kOros, 9}});
    PonSerie(4, 1, {{kOros, 5}, {kCopas, 6}});
    EXPECT_EQ(Pagina().Impresos()[0].texto, "Jugador  Serie  Apuesta  Seguro     Jugada");
    EXPECT_EQ(Pagina().Impresos()[0].x, 290);
    EXPECT_EQ(Pagina().Impresos()[1].texto, "Banca");
    EXPECT_EQ(Pagina().Impresos()[1].x, 290);
    TocaJugar(2);
    EXPECT_EQ(Pagina().Impresos()[0].x, 0);
    EXPECT_EQ(Pagina().Impresos()[1].x, 0);
}

TEST_F(EstadisticaDeBlackJack, ApuestaYSeguroTienenSuColumna) {
    PonSerie(2, 1, {{kOros, kAs}});
    PonSerie(3, 1, {{kCopas, 10}, {kBastos, kReyFrances}});
    PonSerie(4, 1, {{kOros, 5}, {kCopas, 6}, {kEspadas, 11}});
    Apuesta(3, 1, 1000);
    Asegura(3, 500);
    Apuesta(4, 1, 20);
    apuestas.Apuesta(4, 1, kFaseDoblar) = 20;
    EXPECT_EQ(Linea(1), "Banca | 1 | 11 | A");
    EXPECT_EQ(Linea(2), "Eva | 1 | 1,000 | 500 | 20 | 10/K");
    EXPECT_EQ(Linea(3), "Iñigo | 1 | 40 | 0 | 21 | 5/6/J");
}

TEST_F(EstadisticaDeBlackJack, VeintiunoEnDosCartasEsBlackJackSoloEnSuUnicaSerie) {
    PonSerie(4, 1, {{kOros, kAs}, {kCopas, kReina}});
    EXPECT_EQ(Linea(1), "Iñigo | 1 | 0 | 0 | BJ | A/Q");
    PonSerie(4, 2, {{kBastos, kAs}, {kCopas, 9}});
    EXPECT_EQ(Linea(1), "Iñigo | 1 | 0 | 0 | 21 | A/Q");
    EXPECT_EQ(Linea(2), "2 | 0 | 0 | 20 | A/9");
}

TEST_F(EstadisticaDeBlackJack, MasDeVeintiunoVaEnRojo) {
    PonSerie(3, 1, {{kOros, 10}, {kCopas, 8}, {kBastos, 4}});
    PonSerie(4, 1, {{kOros, 10}, {kCopas, 8}, {kBastos, 3}});
    EXPECT_EQ(TintasDe(Pagina(), "22"), std::vector{Tinta::Rojo});
    EXPECT_EQ(TintasDe(Pagina(), "21")[0], Tinta::Negro);
}

TEST_F(EstadisticaDeBlackJack, ConLaBancaDeTurnoNoHayNadaMas) {
    PonSerie(2, 1, {{kOros, 9}});
    series.PuedeAbrir = true;
    TocaJugar(2);
    EXPECT_THAT(Textos(),
                ElementsAre("Jugador  Serie  Apuesta  Seguro     Jugada", "Banca", "1", "9", "9"));
}

TEST_F(EstadisticaDeBlackJack, UnaManoDuraTraeSuTabla) {
    PonSerie(2, 1, {{kOros, 6}});
    PonSerie(4, 1, {{kOros, 5}, {kCopas, 6}});
    const std::vector<std::string> textos = Textos();
    EXPECT_THAT(textos, Contains("OPCIONES EN MANO DURA"));
    EXPECT_THAT(textos, Contains("Carta de la banca"));
    EXPECT_THAT(textos, Contains("Puntos"));
    EXPECT_THAT(textos, Contains("C:Carta   P:Plantarse   D:Doblar"));
    EXPECT_THAT(RenglonesDe(Pagina()), Contains("11 | C | D | D | D | D | D | D | D | D | D"));
    EXPECT_THAT(textos, Not(Contains("OPCIONES EN MANO BLANDA")));
    EXPECT_THAT(textos, Not(Contains("OPCIONES DE ABRIR EL PAR")));
}

// Cells are 19 wide and 18 high: the bank's 6 is the sixth column, 11 points the eighth row of the hard hands.
TEST_F(EstadisticaDeBlackJack, SeResaltanLaColumnaDeLaBancaYLaFilaDelAsiento) {
    PonSerie(2, 1, {{kOros, 6}});
    PonSerie(4, 1, {{kOros, 5}, {kCopas, 6}});
    const std::vector<Impreso> cajas = ItemsDe(Pagina(), ClaseImpreso::Relleno);
    ASSERT_THAT(cajas, SizeIs(2));
    EXPECT_EQ(cajas[0].x, 58 + 5 * 19);
    EXPECT_EQ(cajas[0].x2 - cajas[0].x + 1, 19);
    EXPECT_EQ(cajas[0].y2 - cajas[0].y + 1, 19 * 18);
    EXPECT_EQ(cajas[1].y, cajas[0].y + 8 * 18);
    EXPECT_EQ(cajas[1].y2 - cajas[1].y + 1, 18);
}

TEST_F(EstadisticaDeBlackJack, UnaFiguraDeLaBancaEsElDiez) {
    PonSerie(2, 1, {{kOros, kReyFrances}});
    PonSerie(4, 1, {{kOros, 5}, {kCopas, 6}});
    EXPECT_EQ(ItemsDe(Pagina(), ClaseImpreso::Relleno)[0].x, 58 + 9 * 19);
}

TEST_F(EstadisticaDeBlackJack, UnaManoBlandaTraeLaSuya) {
    PonSerie(2, 1, {{kOros, kAs}});
    PonSerie(4, 1, {{kOros, kAs}, {kCopas, 7}});
    const std::vector<std::string> textos = Textos();
    EXPECT_THAT(textos, Contains("OPCIONES EN MANO BLANDA"));
    EXPECT_THAT(textos, Contains("Juego"));
    EXPECT_THAT(textos, Contains("C:Carta   P:Plantarse"));
    EXPECT_THAT(textos, Not(Contains("OPCIONES EN MANO DURA")));
    const std::vector<Impreso> cajas = ItemsDe(Pagina(), ClaseImpreso::Relleno);
    ASSERT_THAT(cajas, SizeIs(2));
    EXPECT_EQ(cajas[0].x, 58);
    EXPECT_EQ(cajas[1].y, cajas[0].y + 6 * 18); // (A,7)
}

// Two Ases are soft 12, which has no row: the tables of pairs tell what to do.
TEST_F(EstadisticaDeBlackJack, DosAsesNoTienenFilaEnLaManoBlanda) {
    PonSerie(2, 1, {{kOros, 6}});
    PonSerie(4, 1, {{kOros, kAs}, {kCopas, kAs}});
    EXPECT_THAT(ItemsDe(Pagina(), ClaseImpreso::Relleno), SizeIs(1));
}

TEST_F(EstadisticaDeBlackJack, UnParQueSePuedeAbrirTraeLaTablaDeLosPares) {
    PonSerie(2, 1, {{kOros, 6}});
    PonSerie(4, 1, {{kOros, kReina}, {kCopas, kReina}});
    series.PuedeAbrir = true;
    const std::vector<std::string> renglones = RenglonesDe(Pagina());
    EXPECT_THAT(renglones, Contains("OPCIONES DE ABRIR EL PAR"));
    EXPECT_THAT(renglones, Contains("Par | A | 2 | 3 | 4 | 5 | 6 | 7 | 8 | 9 | 10"));
    EXPECT_THAT(renglones, Contains("(9,9) | N | S | S | S | S | S | N | S | S | N"));
    EXPECT_THAT(renglones, Contains("S: Si abrir    N: No abrir"));
    const std::vector<Impreso> cajas = ItemsDe(Pagina(), ClaseImpreso::Relleno);
    ASSERT_THAT(cajas, SizeIs(4));
    EXPECT_EQ(cajas[3].y, cajas[2].y + 10 * 18); // (10,10)
}

TEST_F(EstadisticaDeBlackJack, CadaLetraTieneSuColor) {
    PonSerie(4, 1, {{kOros, 8}, {kCopas, 8}});
    series.PuedeAbrir = true;
    const PaginaImpresa pagina = Pagina();
    EXPECT_THAT(TintasDe(pagina, "C"), Each(Tinta::Verde));
    EXPECT_THAT(TintasDe(pagina, "S"), Each(Tinta::Verde));
    EXPECT_THAT(TintasDe(pagina, "P"), Each(Tinta::Rojo));
    EXPECT_THAT(TintasDe(pagina, "N"), Each(Tinta::Rojo));
    EXPECT_THAT(TintasDe(pagina, "D"), Each(Tinta::Azul));
    EXPECT_THAT(TintasDe(pagina, "D"), SizeIs(21));
}

// The decision doubles 9 against a 2; the printed table says to ask for a card.
TEST_F(EstadisticaDeBlackJack, NueveContraUnDosDiceCartaAproposito) {
    PonSerie(4, 1, {{kOros, 5}, {kCopas, 4}});
    EXPECT_THAT(RenglonesDe(Pagina()), Contains("9 | C | C | D | D | D | D | C | C | C | C"));
}

TEST_F(EstadisticaDeBlackJack, ConLaManoEnCursoSeDiceLoQueSePuedeHacer) {
    PonSerie(4, 1, {{kOros, 5}, {kCopas, 6}});
    EXPECT_THAT(Textos(), Each(Not(StartsWith("Puede"))));
    series.PuedeAsegurar = series.PuedeAbrir = series.PuedeDoblar = true;
    const std::vector<std::string> textos = Textos();
    ASSERT_GT(textos.size(), 3U);
    EXPECT_THAT(std::vector(textos.end() - 3, textos.end()),
                ElementsAre("Puede asegurar su apuesta", "Puede abrir su juego actual",
                            "Puede doblar su apuesta"));
    estado.ManoEnCurso = false;
    EXPECT_THAT(Textos(), Each(Not(StartsWith("Puede"))));
}

TEST_F(EstadisticaDeBlackJack, NoCambiaNadaDelEstado) {
    PonSerie(4, 1, {{kOros, 5}, {kCopas, kAs}});
    series.ManoDura = true;
    const EstadoJuego antes = estado;
    const EstadoSeries series_antes = series;
    Pagina();
    EXPECT_TRUE(estado == antes);
    EXPECT_TRUE(series == series_antes);
}
