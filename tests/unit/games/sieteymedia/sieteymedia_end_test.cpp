// The end of a hand of Siete y media: results, settlement, the bank that passes on, the record.

#include "games/sieteymedia/sieteymedia_end.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "storage/between_hands.h"
#include "table/button_column.h"
#include "table/game_row.h"
#include "tests/support/sieteymedia_table.h"

using namespace prueba;
using testing::ElementsAre;

namespace {

struct FinalSiete : MesaDeSiete {
    FinalSiete() { ManoJugada(); }

    // A hand that stands, all open, with its bet.
    static void Juega(Integer asiento, Integer serie, const std::vector<Carta>& cartas,
                      Integer puntos) {
        PonSerie(asiento, serie, cartas);
        if (puntos > 0)
            Apuesta(asiento, serie, puntos);
    }
    static void JuegaTapada(Integer asiento, const std::vector<Carta>& cartas, Integer puntos) {
        PonSerieTapada(asiento, 1, cartas);
        Apuesta(asiento, 1, puntos);
    }
    static void TieneLaBanca(const std::vector<Carta>& cartas) { PonSerie(2, 1, cartas); }
    void Cierra() {
        ASSERT_TRUE(CierreDeMano());
        EXPECT_EQ(Total(), 400);
    }
    std::string Resultados() const { return Texto("Final de la mano"); }
    std::string Cambio() const { return Texto("Final de la mano", 2); }
    static Integer Marca(Integer asiento, Integer serie = 1) {
        return estado.Juegos(1).Marcas(asiento, serie);
    }
};

const std::vector<Carta> kSieteYMediaOros{{kOros, 7}, {kOros, kSota}};
const std::vector<Carta> kSieteYMediaCopas{{kCopas, 7}, {kCopas, kSota}};
const std::vector<Carta> kSeis{{kEspadas, 6}};
const std::vector<Carta> kTresYMedio{{kBastos, 3}, {kBastos, kRey}};
const std::vector<Carta> kSeHaPasado{{kBastos, 6}, {kBastos, 5}};

} // namespace

TEST_F(FinalSiete, GanaQuienTieneMasQueLaBancaYLosEmpatesSonDeLaBanca) {
    TieneLaBanca(kSeis);
    Juega(3, 1, {{kCopas, 6}}, 10);                // a tie
    Juega(4, 1, {{kCopas, 6}, {kCopas, kRey}}, 8); // half a point more
    Juega(1, 1, kTresYMedio, 5);
    Cierra();
    EXPECT_EQ(RestoDe(3), 90);
    EXPECT_EQ(RestoDe(4), 108);
    EXPECT_EQ(RestoDe(1), 95);
    EXPECT_EQ(RestoDe(2), 107);
    EXPECT_THAT((std::vector{Marca(1), Marca(2), Marca(3), Marca(4)}), ElementsAre(0, 1, 0, 1));
}

TEST_F(FinalSiete, UnaBancaPasadaPagaATodosLosQueNoSePasaron) {
    TieneLaBanca(kSeHaPasado);
    Juega(3, 1, {{kOros, 1}}, 10);
    Juega(4, 1, {{kCopas, 6}, {kCopas, 5}}, 0); // its stake has gone already
    Cierra();
    EXPECT_EQ(RestoDe(3), 110);
    EXPECT_EQ(RestoDe(4), 100);
    EXPECT_EQ(Marca(4), 0);
    EXPECT_EQ(estado.Juegos(1).Total, -10);
    EXPECT_EQ(Marca(2), 0);
}

TEST_F(FinalSiete, LaSieteYMediaTapadaNoSeCantaNiPagaDobleNiTomaLaBanca) {
    TieneLaBanca(kSeis);
    JuegaTapada(3, kSieteYMediaOros, 10);
    Cierra();
    EXPECT_EQ(RestoDe(3), 110);
    EXPECT_EQ(series.NuevaBanca, 0);
    EXPECT_FALSE(series.CambiaBanca);
    EXPECT_EQ(Cambio(), "");
}

