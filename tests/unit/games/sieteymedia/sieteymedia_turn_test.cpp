// The seats of Siete y media and the bank, card by card. Deals go 3, 4, 1 and to the bank 2 unless a test moves the bank.

#include "games/sieteymedia/sieteymedia_turn.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "games/sieteymedia/sieteymedia.h"
#include "table/button_column.h"
#include "table/game_row.h"
#include "tests/support/sieteymedia_table.h"

using namespace prueba;
using testing::Contains;
using testing::ElementsAre;
using testing::Not;

namespace {

struct TurnoSiete : MesaDeSiete {
    // What is looked at when the results of a hand are told.
    void AlContar(const std::function<void()>& mira) {
        p.al_preguntar = [this, mira](const CajaMensaje& caja) {
            if (caja.titulo == "Final de la mano" && !contada_)
                mira();
            contada_ = true;
        };
    }
    static std::vector<Carta> Serie(Integer asiento, Integer serie) {
        std::vector<Carta> cartas;
        for (int lugar = 1; lugar <= estado.NumCartas(asiento, serie); ++lugar)
            cartas.emplace_back(estado.Mano(asiento, serie, lugar, kPalo),
                                estado.Mano(asiento, serie, lugar, kValor));
        return cartas;
    }

private:
    bool contada_ = false;
};

// Seat 4 is played by a person, and leads: the bank is seat 3, the deal goes 4, 1, 2, 3.
struct TurnoDePersona : TurnoSiete {
    TurnoDePersona() {
        estado.JugadorBanca = 3;
        Persona(4);
    }
    void Verde() { p.guion.PulsaControl({Control::Pic_BotContinuar, 0}); }
    void Pide() { p.guion.PulsaControl({Control::Pic_BotSuperior, 1}); }
    void SePlanta() { p.guion.PulsaControl({Control::Pic_BotSuperior, 2}); }
    // A hand of one card lies in the middle of the zone, of two on both sides of it.
    void ClicEnLaCarta() { p.guion.RatonClic(355, 520, 1); }
    void ClicEnLaPrimeraDeDos() { p.guion.RatonClic(300, 520, 1); }
    // Until the script ends: the driver is left in the wait of then.
    void Juega() {
        EmpiezaTraza();
        ManoSieteYMedia();
    }
};

using Azares = std::vector<double>;

} // namespace

TEST_F(TurnoSiete, UnaManoEnteraEnLaQueTodosSePlantan) {
    Saldra({{kOros, 5}, {kOros, 6}, {kOros, 7}, {kCopas, 6}}, Azares(7, 0.5));
    AlContar([] {
        // Nearest to 0.4, 0.5 and 0.6 of the highest bet and a twentieth more.
        EXPECT_EQ(ApuestaTotal(3, 1), 9);
        EXPECT_EQ(ApuestaTotal(4, 1), 11);
        EXPECT_EQ(ApuestaTotal(1, 1), 13);
        EXPECT_EQ(estado.JugadoresEnMano, 4);
    });
    JuegaUnaMano();
    EXPECT_EQ(RestoDe(3), 91);
    EXPECT_EQ(RestoDe(4), 89);
    EXPECT_EQ(RestoDe(1), 113);
    EXPECT_EQ(RestoDe(2), 107);
    EXPECT_EQ(estado.Juegos(1).Inicio, "Luis");
    EXPECT_EQ(estado.Juegos(1).Total, 7);
    EXPECT_EQ(Texto("Final de la mano"),
              "Eva : Cinco\r\nIñigo : Seis\r\nAna : Siete\r\nLuis : Seis\r\n");
}

TEST_F(TurnoSiete, EnSentidoInversoSeRepartYSeJuegaAlReves) {
    estado.SentidoJuego = kInverso;
    estado.PasoSentido = -1;
    Saldra({{kOros, 5}, {kOros, 6}, {kOros, 7}, {kCopas, 6}}, Azares(7, 0.5));
    JuegaUnaMano();
    EXPECT_EQ(estado.JugadorMano, 1);
    EXPECT_EQ(Texto("Final de la mano"),
              "Ana : Cinco\r\nIñigo : Seis\r\nEva : Siete\r\nLuis : Seis\r\n");
}

