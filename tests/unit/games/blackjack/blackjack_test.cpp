// Whole hands of Black Jack from a shoe in a known order: seat 4 against the bank, by hand unless said otherwise.

#include "games/blackjack/blackjack.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>

#include "betting/bet_state.h"
#include "betting/chips.h"
#include "betting/phases.h"
#include "core/random.h"
#include "games/common/series.h"
#include "table/chips.h"
#include "tests/support/bank_table.h"
#include "tests/support/live_table.h"

using namespace prueba;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

struct ManoDeBlackJack : MesaViva {
    ManoDeBlackJack() {
        Juega(kBlackJack);
        estado.VelocidadJuego = 100;
        estado.PausaEntreJugadas = false;
        estado.JugadorBanca = 2;
        estado.NombreJugador(2) = "Banca";
        Desactiva({1, 3});
        for (int asiento : {2, 4})
            AsignarResto(asiento, 200);
        for (int asiento = 1; asiento <= 4; ++asiento)
            estado.CartasJugador(asiento) = kVisibles;
    }

    // The shoe from here on: the seats in turn and the bank once, then whoever asks.
    static void Mazo(const std::vector<Carta>& cartas) {
        estado.PosicionMazo = 1;
        estado.CartasEnMazo = static_cast<Integer>(cartas.size());
        int lugar = 0;
        for (const Carta& carta : cartas) {
            ++lugar;
            estado.Baraja(lugar, 1) = carta.palo;
            estado.Baraja(lugar, 2) = carta.valor;
        }
    }

    // What the person does in the waits, in order.
    void Pulsa(Control control, int indice = 0) {
        p.guion.Encola({.tipo = TipoEvento::Clic, .control = control, .indice = indice});
    }
    void PulsaEn(const Punto& donde) {
        p.guion.Encola({.tipo = TipoEvento::RatonPulsa, .x = donde.x, .y = donde.y});
    }
    void Carta1() { Pulsa(Control::Pic_BotSuperior, 1); }
    void Servido() { Pulsa(Control::Pic_BotSuperior, 2); }
    void DoblaOAsegura() { Pulsa(Control::Pic_BotDobSeg); }
    // The first of two cards lies there.
    void Abre() { PulsaEn({355, 500}); }
    void ApuestaCinco() {
        const Rectangulo ficha = PilaDe(4, 3);
        PulsaEn({ficha.x + 5, ficha.y + 5});
        Pulsa(Control::Pic_APBotApostar);
    }

    void JuegaLaPartida() {
        estado.PartidaEnCurso = true;
        ManoBlackJack();
    }
    // The tip that was on show when these words came, 0 for none.
    const RegistroJuego& Registro() const { return estado.Juegos(1); }
    std::string Resultados() const {
        for (const CajaMensaje& caja : p.mensajes) {
            if (caja.titulo == "Final de la mano")
                return caja.texto;
        }
        return "";
    }
};

} // namespace

TEST_F(ManoDeBlackJack, DosNaturalesEmpatanYLaApuestaVuelve) {
    Mazo({{kOros, kAs}, {kCopas, kReyFrances}, {kBastos, kReyFrances}, {kEspadas, kAs}});
    ApuestaCinco();
    JuegaLaPartida();
    EXPECT_EQ(RestoDe(4), 200);
    EXPECT_EQ(RestoDe(2), 200);
    EXPECT_EQ(Registro().Marcas(4, 1), 0);
    EXPECT_EQ(Resultados(), "Jugador4 : Black Jack\r\nBanca : Black Jack\r\n");
}