TEST_F(FinalSiete, LaSieteYMediaTapadaPierdeElEmpateConLaBanca) {
    TieneLaBanca(kSieteYMediaCopas);
    JuegaTapada(3, kSieteYMediaOros, 10);
    Cierra();
    EXPECT_EQ(RestoDe(3), 90);
}

TEST_F(FinalSiete, LaCantadaPierdeElEmpateYLaBancaSeQueda) {
    TieneLaBanca(kSieteYMediaCopas);
    Juega(3, 1, kSieteYMediaOros, 10);
    Cierra();
    EXPECT_EQ(series.NuevaBanca, 3);
    EXPECT_FALSE(series.CambiaBanca);
    EXPECT_EQ(RestoDe(3), 90);
    EXPECT_EQ(Cambio(), "");
    EXPECT_EQ(LoQueSeGuarda().banca, 2);
}

TEST_F(FinalSiete, DeDosCantadasCobraDobleYTomaLaBancaLaPrimeraDesdeElMano) {
    TieneLaBanca(kSeis);
    Juega(1, 1, kSieteYMediaOros, 10);
    Juega(4, 1, kSieteYMediaCopas, 10);
    Cierra();
    EXPECT_EQ(RestoDe(4), 120);
    EXPECT_EQ(RestoDe(1), 110);
    EXPECT_EQ(series.NuevaBanca, 4);
    EXPECT_TRUE(series.CambiaBanca);
    EXPECT_EQ(Cambio(), "Iñigo, has cantado siete y media. Eres el nuevo jugador banca. ");
    EXPECT_EQ(p.mensajes.back().lineas, 2);
    EXPECT_EQ(p.mensajes.back().titulo, "Final de la mano");
}

TEST_F(FinalSiete, EnSentidoInversoLaPrimeraEsOtra) {
    estado.PasoSentido = -1;
    estado.JugadorMano = 1;
    TieneLaBanca(kSeis);
    Juega(1, 1, kSieteYMediaOros, 10);
    Juega(4, 1, kSieteYMediaCopas, 10);
    Cierra();
    EXPECT_EQ(series.NuevaBanca, 1);
    EXPECT_EQ(Cambio(), "Ha cantado siete y media Ana.\r\nEs el nuevo jugador banca");
}

TEST_F(FinalSiete, DeDosCantadasNingunaCobraEnElEmpate) {
    TieneLaBanca({{kBastos, 7}, {kBastos, kCaballo}});
    Juega(1, 1, kSieteYMediaOros, 10);
    Juega(4, 1, kSieteYMediaCopas, 10);
    Cierra();
    EXPECT_EQ(RestoDe(4), 90);
    EXPECT_EQ(RestoDe(1), 90);
}

// The double pay is the seat's, not the serie's: on purpose.
TEST_F(FinalSiete, QuienCantaEnSuSegundaSerieCobraDobleTambienLaPrimera) {
    TieneLaBanca(kSeis);
    Juega(3, 1, {{kOros, kSota}, {kOros, 6}}, 4);
    Juega(3, 2, {{kCopas, kSota}, {kCopas, 7}}, 10);
    Cierra();
    EXPECT_EQ(RestoDe(3), 128);
    EXPECT_EQ(Marca(3, 1), 1);
    EXPECT_EQ(Marca(3, 2), 1);
    EXPECT_EQ(series.NuevaBanca, 3);
}

TEST_F(FinalSiete, LaSerieQuePierdeNoSeDobla) {
    TieneLaBanca(kSeis);
    Juega(3, 1, {{kOros, kSota}, {kOros, 5}}, 4);
    Juega(3, 2, {{kCopas, kSota}, {kCopas, 7}}, 10);
    Cierra();
    EXPECT_EQ(RestoDe(3), 116);
    EXPECT_EQ(Marca(3, 1), 0);
}

TEST_F(FinalSiete, ConLaBancaPasadaLaCantadaTambienTomaLaBanca) {
    TieneLaBanca(kSeHaPasado);
    Juega(3, 1, kSieteYMediaOros, 10);
    Cierra();
    EXPECT_EQ(RestoDe(3), 120);
    EXPECT_TRUE(series.CambiaBanca);
    EXPECT_EQ(LoQueSeGuarda().banca, 3);
}