TEST_F(TurnoSiete, QuienSePasaPierdeSuApuestaAntesDeQueJuegueLaBanca) {
    Saldra({{kOros, 3}, {kOros, 6}, {kOros, 7}, {kCopas, 6}, {kCopas, 7}}, Azares(3, 0.5));
    Persona(4); // the driver stops in the wait of seat 4
    JuegaUnaMano();
    EXPECT_TRUE(estado.SerieTerminada(3, 1));
    EXPECT_EQ(ApuestaTotal(3, 1), 0);
    EXPECT_EQ(RestoDe(3), 95);
    EXPECT_EQ(RestoDe(2), 105);
    EXPECT_EQ(estado.Mano(3, 1, 1, kTapada), 0);
    EXPECT_EQ(estado.Mano(3, 1, 1, kCara), kDescubierta);
    EXPECT_THAT(TrazaDe("Sonido"), Contains("Sonido(1, 11)").Times(2));
}

TEST_F(TurnoSiete, SiTodosSePasanLaBancaSoloEnsenaSuCarta) {
    Saldra({{kOros, 3},
            {kCopas, 3},
            {kEspadas, 3},
            {kBastos, 2},
            {kOros, 7},
            {kCopas, 7},
            {kEspadas, 7}},
           Azares(6, 0.5));
    AlContar([] {
        EXPECT_EQ(estado.JugadoresEnMano, 1);
        EXPECT_THAT(Serie(2, 1), ElementsAre(Carta(kBastos, 2)));
        EXPECT_EQ(estado.Mano(2, 1, 1, kCara), kDescubierta);
    });
    JuegaUnaMano();
    EXPECT_EQ(RestoDe(2), 115);
    EXPECT_EQ(estado.Juegos(1).Marcas(2, 1), 1);
}

TEST_F(TurnoSiete, LaBancaCambiaSuCuatroEnSuTurno) {
    // 36 cards are left when the bank plays: without chance the third of them comes.
    Azares azar(7, 0.5);
    azar.push_back(0);
    Saldra(
        {{kOros, 5}, {kOros, 6}, {kOros, 7}, {kCopas, 4}, {kBastos, 1}, {kBastos, 2}, {kBastos, 6}},
        azar);
    AlContar([] {
        EXPECT_EQ(Serie(2, 1).front(), Carta(kBastos, 6));
        EXPECT_EQ(estado.Baraja(7, 1), kCopas);
        EXPECT_EQ(estado.Baraja(7, 2), 4);
    });
    JuegaUnaMano();
    EXPECT_FALSE(series.PuedeCambiarCuatro);
}

// The mark that the seat before has left holds for the bank too: on purpose.
TEST_F(TurnoSiete, LaBancaConservaSuCuatroSiElUltimoAsientoConservoElSuyo) {
    estado.NivelJugador(1) = 70;
    Saldra({{kOros, 5}, {kOros, 6}, {kOros, 4}, {kCopas, 4}, {kOros, kRey}, {kOros, 3}},
           {0.5, 0.5, 0.5, 0.5, 0.125, 0.5, 0.5, 0.5, 0.5});
    AlContar([] {
        EXPECT_THAT(Serie(1, 1), ElementsAre(Carta(kOros, 4), Carta(kOros, kRey), Carta(kOros, 3)));
        EXPECT_EQ(Serie(2, 1).front(), Carta(kCopas, 4));
    });
    JuegaUnaMano();
}

