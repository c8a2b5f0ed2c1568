#include "games/common/trick_state.h"
#include "games/trick/trick_turn.h"
#include "table/button_column.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

#include "core/random.h"
#include "core/session_state.h"
#include "games/trick/search_state.h"
#include "games/trick/trick_rules.h"
#include "table/layout.h"
#include "table/trace.h"
#include "tests/support/trick_table.h"

using namespace prueba;
using testing::ElementsAre;
using testing::StartsWith;

namespace {

constexpr ControlMesa kContinuar{Control::Pic_BotContinuar, 0};
constexpr ControlMesa kTutor{Control::Pic_Boton, kBotonTutor};

// Four seats, seat 1 to play next; a seat's turn is played with `Turno`.
struct TurnoDeTrick : testing::Test {
    void Mesa(Integer juego) {
        mesa = std::make_unique<MesaDeTrick>(juego, 4);
        mesa->plataforma.siempre_continua = false;
        Pinta({kBastos, 4});
        estado.ManoEnCurso = true;
        estado.NumBaza = 1;
        estado.JugadorSalida = 1;
        estado.JugadorActual = 4;
    }
    // Seats 1 to 3 have played; seat 4, manual, is next.
    void TocaAlManual(Carta primera, Carta segunda, Carta tercera) {
        EnMesa(1, primera);
        EnMesa(2, segunda);
        EnMesa(3, tercera);
        estado.CartasEnBaza = 3;
        estado.JugadorActual = 3;
        estado.ControlJugador(4) = kManual;
        estado.CartasJugador(4) = kVisibles;
    }
    void Clic(Integer asiento, Integer lugar) {
        ColocarCarta(asiento, lugar, estado.NumCartas(asiento, 1));
        mesa->plataforma.guion.RatonClic(estado.CartaX + 5, estado.CartaY + 60, 1);
    }
    // Seat 4 takes the first entry of the menu of the right button: its cards can be dragged.
    void OrdenaAMano() {
        GuionEntrada& guion = mesa->plataforma.guion;
        const int x = estado.MesaIzquierda(4) + 40;
        const int y = estado.MesaArriba(4) + 40;
        guion.RatonClic(x, y, 2);
        guion.RatonMueve(x + 10, y + 10);
        guion.RatonPulsa(x + 10, y + 10, 1);
        guion.RatonSuelta(x + 10, y + 10, 1);
    }
    static Carta EnLaMesa(Integer asiento) {
        return {bazas.CartaEnMesa(asiento, 1), bazas.CartaEnMesa(asiento, 2)};
    }
    std::unique_ptr<MesaDeTrick> mesa;
};

} // namespace

TEST_F(TurnoDeTrick, LaCartaPasaDeLaManoALaMesa) {
    Mesa(kBrisca);
    PonMano(1, {{kOros, kAs}, {kCopas, 2}, {kEspadas, kTres}});
    ASSERT_TRUE(TurnoDeBaza());
    EXPECT_EQ(estado.JugadorActual, 1);
    EXPECT_EQ(estado.CartasEnBaza, 1);
    EXPECT_EQ(EnLaMesa(1), Carta(kCopas, 2));
    EXPECT_EQ(bazas.JugadaBaza(1), 2);
    EXPECT_EQ(bazas.PaloSalida, kCopas);
    EXPECT_EQ(estado.NumCartas(1, 1), 2);
    EXPECT_EQ(estado.Mano(1, 1, 2, kPalo), kEspadas); // the hand has closed up
    EXPECT_EQ(estado.Mano(1, 1, 3, kPalo), kSinCarta);
}

TEST_F(TurnoDeTrick, ElTurnoAutomaticoPasoAPaso) {
    Mesa(kBrisca);
    PonMano(1, {{kOros, kAs}, {kCopas, 2}, {kEspadas, kTres}});
    std::vector<std::string> pasos;
    EscuchaTraza([&](const std::string& linea) {
        pasos.push_back(linea);
        const bool levantada = estado.Mano(1, 1, 2, kAltura) == kLevantada;
        if (levantada && linea == "Pausa(500)")
            pasos.emplace_back(estado.Mano(1, 1, 2, kCara) == kDescubierta ? "a la vista"
                                                                           : "tapada");
    });
    ASSERT_TRUE(TurnoDeBaza());
    std::erase(pasos, "Pausa(12)");
    EXPECT_THAT(
        pasos, ElementsAre("CambiarCursor(\"mesa\", \"Flecha\")", "Pausa(400)", "ResaltarAsiento()",
                           "Pausa(140)", "RedibujarAsiento(1)", "Pausa(340)", "Pausa(140)",
                           "RedibujarAsiento(1)", "Pausa(340)", "RedibujarAsiento(1)", "Pausa(500)",
                           "a la vista", "ColocarCarta(1, 2, 3)", "RedibujarAsiento(1)",
                           StartsWith("MoverCarta(2, 2, "), "Sonido(1, 24)", "Sonido(0, 25)"));
}