TEST_F(FinalSiete, QuienCantaNoTomaLaBancaSiSoloElTieneFondos) {
    for (const Integer asiento : std::initializer_list<Integer>{1, 2, 4})
        Tiene(asiento, 0);
    Tiene(2, 15);
    TieneLaBanca(kSeis);
    Juega(3, 1, kSieteYMediaOros, 10);
    ASSERT_TRUE(CierreDeMano());
    EXPECT_EQ(RestoDe(3), 115);
    EXPECT_EQ(RestoDe(2), 0);
    EXPECT_EQ(series.NuevaBanca, 3);
    EXPECT_FALSE(series.CambiaBanca);
    EXPECT_EQ(Cambio(), "");
}

TEST_F(FinalSiete, LaBancaPagaHastaDondeAlcanzaYLosDemasSoloRecuperanSuApuesta) {
    Tiene(2, 12);
    Tiene(1, 188);
    TieneLaBanca(kSeHaPasado);
    Juega(3, 1, kSeis, 10);
    Juega(4, 1, kSeis, 10);
    Juega(1, 1, kSeis, 10);
    Cierra();
    EXPECT_EQ(RestoDe(3), 110);
    EXPECT_EQ(RestoDe(4), 102);
    EXPECT_EQ(RestoDe(1), 188);
    EXPECT_EQ(Marca(1), 1);
    EXPECT_EQ(RestoDe(2), 0);
}

TEST_F(FinalSiete, UnaBancaSinFondosLaPasaAlSiguienteQueTenga) {
    Tiene(2, 5);
    Tiene(3, 0);
    Tiene(1, 295);
    TieneLaBanca(kSeHaPasado);
    Juega(1, 1, kSeis, 5);
    ASSERT_TRUE(CierreDeMano());
    EXPECT_TRUE(series.CambiaBanca);
    EXPECT_EQ(series.NuevaBanca, 4);
    EXPECT_EQ(Cambio(),
              "Iñigo, como el banquero se ha quedado sin fondos, eres el nuevo jugador banca. ");
    EXPECT_EQ(p.mensajes.back().lineas, 4);
}

TEST_F(FinalSiete, UnaBancaSinFondosLaPasaEnElSentidoDelJuego) {
    estado.PasoSentido = -1;
    estado.JugadorMano = 1;
    Tiene(2, 5);
    Tiene(1, 195);
    TieneLaBanca(kSeHaPasado);
    Juega(1, 1, kSeis, 5);
    ASSERT_TRUE(CierreDeMano());
    EXPECT_EQ(series.NuevaBanca, 1);
    EXPECT_EQ(Cambio(),
              "Como el banquero se ha quedado sin fondos, Ana es el nuevo jugador banca.");
}

TEST_F(FinalSiete, LaCantadaPasaAntesQueLaQuiebra) {
    Tiene(2, 10);
    Tiene(1, 190);
    TieneLaBanca(kSeis);
    Juega(4, 1, kSieteYMediaOros, 10);
    Cierra();
    EXPECT_EQ(RestoDe(2), 0);
    EXPECT_EQ(RestoDe(4), 110);
    EXPECT_EQ(series.NuevaBanca, 4);
    EXPECT_EQ(Cambio(), "Iñigo, has cantado siete y media. Eres el nuevo jugador banca. ");
}

TEST_F(FinalSiete, LosResultadosSeDicenSerieASerieDesdeElMano) {
    TieneLaBanca({{kEspadas, kSota}});
    Juega(3, 1, {{kOros, kSota}, {kOros, 7}}, 4);
    Juega(3, 2, {{kCopas, kSota}, {kCopas, 3}}, 4);
    Juega(4, 1, kSeHaPasado, 0);
    Juega(1, 1, {{kOros, 1}}, 4);
    Cierra();
    EXPECT_EQ(Resultados(), "Eva / 1 : Siete y media\r\n"
                            "Eva / 2 : Tres y media\r\n"
                            "Iñigo : Se ha pasado\r\n"
                            "Ana : Una\r\n"
                            "Luis : Media\r\n");
    EXPECT_EQ(p.mensajes.front().lineas, 5);
}