TEST_F(TurnoSiete, DosMediasSeAbrenYCadaSerieTieneSuApuesta) {
    // Bet, ask, open and ask, stand; bet, ask, stand on seven and a half, which stays covered.
    Saldra({{kOros, kSota},
            {kOros, 6},
            {kOros, 7},
            {kCopas, 6},
            {kCopas, kRey},
            {kEspadas, 6},
            {kEspadas, 7}},
           {0.5, 0.5, 0.125, 0.5, 0.5, 0.5, 0.5});
    std::vector<Integer> apostado;
    AlContar([&] {
        EXPECT_EQ(estado.SeriesJugador(3), 2);
        EXPECT_THAT(Serie(3, 1), ElementsAre(Carta(kOros, kSota), Carta(kEspadas, 6)));
        EXPECT_THAT(Serie(3, 2), ElementsAre(Carta(kCopas, kRey), Carta(kEspadas, 7)));
        EXPECT_EQ(estado.Mano(3, 2, 1, kTapada), 0);
        EXPECT_EQ(estado.Mano(3, 2, 2, kTapada), kTapadaSi);
        apostado = {ApuestaTotal(3, 1), ApuestaTotal(3, 2)};
        EXPECT_EQ(series.NuevaBanca, 0);
    });
    JuegaUnaMano();
    EXPECT_THAT(apostado, ElementsAre(15, 15));
    EXPECT_THAT(p.anuncios, Contains("Eva: Abro mi juego"));
    EXPECT_THAT(p.anuncios, Contains("Eva: Serie 2"));
    EXPECT_EQ(estado.Juegos(1).Cifra(3), 2);
}

TEST_F(TurnoSiete, LaUltimaSerieSinFondosSeJuegaPorNada) {
    ManoJugada();
    Tiene(3, 3);
    PonSerie(3, 1, {{kOros, kSota}, {kOros, 5}});
    PonSerie(3, 2, {{kCopas, kSota}, {kCopas, 5}});
    TocaJugar(3);
    ASSERT_TRUE(TurnoDeAsiento());
    EXPECT_EQ(ApuestaTotal(3, 1), 3);
    EXPECT_EQ(ApuestaTotal(3, 2), 0);
    EXPECT_EQ(apuestas.ApuestaPropuesta, 1);
    EXPECT_EQ(RestoDe(3), 0);
    EXPECT_TRUE(p.mensajes.empty());
}

TEST_F(TurnoSiete, QuienPideCartaSinMazoSePlanta) {
    ManoJugada();
    PonSerieTapada(3, 1, {{kOros, 2}});
    estado.CartasEnMazo = 0;
    estado.PosicionMazo = 41;
    TocaJugar(3);
    ASSERT_TRUE(TurnoDeAsiento());
    EXPECT_EQ(estado.NumCartas(3, 1), 1);
    EXPECT_GT(ApuestaTotal(3, 1), 0);
}

TEST_F(TurnoSiete, QuienCantaSoloTomaLaBanca) {
    Tiene(3, 160); // more than its reserve: it sings
    Saldra({{kOros, 3}, {kOros, 6}, {kOros, 7}, {kCopas, 6}, {kOros, kRey}, {kCopas, 4}},
           {0.5, 0.5, 0.5, 0.125, 0.5, 0.5, 0.5, 0.5, 0.5});
    JuegaUnaMano();
    EXPECT_EQ(series.NuevaBanca, 3);
    EXPECT_TRUE(series.CambiaBanca);
    EXPECT_EQ(Texto("Final de la mano", 2),
              "Ha cantado siete y media Eva.\r\nEs el nuevo jugador banca");
    JuegoEnMesa().mano.pasa_la_mano();
    EXPECT_EQ(estado.JugadorBanca, 3);
    EXPECT_EQ(estado.JugadorMano, 4);
}

TEST_F(TurnoSiete, UnAsientoSinFondosNiCartaSeSalta) {
    Tiene(4, 0);
    Saldra({{kOros, 5}, {kOros, 7}, {kCopas, 6}}, Azares(5, 0.5));
    AlContar([] { EXPECT_EQ(estado.NumCartas(4, 1), 0); });
    JuegaUnaMano();
    EXPECT_EQ(Texto("Final de la mano"), "Eva : Cinco\r\nAna : Siete\r\nLuis : Seis\r\n");
    EXPECT_EQ(estado.Juegos(1).Texto1(4), std::string(15, ' '));
}

TEST_F(TurnoSiete, ConPausaEntreJugadasCadaSerieEsperaUnaVezPorSuApuestaYUnaPorSuJuego) {
    estado.PausaEntreJugadas = true;
    p.siempre_continua = true;
    // Seat 3 takes three cards, and waits but once for them.
    Saldra(
        {{kOros, 1}, {kOros, 6}, {kOros, 7}, {kCopas, 6}, {kCopas, 1}, {kEspadas, 1}, {kBastos, 7}},
        Azares(10, 0.5));
    JuegaUnaMano();
    // Three seats twice, the bank once, and the wait for the next hand.
    EXPECT_THAT(TrazaDe("PedirContinuar"), Contains("PedirContinuar(1)").Times(8));
}