TEST_F(TurnoDeTrick, UnAsientoSinCartasNoCuenta) {
    Mesa(kBrisca);
    PonMano(3, {{kOros, kAs}});
    ASSERT_TRUE(TurnoDeBaza());
    EXPECT_EQ(estado.JugadorActual, 3);
    EXPECT_EQ(estado.CartasEnBaza, 1);
}

TEST_F(TurnoDeTrick, UnSoloNumeroAlAzarPorTurno) {
    Mesa(kBrisca);
    PonMano(1, {{kOros, kAs}, {kCopas, 2}});
    EncolaAzar({0.25, 0.75});
    ASSERT_TRUE(TurnoDeBaza());
    EXPECT_EQ(estado.AzarTurno, 0.25F);
    EXPECT_EQ(Azar(), 0.75);
}

TEST_F(TurnoDeTrick, ElNumeroMasAltoNoPasaDeLaUltimaCarta) {
    for (const Integer juego : {kTute, kBrisca}) {
        Mesa(juego);
        PonMano(1, {{kOros, kAs}});
        EncolaAzar({0.99999999999});
        ASSERT_TRUE(TurnoDeBaza());
        EXPECT_EQ(EnLaMesa(1), Carta(kOros, kAs));
    }
}

TEST_F(TurnoDeTrick, ElAutomaticoCambiaSiempre) {
    Mesa(kBrisca);
    PonMano(1, {{kOros, kAs}, {kBastos, 2}});
    estado.CartasEnMazo = 20;
    estado.GanadorBaza = 1;
    ASSERT_TRUE(TurnoDeBaza());
    EXPECT_EQ(estado.ValorTriunfo, 2);
}

TEST_F(TurnoDeTrick, BajoArrastreSeAnotaElFallo) {
    Mesa(kTute);
    bazas.Arrastre = true;
    EnMesa(4, {kOros, 7});
    estado.CartasEnBaza = 1;
    PonMano(1, {{kBastos, 5}});
    ASSERT_TRUE(TurnoDeBaza());
    EXPECT_TRUE(bazas.FallaPalo(kOros, 1));
    EXPECT_FALSE(bazas.FallaPalo(kBastos, 1));
    PonMano(2, {{kCopas, 5}});
    ASSERT_TRUE(TurnoDeBaza());
    EXPECT_TRUE(bazas.FallaPalo(kOros, 2));
    EXPECT_TRUE(bazas.FallaPalo(kBastos, 2));
    PonMano(3, {{kOros, 5}});
    ASSERT_TRUE(TurnoDeBaza());
    EXPECT_FALSE(bazas.FallaPalo(kOros, 3));
}

TEST_F(TurnoDeTrick, SinArrastreNoHayFallos) {
    Mesa(kTute);
    EnMesa(4, {kOros, 7});
    estado.CartasEnBaza = 1;
    PonMano(1, {{kCopas, 5}});
    ASSERT_TRUE(TurnoDeBaza());
    EXPECT_FALSE(bazas.FallaPalo(kOros, 1));
}

TEST_F(TurnoDeTrick, ElManualJuegaLaCartaQuePulsa) {
    Mesa(kBrisca);
    PonMano(4, {{kOros, kAs}, {kCopas, 2}, {kEspadas, kTres}});
    TocaAlManual({kOros, 4}, {kOros, 5}, {kOros, 6});
    Clic(4, 3);
    ASSERT_TRUE(TurnoDeBaza());
    EXPECT_EQ(EnLaMesa(4), Carta(kEspadas, kTres));
    EXPECT_FALSE(estado.EligeCarta);
}

