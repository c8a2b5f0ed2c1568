#include "games/sieteymedia/sieteymedia_statistics.h"

#include <gmock/gmock.h>

#include "games/common/trick_state.h"
#include "games/sieteymedia/sieteymedia_state.h"
#include "tests/support/bank_statistics.h"

using namespace prueba;
using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

namespace {

struct EstadisticaDeSiete : ManoConBanca {
    EstadisticaDeSiete() : ManoConBanca(kSieteYMedia) {}

    static PaginaImpresa Pagina() {
        PaginaImpresa pagina(750, 300);
        EstadisSiete(pagina);
        return pagina;
    }
    static std::vector<std::string> Renglones() { return RenglonesDe(Pagina()); }
    // The line of the list, from 1.
    static std::string Linea(std::size_t cual) { return Renglones().at(cual); }
};

} // namespace

TEST_F(EstadisticaDeSiete, LaListaVaDeLaBancaAlTurno) {
    PonSerieTapada(2, 1, {{kOros, 4}});
    PonSerieTapada(3, 1, {{kOros, 5}});
    PonSerieTapada(4, 1, {{kOros, 6}});
    PonSerieTapada(1, 1, {{kOros, 7}});
    Apuesta(3, 1, 10);
    Apuesta(4, 1, 1250);
    const std::vector<std::string> renglones = Renglones();
    EXPECT_EQ(renglones[0], "Jugador   Serie  Apuesta    Jugada");
    EXPECT_EQ(renglones[1], "Banca | 1 | ¿¿?? | ¿?");
    EXPECT_EQ(renglones[2], "Eva | 1 | 10 | ¿¿?? | ¿?");
    EXPECT_EQ(renglones[3], "Iñigo | 1 | 1,250 | ¿¿?? | ¿?");
    EXPECT_THAT(renglones[4], StartsWith("Oros"));
}

TEST_F(EstadisticaDeSiete, ConLaBancaDeTurnoSoloSaleLaBanca) {
    PonSerie(2, 1, {{kOros, 4}});
    PonSerie(3, 1, {{kOros, 5}});
    TocaJugar(2);
    EXPECT_EQ(Linea(1), "Banca | 1 | 4.0 | 4");
    EXPECT_THAT(Linea(2), StartsWith("Oros"));
}

TEST_F(EstadisticaDeSiete, QuienNoTienePuntosNoSale) {
    PonSerie(2, 1, {{kOros, 4}});
    PonSerie(4, 1, {{kOros, 6}});
    EXPECT_EQ(Linea(1), "Banca | 1 | 4.0 | 4");
    EXPECT_EQ(Linea(2), "Iñigo | 1 | 0 | 6.0 | 6");
}

TEST_F(EstadisticaDeSiete, ElNombreSaleSoloEnLaPrimeraSerie) {
    PonSerie(4, 1, {{kOros, kSota}, {kCopas, 3}});
    PonSerie(4, 2, {{kBastos, kRey}});
    Apuesta(4, 1, 5);
    Apuesta(4, 2, 20);
    EXPECT_EQ(Linea(1), "Iñigo | 1 | 5 | 3.5 | 0.5/3");
    EXPECT_EQ(Linea(2), "2 | 20 | 0.5 | 0.5");
}

TEST_F(EstadisticaDeSiete, UnaCartaTapadaEscondeLosPuntosHastaQueLaSerieTermina) {
    PonSerieTapada(4, 1, {{kOros, 6}, {kCopas, kCaballo}});
    EXPECT_EQ(Linea(1), "Iñigo | 1 | 0 | ¿¿?? | ¿?/0.5");
    estado.SerieTerminada(4, 1) = true;
    EXPECT_EQ(Linea(1), "Iñigo | 1 | 0 | 6.5 | 6/0.5");
}

TEST_F(EstadisticaDeSiete, MasDeSieteYMediaVaEnRojo) {
    PonSerie(3, 1, {{kOros, 7}, {kCopas, 1}});
    PonSerie(4, 1, {{kEspadas, 7}, {kCopas, kRey}});
    const PaginaImpresa pagina = Pagina();
    EXPECT_THAT(TintasDe(pagina, "8.0"), ElementsAre(Tinta::Rojo));
    EXPECT_THAT(TintasDe(pagina, "7.5"), ElementsAre(Tinta::Negro));
}