TEST_F(ManoDeBlackJack, ElNaturalGanaAVeintiunaDeTresYCobraSieteDeCinco) {
    Mazo({{kOros, kAs}, {kCopas, 7}, {kBastos, kReyFrances}, {kEspadas, 7}, {kOros, 7}});
    ApuestaCinco();
    JuegaLaPartida();
    EXPECT_EQ(RestoDe(4), 207);
    EXPECT_EQ(RestoDe(2), 193);
    EXPECT_EQ(Registro().Marcas(4, 1), 1);
    EXPECT_EQ(Registro().Marcas(2, 1), 0);
    EXPECT_EQ(Registro().Total, -7);
    EXPECT_EQ(Registro().Texto1(4), "Black J        ");
    EXPECT_EQ(Registro().Texto1(2), "21             ");
    EXPECT_EQ(Registro().Texto2(4), std::string(15, ' '));
    EXPECT_EQ(Registro().Inicio, "Banca");
}

TEST_F(ManoDeBlackJack, AbiertoElVeintiunoPierdeEnLaPrimeraYEmpataEnLaSegundaContraElNatural) {
    Mazo({{kOros, kReyFrances},
          {kCopas, kReyFrances},
          {kBastos, kReyFrances},
          {kEspadas, kAs},
          {kOros, kAs},
          {kCopas, kAs}});
    ApuestaCinco();
    Abre();
    JuegaLaPartida();
    EXPECT_EQ(estado.SeriesJugador(4), 2);
    EXPECT_EQ(RestoDe(4), 195);
    EXPECT_EQ(Registro().Texto1(4), "21     21      ");
    EXPECT_EQ(Registro().Cifra(4), 2);
    EXPECT_EQ(Resultados(), "Jugador4 / 1 : 21\r\nJugador4 / 2 : 21\r\nBanca : Black Jack\r\n");
}

TEST_F(ManoDeBlackJack, ElVeintiunoDeManoAbiertaPagaALaPar) {
    Mazo({{kOros, kReyFrances},
          {kCopas, kReyFrances},
          {kBastos, kReina},
          {kEspadas, kAs},
          {kOros, kAs},
          {kCopas, 10}});
    ApuestaCinco();
    Abre();
    JuegaLaPartida();
    EXPECT_EQ(RestoDe(4), 210);
    EXPECT_EQ(Registro().Marcas(4, 1), 1);
    EXPECT_EQ(Registro().Marcas(4, 2), 1);
}

TEST_F(ManoDeBlackJack, ElSeguroDeCincoCuestaDosYPagaCuatro) {
    Mazo({{kOros, 10}, {kCopas, kAs}, {kBastos, 9}, {kEspadas, kReyFrances}});
    ApuestaCinco();
    DoblaOAsegura();
    Servido();
    JuegaLaPartida();
    EXPECT_EQ(RestoDe(4), 199); // four won, five lost
    EXPECT_EQ(Registro().Total, 1);
}

TEST_F(ManoDeBlackJack, SinNaturalDeLaBancaElSeguroSePierde) {
    Mazo({{kOros, 10}, {kCopas, kAs}, {kBastos, 9}, {kEspadas, 7}});
    ApuestaCinco();
    DoblaOAsegura();
    Servido();
    JuegaLaPartida();
    EXPECT_EQ(RestoDe(4), 203); // five won, two lost
}

TEST_F(ManoDeBlackJack, QuienSePasaCobraSuSeguro) {
    estado.EstadoJugador(1) = kActivado;
    ActivarAsientos();
    AsignarResto(1, 200);
    estado.NivelJugador(1) = 100;
    // Seat 1 stands at 20: the bank has somebody to draw against.
    Mazo({{kOros, 10},
          {kBastos, 10},
          {kCopas, kAs},
          {kOros, 6},
          {kBastos, kReyFrances},
          {kCopas, 9},
          {kEspadas, kReyFrances}});
    ApuestaCinco();
    DoblaOAsegura();
    Carta1();
    JuegaLaPartida();
    EXPECT_TRUE(estado.SerieTerminada(4, 1));
    EXPECT_EQ(RestoDe(4), 199);
    EXPECT_EQ(Registro().Texto1(4), "Se pasó        ");
    EXPECT_THAT(Resultados(), HasSubstr("Jugador4 : Se ha pasado\r\n"));
}