TEST_F(TurnoDeTrick, UnaCartaQueNoSePuedeJugarNoSeJuega) {
    Mesa(kTute);
    bazas.Arrastre = true;
    PonMano(4, {{kCopas, kAs}, {kOros, kTres}, {kOros, 2}});
    TocaAlManual({kOros, 4}, {kOros, 5}, {kOros, 6});
    Clic(4, 1);
    Clic(4, 3);
    Clic(4, 2);
    ASSERT_TRUE(TurnoDeBaza());
    EXPECT_EQ(EnLaMesa(4), Carta(kOros, kTres));
    EXPECT_LE(mesa->plataforma.guion.Cuantas(), 2U); // the third press, and nothing before it
}

TEST_F(TurnoDeTrick, ElClicEnUnaCartaQueNoValeNoHaceNada) {
    Mesa(kTute);
    bazas.Arrastre = true;
    PonMano(4, {{kCopas, kAs}, {kOros, kTres}});
    TocaAlManual({kOros, 4}, {kOros, 5}, {kOros, 6});
    Clic(4, 1);
    mesa->Escucha({"Sonido", "MoverCarta"});
    EXPECT_FALSE(TurnoDeBaza()); // the wait goes on until there is no event left
    EXPECT_THAT(mesa->traza, testing::IsEmpty());
    EXPECT_EQ(estado.NumCartas(4, 1), 2);
    EXPECT_FALSE(estado.JugadaHecha);
}

TEST_F(TurnoDeTrick, ElBotonVerdeDejaJugarAlPrograma) {
    Mesa(kBrisca);
    PonMano(4, {{kOros, kAs}, {kCopas, 2}, {kEspadas, kTres}});
    TocaAlManual({kOros, 4}, {kOros, kRey}, {kOros, kTres});
    mesa->plataforma.guion.PulsaControl(kContinuar);
    ASSERT_TRUE(TurnoDeBaza());
    EXPECT_EQ(EnLaMesa(4), Carta(kOros, kAs));
}

TEST_F(TurnoDeTrick, ElTutorAconsejaYNoJuega) {
    Mesa(kBrisca);
    estado.NivelJugador(4) = 20;
    PonMano(4, {{kOros, kAs}, {kCopas, 2}, {kEspadas, kTres}});
    TocaAlManual({kOros, 4}, {kOros, kRey}, {kOros, kTres});
    mesa->plataforma.guion.PulsaControl(kTutor);
    Clic(4, 2);
    ASSERT_TRUE(TurnoDeBaza());
    EXPECT_EQ(EnLaMesa(4), Carta(kCopas, 2));
    EXPECT_EQ(estado.NivelJugador(4), 100); // in Brisca for good
}

// The wait at the end of a hand may follow: advice and a new order would examine the hand again, and a Tute that has
// just been sung would lose its name.
TEST_F(TurnoDeTrick, TrasElTurnoNoHayEleccionNiTutorNiOrden) {
    Mesa(kTute);
    PonMano(4, {{kOros, kAs}, {kCopas, 2}});
    TocaAlManual({kOros, 4}, {kOros, kRey}, {kOros, kTres});
    OrdenaAMano();
    mesa->plataforma.guion.PulsaControl(kContinuar);
    ASSERT_TRUE(TurnoDeBaza());
    EXPECT_FALSE(estado.EligeCarta);
    EXPECT_FALSE(BotonHabilitado(kBotonTutor));
    EXPECT_FALSE(estado.ModoOrdenar);
}

TEST_F(TurnoDeTrick, ElTutorDelTuteDevuelveElNivel) {
    Mesa(kTute);
    estado.NivelJugador(4) = 20;
    PonMano(4, {{kOros, kAs}, {kCopas, 2}});
    TocaAlManual({kOros, 4}, {kOros, kRey}, {kOros, kTres});
    mesa->plataforma.guion.PulsaControl(kTutor);
    Clic(4, 2);
    ASSERT_TRUE(TurnoDeBaza());
    EXPECT_EQ(estado.NivelJugador(4), 20);
}

TEST_F(TurnoDeTrick, ElManualCambiaEnElMazo) {
    Mesa(kBrisca);
    PonMano(4, {{kOros, kAs}, {kBastos, 2}, {kEspadas, kTres}});
    TocaAlManual({kOros, 4}, {kOros, 5}, {kOros, 6});
    estado.CartasEnMazo = 20;
    estado.GanadorBaza = 4;
    mesa->plataforma.guion.RatonClic(estado.MazoX - 10, estado.MazoY + 60, 1);
    mesa->plataforma.guion.RatonClic(estado.MazoX - 10, estado.MazoY + 60,
                                     1); // nothing more to change
    Clic(4, 2);
    ASSERT_TRUE(TurnoDeBaza());
    EXPECT_EQ(estado.ValorTriunfo, 2);
    EXPECT_EQ(EnLaMesa(4), Carta(kBastos, 4));
}