TEST_F(TurnoDePersona, LaTapadaSeVuelveYLaSiguienteVieneTapada) {
    Saldra({{kOros, 7}, {kOros, 6}, {kOros, 5}, {kCopas, 6}, {kCopas, kSota}}, Azares(3, 0.5));
    Verde();
    ClicEnLaCarta();
    Pide();
    Juega();
    EXPECT_EQ(estado.Mano(4, 1, 1, kTapada), 0);
    EXPECT_EQ(estado.Mano(4, 1, 2, kTapada), kTapadaSi);
    EXPECT_EQ(estado.Mano(4, 1, 2, kCara), kDescubierta);
    EXPECT_EQ(estado.JugadorActual, 4);
    // At seven and a half there is nothing to ask for.
    EXPECT_FALSE(p.EstaVisible(Control::Pic_BotSuperior, 1));
    EXPECT_TRUE(p.EstaVisible(Control::Pic_BotSuperior, 2));
}

TEST_F(TurnoDePersona, VolverLaTapadaConSieteYMediaEsCantar) {
    Saldra({{kOros, 7}, {kOros, 6}, {kOros, 5}, {kCopas, 6}, {kCopas, kSota}}, Azares(10, 0.5));
    Verde();
    ClicEnLaCarta();
    Pide();
    ClicEnLaPrimeraDeDos(); // open already: nothing to turn
    p.guion.RatonClic(400, 520, 1);
    Juega();
    EXPECT_THAT(p.anuncios, Contains("Iñigo: Siete y media"));
    EXPECT_EQ(series.NuevaBanca, 4);
    EXPECT_EQ(Texto("Final de la mano", 2),
              "Iñigo, has cantado siete y media. Eres el nuevo jugador banca. ");
}

TEST_F(TurnoDePersona, ServidoConLaTapadaNoCanta) {
    Saldra({{kOros, 7}, {kOros, 6}, {kOros, 5}, {kCopas, 6}, {kCopas, kSota}}, Azares(10, 0.5));
    Verde();
    Pide();
    SePlanta();
    Juega();
    EXPECT_THAT(p.anuncios, Not(Contains("Iñigo: Siete y media")));
    EXPECT_EQ(series.NuevaBanca, 0);
    EXPECT_EQ(RestoDe(4), 113);
}

TEST_F(TurnoDePersona, ElCuatroSeCambiaConUnClicMientrasSeApuesta) {
    Saldra(
        {{kOros, 4}, {kOros, 6}, {kOros, 5}, {kCopas, 6}, {kBastos, 1}, {kBastos, 2}, {kBastos, 7}},
        {0.5, 0});
    ClicEnLaCarta();
    Juega();
    EXPECT_THAT(Serie(4, 1), ElementsAre(Carta(kBastos, 7)));
    EXPECT_FALSE(series.PuedeCambiarCuatro);
    EXPECT_TRUE(apuestas.ModoApuesta);
    EXPECT_EQ(ApuestaTotal(4, 1), 0);
}

TEST_F(TurnoDePersona, EnElJuegoElCuatroYaNoSeCambia) {
    Saldra({{kOros, 5}, {kOros, 6}, {kBastos, 5}, {kCopas, 6}}, Azares(2, 0.5));
    Verde();
    ClicEnLaCarta();
    Juega();
    EXPECT_THAT(Serie(4, 1), ElementsAre(Carta(kOros, 5)));
    EXPECT_EQ(estado.Mano(4, 1, 1, kTapada), 0);
}

TEST_F(TurnoDePersona, DosMediasSeAbrenConUnClicYElTurnoSigue) {
    Saldra({{kOros, kSota}, {kOros, 6}, {kOros, 5}, {kCopas, 6}, {kCopas, kRey}}, Azares(3, 0.5));
    Verde();
    Pide();
    ClicEnLaPrimeraDeDos(); // covered: to open it wins over to turn it
    Juega();
    EXPECT_EQ(estado.SeriesJugador(4), 2);
    EXPECT_THAT(Serie(4, 1), ElementsAre(Carta(kOros, kSota)));
    EXPECT_THAT(Serie(4, 2), ElementsAre(Carta(kCopas, kRey)));
    EXPECT_EQ(estado.SerieEnJuego, 1);
    EXPECT_EQ(ApuestaTotal(4, 2), 0);
    EXPECT_FALSE(series.PuedeAbrir);
}