TEST_F(ManoDeBlackJack, ContraUnAsNoSeDoblaYElSeguroSeOfreceUnaVez) {
    Mazo({{kOros, 5}, {kCopas, kAs}, {kBastos, 6}, {kEspadas, kReyFrances}});
    ApuestaCinco();
    for (int vez = 0; vez < 3; ++vez)
        DoblaOAsegura();
    JuegaLaPartida(); // left in the wait
    EXPECT_EQ(apuestas.Apuesta(4, 1, kFaseSeguro), 2);
    EXPECT_EQ(apuestas.Apuesta(4, 1, kFaseDoblar), 0);
    EXPECT_FALSE(series.PuedeDoblar);
    EXPECT_FALSE(p.EstaVisible(Control::Pic_BotDobSeg, 0));
    EXPECT_EQ(RestoDe(4), 193);
}

TEST_F(ManoDeBlackJack, SinAsNoHaySeguroYDobladaLlegaUnaSolaCarta) {
    Mazo({{kOros, 5}, {kCopas, kReyFrances}, {kBastos, 6}, {kEspadas, 4}, {kOros, 10}});
    ApuestaCinco();
    DoblaOAsegura();
    JuegaLaPartida();
    EXPECT_EQ(estado.NumCartas(4, 1), 3);
    EXPECT_EQ(RestoDe(4), 200 + (Registro().Marcas(4, 1) == 1 ? 10 : -10));
    EXPECT_EQ(Registro().Texto1(4), "15             "); // below 16, and yet no card more
    EXPECT_EQ(Registro().Texto1(2), "20             ");
}

TEST_F(ManoDeBlackJack, ElConsejoDelSeguroSigueALaVistaTrasAsegurarse) {
    std::optional<int> consejo;
    p.al_anunciar = [this, &consejo](const std::string& que) {
        if (que == "Jugador4 se asegura")
            consejo = p.EstaVisible(Control::Pic_Sugerencia, 0) ? estado.TipActual : 0;
    };
    EncolaAzar(std::vector<double>(20, 0.5)); // the tips are those of the offers
    EmpiezaTraza();
    Mazo({{kOros, 10}, {kCopas, kAs}, {kBastos, 9}, {kEspadas, 7}});
    ApuestaCinco();
    DoblaOAsegura();
    Servido();
    JuegaLaPartida();
    EXPECT_THAT(TrazaDe("MostrarSugerencia"), Contains("MostrarSugerencia(22)"));
    EXPECT_EQ(consejo, 22);
}

TEST_F(ManoDeBlackJack, QuienRecibeVeintiunoNoElige) {
    Mazo({{kOros, kAs}, {kCopas, kAs}, {kBastos, kReyFrances}, {kEspadas, 7}});
    ApuestaCinco();
    EmpiezaTraza();
    JuegaLaPartida();
    EXPECT_EQ(RestoDe(4), 207);
    // The bets and the end of the hand: no wait in between, and no insurance.
    EXPECT_EQ(TrazaDe("PedirContinuar").size(), 2U);
    EXPECT_THAT(TrazaDe("BotonDobSeg"), ElementsAre());
}

TEST_F(ManoDeBlackJack, SiTodosSePasanLaBancaSeQuedaConSuCarta) {
    Mazo({{kOros, 10}, {kCopas, 9}, {kBastos, 6}, {kEspadas, 10}});
    ApuestaCinco();
    Carta1();
    EmpiezaTraza();
    JuegaLaPartida();
    EXPECT_EQ(estado.NumCartas(2, 1), 1);
    EXPECT_EQ(Resultados(), "Jugador4 : Se ha pasado\r\nBanca : 9\r\n");
    EXPECT_EQ(p.mensajes.front().lineas, 2); // a line for each hand
    EXPECT_EQ(RestoDe(2), 205);
    EXPECT_THAT(TrazaDe("Sonido"), Contains("Sonido(1, 11)").Times(2));
}