TEST_F(FinalSiete, QuienNoJugoNoSeNombra) {
    Tiene(4, 0);
    Tiene(1, 200);
    TieneLaBanca(kSeis);
    Juega(3, 1, {{kOros, 2}}, 4);
    Juega(1, 1, {{kOros, 5}}, 4);
    Cierra();
    EXPECT_EQ(Resultados(), "Eva : Dos\r\nAna : Cinco\r\nLuis : Seis\r\n");
}

TEST_F(FinalSiete, ElRegistroGuardaDosSeriesPorTexto) {
    TieneLaBanca(kSeHaPasado);
    Juega(3, 1, {{kOros, kSota}, {kOros, 7}}, 4);
    Juega(3, 2, {{kCopas, kSota}}, 4);
    Juega(3, 3, {{kEspadas, kSota}, {kEspadas, 5}, {kEspadas, 4}}, 0);
    Juega(4, 1, {{kBastos, 4}}, 4);
    Tiene(1, 0);
    Tiene(3, 192);
    Cierra();
    const RegistroJuego& registro = estado.Juegos(1);
    EXPECT_EQ(registro.Texto1(3), "7 y 1/2Media   ");
    EXPECT_EQ(registro.Texto2(3), "Se pasó        ");
    EXPECT_EQ(registro.Texto1(4), "4              ");
    EXPECT_EQ(registro.Texto2(4), std::string(15, ' '));
    EXPECT_EQ(registro.Texto1(2), "Se pasó        ");
    EXPECT_EQ(registro.Texto1(1), std::string(15, ' '));
    EXPECT_THAT((std::vector<Integer>{registro.Cifra(1), registro.Cifra(2), registro.Cifra(3),
                                      registro.Cifra(4)}),
                ElementsAre(1, 1, 3, 1));
    EXPECT_EQ(registro.Total, -20); // twice 4 and 4 to who has sung, 4 to the other
}

TEST_F(FinalSiete, AlLiquidarSeVeCadaSerieYSeAnuncia) {
    TieneLaBanca(kSeis);
    Juega(3, 1, {{kOros, kSota}, {kOros, 7}}, 4);
    PonSerieTapada(3, 2, {{kCopas, 2}, {kCopas, kSota}});
    Apuesta(3, 2, 4);
    EmpiezaTraza();
    Cierra();
    EXPECT_EQ(estado.Mano(3, 2, 1, kTapada), 0);
    EXPECT_EQ(estado.Mano(3, 2, 1, kCara), kDescubierta);
    EXPECT_THAT(p.anuncios, ElementsAre("Eva: Serie 1", "Eva gana 8", "Eva: Serie 2",
                                        "Eva descubre el Dos de Copas", "Eva pierde 4"));
}

TEST_F(FinalSiete, AlAcabarElJuegoNoSePuedeDejarLaPartida) {
    TieneLaBanca(kSeis);
    Juega(3, 1, {{kOros, 2}}, 4);
    for (int boton : {1, 3, 7, 8})
        HabilitaBoton(boton, true);
    Cierra();
    for (int boton : {1, 3, 7, 8})
        EXPECT_FALSE(BotonHabilitado(boton)) << boton;
    EXPECT_FALSE(estado.ManoEnCurso);
    EXPECT_EQ(apuestas.FaseApuesta, kFaseFinal);
}

TEST_F(FinalSiete, LaPartidaSigueMientrasDosTienenFondos) {
    const auto acabada = JuegoEnMesa().partida.acabada;
    EXPECT_FALSE(acabada());
    Tiene(1, 0);
    Tiene(3, 0);
    EXPECT_FALSE(acabada());
    Tiene(4, 0);
    EXPECT_TRUE(acabada());
    EXPECT_EQ(estado.GanadorPartida, 2);
}

TEST_F(FinalSiete, UnaPartidaNuevaNoHeredaBanca) {
    series.CambiaBanca = true;
    series.NuevaBanca = 3;
    JuegoEnMesa().partida.nueva();
    EXPECT_EQ(series, EstadoSeries{});
    EXPECT_EQ(JuegoEnMesa().dinero.banca_siguiente(), 2);
}