TEST_F(TurnoDePersona, LasFlechasSoloEnsenanLaOtraSerie) {
    Saldra({{kOros, kSota}, {kOros, 6}, {kOros, 5}, {kCopas, 6}, {kCopas, kRey}, {kBastos, 1}},
           Azares(4, 0.5));
    Verde();
    Pide();
    ClicEnLaPrimeraDeDos();
    p.guion.PulsaControl({Control::Pic_BotLateral, 2});
    ClicEnLaCarta();                                     // of the other serie: nothing is on offer
    p.guion.PulsaControl({Control::Pic_BotSuperior, 1}); // hidden meanwhile
    Verde();                                             // the program plays, on the serie in play
    Juega();
    EXPECT_EQ(estado.SerieActual, 1);
    EXPECT_THAT(Serie(4, 1), ElementsAre(Carta(kOros, kSota), Carta(kBastos, 1)));
    EXPECT_THAT(Serie(4, 2), ElementsAre(Carta(kCopas, kRey)));
}

TEST_F(TurnoDePersona, LaBancaDeUnaPersonaCambiaSuCuatroEnSuTurno) {
    estado.JugadorBanca = 4; // the deal goes 1, 2, 3, 4
    Azares azar(7, 0.5);
    azar.push_back(0);
    Saldra(
        {{kOros, 5}, {kOros, 6}, {kOros, 7}, {kCopas, 4}, {kBastos, 1}, {kBastos, 2}, {kBastos, 6}},
        azar);
    ClicEnLaCarta();
    Juega();
    EXPECT_EQ(estado.JugadorActual, 4);
    EXPECT_THAT(Serie(4, 1), ElementsAre(Carta(kBastos, 6)));
    EXPECT_FALSE(series.PuedeCambiarCuatro);
}

TEST_F(TurnoDePersona, ElBotonVerdeJuegaPorElla) {
    Saldra({{kOros, 5}, {kOros, 6}, {kBastos, 5}, {kCopas, 6}}, Azares(7, 0.5));
    Verde();
    Verde();
    Juega();
    EXPECT_EQ(estado.Juegos(1).Texto1(4), "5              ");
    EXPECT_EQ(RestoDe(4), 91);
}

TEST_F(TurnoDePersona, LosClicsDeNadaNoCambianNada) {
    Saldra({{kOros, 5}, {kOros, 6}, {kBastos, 5}, {kCopas, 6}}, Azares(2, 0.5));
    ClicEnLaCarta(); // in the bets: no Four
    Pide();
    SePlanta();
    p.guion.PulsaControl({Control::Pic_BotLateral, 1});
    p.guion.PulsaControl({Control::Pic_BotDobSeg, 0});
    Juega();
    EXPECT_TRUE(apuestas.ModoApuesta);
    EXPECT_EQ(estado.Mano(4, 1, 1, kTapada), kTapadaSi);
    EXPECT_FALSE(series.OrdenPedir);
    EXPECT_FALSE(series.OrdenServido);
}

TEST_F(TurnoDePersona, ElConsejoDeComoSeApuesta) {
    Saldra({{kOros, 5}}, {0.25});
    Juega();
    EXPECT_THAT(TrazaDe("MostrarSugerencia"), ElementsAre("MostrarSugerencia(31)"));
}

TEST_F(TurnoDePersona, ElConsejoDeLasReglasAlApostar) {
    Saldra({{kOros, 5}}, {0.5});
    Juega();
    EXPECT_THAT(TrazaDe("MostrarSugerencia"), ElementsAre("MostrarSugerencia(15)"));
}

TEST_F(TurnoDePersona, ElConsejoDelTutorAlApostar) {
    Saldra({{kOros, 5}}, {0.75});
    Juega();
    EXPECT_THAT(TrazaDe("MostrarSugerencia"), ElementsAre("MostrarSugerencia(49)"));
}