TEST_F(ManoDeBlackJack, ElMazoAgotadoVuelveEntero) {
    Mazo({{kOros, 2}, {kCopas, 9}, {kBastos, 3}});
    ApuestaCinco();
    Carta1();
    JuegaLaPartida(); // left in the wait
    EXPECT_EQ(estado.CartasEnMazo, 311);
    EXPECT_EQ(estado.PosicionMazo, 2);
    EXPECT_EQ(estado.NumCartas(4, 1), 3);
    EXPECT_EQ(estado.Mano(4, 1, 3, kCara), kDescubierta);
}

TEST_F(ManoDeBlackJack, LaBancaSinFondosPagaLoQueTieneYAcabaLaPartida) {
    AsignarResto(2, 6);
    Mazo({{kOros, kAs}, {kCopas, 7}, {kBastos, kReyFrances}, {kEspadas, 7}, {kOros, 7}});
    ApuestaCinco();
    Pulsa(Control::Pic_BotContinuar);
    JuegaLaPartida();
    EXPECT_EQ(RestoDe(4), 206);
    EXPECT_EQ(RestoDe(2), 0);
    EXPECT_EQ(estado.GanadorPartida, 4);
    EXPECT_FALSE(estado.PartidaEnCurso);
    EXPECT_THAT(Titulos(), ElementsAre("Final de la mano", "Final de Partida",
                                       "Histórico de partidas jugadas"));
    EXPECT_EQ(p.mensajes[1].texto, "La banca se ha quedado sin fondos");
}

TEST_F(ManoDeBlackJack, TodosSinFondosAcabaLaPartida) {
    AsignarResto(4, 1); // all that the game can bet for the seat
    Mazo({{kOros, 10}, {kCopas, 10}, {kBastos, 9}, {kEspadas, 10}});
    Pulsa(Control::Pic_BotContinuar);
    Servido();
    Pulsa(Control::Pic_BotContinuar);
    JuegaLaPartida();
    EXPECT_EQ(RestoDe(2), 201);
    EXPECT_EQ(estado.GanadorPartida, 2);
    EXPECT_FALSE(estado.PartidaEnCurso);
    EXPECT_EQ(p.mensajes.at(1).titulo, "Final de Partida");
    EXPECT_EQ(p.mensajes.at(1).texto, "Todos los jugadores se han quedado sin fondos");
}

TEST_F(ManoDeBlackJack, FueraDeSitioUnClicNoHaceNada) {
    Mazo({{kOros, 10}, {kCopas, 10}, {kBastos, 7}, {kEspadas, 10}});
    for (int indice : {1, 2}) {
        Pulsa(Control::Pic_BotSuperior, indice);
        Pulsa(Control::Pic_BotLateral, indice);
    }
    DoblaOAsegura();
    Abre();
    ApuestaCinco();
    const Rectangulo ficha = PilaDe(4, 3);
    PulsaEn({ficha.x + 5, ficha.y + 5});
    Pulsa(Control::Pic_APBotApostar);
    Pulsa(Control::Pic_APBotAnular);
    DoblaOAsegura();
    Abre();
    JuegaLaPartida(); // left in the wait
    EXPECT_EQ(apuestas.Apuesta(4, 1, kFaseApuestas), 5);
    EXPECT_EQ(ApuestaTotal(4, 1), 5);
    EXPECT_EQ(RestoDe(4), 195);
    EXPECT_EQ(estado.NumCartas(4, 1), 2);
    EXPECT_EQ(estado.SeriesJugador(4), 1);
    EXPECT_FALSE(series.OrdenPedir || series.OrdenServido || series.OrdenDoblar ||
                 series.OrdenSeguro || series.OrdenAbrir);
}