TEST_F(TurnoDeTrick, ConPausaElAutomaticoEsperaElBoton) {
    Mesa(kBrisca);
    estado.PausaEntreJugadas = true;
    PonMano(1, {{kOros, kAs}});
    EXPECT_FALSE(TurnoDeBaza());
    EXPECT_EQ(estado.NumCartas(1, 1), 1);
}

TEST_F(TurnoDeTrick, SiSeDejaLaPartidaNoCaeCartaNinguna) {
    Mesa(kBrisca);
    PonMano(4, {{kOros, kAs}});
    TocaAlManual({kOros, 4}, {kOros, 5}, {kOros, 6});
    EXPECT_FALSE(TurnoDeBaza());
    EXPECT_EQ(estado.NumCartas(4, 1), 1);
    EXPECT_FALSE(estado.EligeCarta);
}

// The search speaks of places as they were when the trick began.
TEST_F(TurnoDeTrick, LaBusquedaNoHaceCaerUnaCartaIlegal) {
    Mesa(kTute);
    bazas.Arrastre = true;
    estado.NivelJugador(2) = 100;
    EnMesa(1, {kOros, kRey});
    estado.CartasEnBaza = 1;
    estado.JugadorActual = 1;
    bazas.JugadaBaza(1) = 1;
    PonMano(2, {{kOros, 4}, {kCopas, 5}});
    bazas.BusquedaActiva = true;
    busqueda = {};
    busqueda.ConteoBusqueda(ClaveBusqueda(1, 1)) = 1;
    busqueda.ConteoBusqueda(ClaveBusqueda(1, 2)) = 3;
    ASSERT_TRUE(TurnoDeBaza());
    EXPECT_EQ(EnLaMesa(2), Carta(kOros, 4));
}

// --- Tips ------------------------------------------------------------------------------------------------

namespace {

int Sugerencia(Integer juego, float azar, Integer cambio) {
    estado.JuegoActivo = juego;
    estado.AzarTurno = azar;
    bazas.CartaCambio = cambio;
    return ReglasEnMesa().sugerencia();
}

} // namespace

TEST(SugerenciaDeTrick, EnTuteElAzarVaAntesQueElCambio) {
    EXPECT_EQ(Sugerencia(kTute, 0.1F, 7), 50);
    EXPECT_EQ(Sugerencia(kTute, 0.2F, 7), 15);
    EXPECT_EQ(Sugerencia(kTute, 0.4F, 7), 42);
    EXPECT_EQ(Sugerencia(kTute, 0.4F, 2), 43);
    EXPECT_EQ(Sugerencia(kTute, 0.4F, 0), 0);
}

TEST(SugerenciaDeTrick, EnBriscaElCambioVaAntesQueElAzar) {
    EXPECT_EQ(Sugerencia(kBrisca, 0.1F, 7), 42);
    EXPECT_EQ(Sugerencia(kBrisca, 0.1F, 2), 43);
    EXPECT_EQ(Sugerencia(kBrisca, 0.1F, 4), 43);
    EXPECT_EQ(Sugerencia(kBrisca, 0.29F, 0), 50);
    EXPECT_EQ(Sugerencia(kBrisca, 0.3F, 0), 15);
    EXPECT_EQ(Sugerencia(kBrisca, 0.6F, 0), 0);
}

TEST_F(TurnoDeTrick, LaSugerenciaEsSoloParaElManual) {
    Mesa(kBrisca);
    PonMano(1, {{kOros, kAs}});
    PonMano(4, {{kOros, kTres}});
    EncolaAzar({0.1, 0.1});
    mesa->Escucha({"MostrarSugerencia"});
    ASSERT_TRUE(TurnoDeBaza());
    EXPECT_TRUE(mesa->traza.empty());
    TocaAlManual({kOros, kAs}, {kOros, 5}, {kOros, 6});
    Clic(4, 1);
    ASSERT_TRUE(TurnoDeBaza());
    EXPECT_EQ(mesa->traza, (std::vector<std::string>{"MostrarSugerencia(50)"}));
}