TEST_F(EstadisticaDeSiete, SoloSeCuentanLasCartasQueSeVen) {
    PonSerieTapada(3, 1, {{kOros, 6}, {kCopas, 2}});
    PonSerie(4, 1, {{kEspadas, 2}, {kCopas, kRey}});
    PonSerie(4, 2, {{kBastos, kSota}});
    bazas.CartaJugada(kBastos, 7) = 1; // of some other game
    Pagina();
    EXPECT_EQ(siete.VistasValor(2), 2);
    EXPECT_EQ(siete.VistasValor(6), 0);
    EXPECT_EQ(siete.VistasValor(8), 2);
    EXPECT_EQ(siete.VistasTotal, 4);
    EXPECT_EQ(bazas.CartaJugada(kCopas, 2), 3);
    EXPECT_EQ(bazas.CartaJugada(kBastos, kSota), 4);
    EXPECT_EQ(bazas.CartaJugada(kBastos, 7), 0);
    EXPECT_EQ(bazas.CartaJugada(kOros, 6), 0);
}

TEST_F(EstadisticaDeSiete, LaBarajaDiceQuienTieneCadaCartaVista) {
    PonSerie(3, 1, {{kOros, 6}, {kCopas, 6}});
    PonSerie(4, 1, {{kBastos, kRey}});
    EXPECT_THAT(Renglones(), Contains(StartsWith("Seis | Eva | Eva | 6 | ")));
    EXPECT_THAT(Renglones(), Contains(StartsWith("Rey | Iñigo")));
    EXPECT_THAT(Renglones(), Contains(StartsWith("Oros | Copas | Espadas | Bastos | ")));
}

TEST_F(EstadisticaDeSiete, LaTablaDeValoresCuentaLoQueQueda) {
    PonSerie(3, 1, {{kOros, 6}, {kCopas, 6}});
    PonSerie(4, 1, {{kBastos, kRey}, {kOros, kSota}, {kEspadas, 2}});
    const std::vector<std::string> renglones = Renglones();
    EXPECT_THAT(renglones, Contains(HasSubstr("Bastos | Valor Vistas Quedan %Absol %Relat")));
    // 35 cards have not been seen.
    EXPECT_THAT(renglones, Contains(HasSubstr("As | 1 | 0 | 4 | 10.00 | 11.43")));
    EXPECT_THAT(renglones, Contains(HasSubstr(" | 6 | 2 | 2 | 10.00 | 5.71")));
    EXPECT_THAT(renglones, Contains(HasSubstr("0.5 | 2 | 10 | 30.00 | 28.57")));
}

TEST_F(EstadisticaDeSiete, LoMasProbableYLoMenosSeDistinguen) {
    const PaginaImpresa sin_cartas = Pagina();
    EXPECT_THAT(TintasDe(sin_cartas, "10.00"), Each(Tinta::Negro)); // both columns alike
    PonSerie(4, 1, {{kOros, 6}});
    const PaginaImpresa pagina = Pagina();
    EXPECT_THAT(TintasDe(pagina, "10.26"), Each(Tinta::Verde)); // 4 of 39
    EXPECT_THAT(TintasDe(pagina, "7.69"), ElementsAre(Tinta::Rojo));
}

// With 6 points an As makes 7 and a figure 6.5; everything else is too much.
TEST_F(EstadisticaDeSiete, LasPosibilidadesDeLaCartaSiguiente) {
    PonSerie(4, 1, {{kOros, 6}});
    const std::vector<std::string> renglones = Renglones();
    // 2 to 5 and 7: 20 cards, and three 6.
    EXPECT_THAT(renglones, Contains(EndsWith("Posibilidades de pasarse: 58.97")));
    EXPECT_THAT(renglones, Contains(EndsWith("Posib. de 7 1/2 directo.: 0.00")));
    // Four Ases at 7 and twelve figures at 6.5: 106 / 16.
    EXPECT_THAT(renglones, Contains(EndsWith("Puntuación promedio.....: 6.62")));
}

TEST_F(EstadisticaDeSiete, SieteYMediaDirecto) {
    PonSerie(4, 1, {{kOros, 5}, {kCopas, kSota}});
    // 5.5 points: the four 2 of 38 unseen cards make 7.5.
    EXPECT_THAT(Renglones(), Contains(EndsWith("Posib. de 7 1/2 directo.: 10.53")));
}

TEST_F(EstadisticaDeSiete, SinCartaQueQuepaNoHayPromedio) {
    PonSerie(4, 1, {{kOros, 7}, {kCopas, kSota}});
    EXPECT_THAT(Renglones(), Contains(EndsWith("Posibilidades de pasarse: 100.00")));
    EXPECT_THAT(Renglones(), Each(Not(HasSubstr("promedio"))));
}

TEST_F(EstadisticaDeSiete, LasPosibilidadesSonParaQuienJuegaAMano) {
    PonSerie(3, 1, {{kOros, 6}});
    TocaJugar(3);
    EXPECT_THAT(Renglones(), Each(Not(HasSubstr("Posib"))));
    TocaJugar(4);
    PonSerie(4, 1, {{kOros, 5}});
    EXPECT_THAT(Renglones(), Contains(HasSubstr("Posib")));
    estado.ManoEnCurso = false;
    EXPECT_THAT(Renglones(), Each(Not(HasSubstr("Posib"))));
}