TEST_F(ManoDeBlackJack, SeMiraOtraSerieYLaOrdenEsDeLaQueSeJuega) {
    Mazo({{kOros, 10}, {kCopas, 10}, {kBastos, 10}, {kEspadas, 2}, {kOros, 3}});
    ApuestaCinco();
    Abre();
    Pulsa(Control::Pic_BotLateral, 2);
    Carta1(); // hidden while another serie is on show
    Pulsa(Control::Pic_BotLateral, 1);
    Carta1();
    JuegaLaPartida(); // left in the wait
    EXPECT_EQ(estado.SerieActual, 1);
    EXPECT_EQ(estado.NumCartas(4, 1), 3);
    EXPECT_EQ(estado.NumCartas(4, 2), 1);
}

TEST_F(ManoDeBlackJack, DosAsesAbiertosSeVuelvenAAbrirOSeDejan) {
    Mazo({{kOros, kAs}, {kCopas, 6}, {kBastos, kAs}, {kEspadas, kAs}});
    ApuestaCinco();
    Abre();
    Carta1();         // not on offer with two Ases on a split hand
    JuegaLaPartida(); // left in the wait
    EXPECT_EQ(estado.NumCartas(4, 1), 2);
    EXPECT_TRUE(series.PuedeAbrir);
    EXPECT_FALSE(p.EstaVisible(Control::Pic_BotSuperior, 1));
    EXPECT_TRUE(p.EstaVisible(Control::Pic_BotSuperior, 2));
}

TEST_F(ManoDeBlackJack, ElAsAbiertoRecibeUnaCartaYNoMas) {
    Mazo({{kOros, kAs},
          {kCopas, 6},
          {kBastos, kAs},
          {kEspadas, 2},
          {kOros, 3},
          {kCopas, 10},
          {kBastos, 5}});
    ApuestaCinco();
    Abre();
    JuegaLaPartida();
    EXPECT_EQ(estado.NumCartas(4, 1), 2);
    EXPECT_EQ(estado.NumCartas(4, 2), 2);
    EXPECT_EQ(Registro().Texto1(4), "13     14      ");
}

TEST_F(ManoDeBlackJack, EnLasApuestasNoHayEstadistica) {
    p.formas.insert(Forma::Estadis);
    JuegaLaPartida(); // left in the bets
    EXPECT_EQ(p.PunteroDe(Control::Pic_Boton, 8), Puntero::Prohibido);
}

TEST_F(ManoDeBlackJack, EnElJuegoHayEstadistica) {
    p.formas.insert(Forma::Estadis);
    Mazo({{kOros, 10}, {kCopas, 10}, {kBastos, 7}});
    ApuestaCinco();
    JuegaLaPartida(); // left in play
    EXPECT_EQ(p.PunteroDe(Control::Pic_Boton, 8), Puntero::ManoIndice);
}

TEST_F(ManoDeBlackJack, ElMazoEsNuevoEnCadaPartida) {
    Mazo({{kOros, 10}});
    series.CambiaBanca = series.PuedeDoblar = true;
    NuevaBlackJack();
    EXPECT_EQ(estado.CartasEnMazo, 0);
    EXPECT_EQ(series, EstadoSeries{});
}

TEST_F(ManoDeBlackJack, SinTurnoLaBancaNoEnsenaSusPuntos) {
    Mazo({{kOros, 10}, {kCopas, 10}, {kBastos, 7}});
    ApuestaCinco();
    JuegaLaPartida(); // left in play
    EXPECT_TRUE(p.EstaVisible(Control::Pic_Tantos, 4));
    EXPECT_FALSE(p.EstaVisible(Control::Pic_Tantos, 2));
    EXPECT_FALSE(p.EstaVisible(Control::Pic_Tantos, 1));
}

TEST_F(ManoDeBlackJack, AlArrancarUnaPartidaGuardadaSinFondosSoloAcaba) {
    AsignarResto(4, 0);
    estado.JuegosJugados = 3;
    JuegaLaPartida();
    EXPECT_FALSE(estado.PartidaEnCurso);
    EXPECT_EQ(estado.GanadorPartida, 2);
    EXPECT_EQ(p.mensajes.front().texto, "Todos los jugadores se han quedado sin fondos");
}