TEST_F(TurnoDePersona, ElConsejoDelTutorAlJugar) {
    Saldra({{kOros, 5}}, {0.5, 0.125});
    Verde();
    Juega();
    EXPECT_THAT(TrazaDe("MostrarSugerencia"), Contains("MostrarSugerencia(50)"));
}

TEST_F(TurnoDePersona, ElConsejoDePlantarse) {
    Saldra({{kOros, 5}}, {0.5, 0.5});
    Verde();
    Juega();
    EXPECT_THAT(TrazaDe("MostrarSugerencia"), Contains("MostrarSugerencia(35)"));
}

TEST_F(TurnoDePersona, ElConsejoDeLaTapada) {
    estado.VentanaInfo = 1;
    Saldra({{kOros, 5}}, {0.5, 0.75});
    Verde();
    Juega();
    EXPECT_THAT(TrazaDe("MostrarSugerencia"), Contains("MostrarSugerencia(34)"));
    EXPECT_TRUE(p.EstaVisible(Control::Pic_Sugerencia, 0));
}

TEST_F(TurnoDePersona, ElConsejoDeLaTapadaSigueALaVistaTrasVolverla) {
    estado.VentanaInfo = 1;
    Saldra({{kOros, 5}}, {0.5, 0.75});
    Verde();
    ClicEnLaCarta();
    Juega();
    EXPECT_EQ(TrazaDe("MostrarSugerencia").back(), "MostrarSugerencia(34)");
    EXPECT_EQ(estado.Mano(4, 1, 1, kTapada), 0);
    EXPECT_TRUE(p.EstaVisible(Control::Pic_Sugerencia, 0));
}

TEST_F(TurnoDePersona, ElConsejoDeLasMedias) {
    Saldra({{kOros, kSota}, {kOros, 6}, {kOros, 5}, {kCopas, 6}, {kCopas, kRey}}, Azares(3, 0.75));
    Verde();
    Pide();
    Juega();
    EXPECT_THAT(TrazaDe("MostrarSugerencia"), Contains("MostrarSugerencia(33)"));
}

TEST_F(TurnoDePersona, ElConsejoDeCantar) {
    Saldra({{kOros, 7}, {kOros, 6}, {kOros, 5}, {kCopas, 6}, {kCopas, kRey}}, Azares(3, 0.75));
    Verde();
    Pide();
    Juega();
    EXPECT_THAT(TrazaDe("MostrarSugerencia"), Contains("MostrarSugerencia(36)"));
}

TEST_F(TurnoDePersona, ElConsejoDeCantarSigueALaVistaAlCantar) {
    estado.VentanaInfo = 1;
    Saldra({{kOros, 7}, {kOros, 6}, {kOros, 5}, {kCopas, 6}, {kCopas, kRey}}, Azares(10, 0.75));
    bool cantada = false;
    p.al_anunciar = [&](const std::string& que) {
        if (que != "Iñigo: Siete y media")
            return;
        cantada = true;
        EXPECT_EQ(estado.TipActual, 36);
        EXPECT_TRUE(p.EstaVisible(Control::Pic_Sugerencia, 0));
    };
    Verde();
    Pide();
    ClicEnLaPrimeraDeDos();
    Juega();
    EXPECT_TRUE(cantada);
}

TEST_F(TurnoDePersona, ElConsejoDelCuatroEsParaLaBanca) {
    estado.JugadorBanca = 4;
    Saldra({{kOros, 5}, {kOros, 6}, {kOros, 7}, {kCopas, 4}}, Azares(7, 0.75));
    Juega();
    EXPECT_THAT(TrazaDe("MostrarSugerencia"), Contains("MostrarSugerencia(32)"));
}

TEST_F(TurnoDePersona, LaPartidaQueSeDejaNoSigue) {
    Saldra({{kOros, 5}, {kOros, 6}, {kBastos, 5}, {kCopas, 6}}, Azares(2, 0.5));
    Verde();
    Juega();
    EXPECT_FALSE(estado.PartidaEnCurso);
    EXPECT_TRUE(p.mensajes.empty());
    EXPECT_EQ(estado.JuegosJugados, 1);
}
