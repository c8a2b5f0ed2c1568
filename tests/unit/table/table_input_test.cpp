#include "table/hit_tests.h"
#include "table/table_input.h"

#include <gtest/gtest.h>

#include "core/session_state.h"
#include "games/cinquillo/cinquillo_choice.h"
#include "games/common/trick_state.h"
#include "tests/support/live_table.h"

using namespace prueba;

namespace {

constexpr Punto kFieltro{355, 300};

struct Entrada : MesaViva {
    // Seat 4 has the turn and may lay the 5 and the 6 de oros; the Rey de bastos may not be laid.
    void TurnoDeLaPersona() {
        PonMano(4, {{kOros, 6}, {kBastos, kRey}, {kCopas, 5}});
        bazas.CartaJugada(kOros, 5) = 2;
        ManoEmpezada(4);
        EligeCartaCinquillo();
        estado.EligeCarta = true;
        estado.EsperandoJugada = true;
    }
    Puntero Sobre(const Punto& punto) {
        Mueve(punto.x, punto.y);
        return PunteroEnMesa();
    }
    void Clica(const Punto& punto) { Clic(punto.x, punto.y); }
    static int Zona(int x, int y) {
        DetectaZonaCartas(x, y);
        return estado.ZonaBajoCursor;
    }
    static std::pair<int, int> Debajo(int x, int y) {
        DetectaJdorYCar(x, y);
        return {estado.AsientoBajoCursor, estado.CartaBajoCursor};
    }
    static std::pair<int, int> FilaYColumna(int x, int y) {
        HallaFilyCol(x, y);
        return {estado.FilaReparto, estado.ColumnaReparto};
    }
};

using AsientoYCarta = std::pair<int, int>;

} // namespace

TEST_F(Entrada, LasZonasYSusBordes) {
    EXPECT_EQ(Zona(160, 175), 1);
    EXPECT_EQ(Zona(161, 175), 0);
    EXPECT_EQ(Zona(0, 425), 1);
    EXPECT_EQ(Zona(0, 426), 0);
    EXPECT_EQ(Zona(230, 160), 2);
    EXPECT_EQ(Zona(229, 160), 0);
    EXPECT_EQ(Zona(480, 161), 0);
    EXPECT_EQ(Zona(549, 300), 3);
    EXPECT_EQ(Zona(548, 300), 0);
    EXPECT_EQ(Zona(355, 438), 4);
    EXPECT_EQ(Zona(355, 437), 0);
    EXPECT_EQ(Zona(355, 300), 0);
}

TEST_F(Entrada, LaCartaDeEncimaGana) {
    PonMano(4, {{kOros, 1}, {kOros, 2}, {kOros, 3}});
    // Corners at 230, 304 and 378: each card covers the end of the one before.
    EXPECT_EQ(Debajo(303, 500), (AsientoYCarta{4, 1}));
    EXPECT_EQ(Debajo(304, 500), (AsientoYCarta{4, 2}));
    EXPECT_EQ(Debajo(378, 500), (AsientoYCarta{4, 3}));
    EXPECT_EQ(Debajo(478, 500), (AsientoYCarta{4, 3}));
    EXPECT_EQ(Debajo(479, 500), (AsientoYCarta{0, 0}));
}

TEST_F(Entrada, EnLaFranjaPeroFueraDeLasCartasSeSabeElAsiento) {
    PonMano(4, {{kOros, 1}, {kOros, 2}, {kOros, 3}});
    EXPECT_EQ(Debajo(350, 439), (AsientoYCarta{4, 0}));
    EXPECT_EQ(Debajo(350, 590), (AsientoYCarta{4, 0}));
}

TEST_F(Entrada, LasCartasDeLosLadosMidenAcostadas) {
    PonMano(1, {{kOros, 1}});
    PonMano(3, {{kOros, 2}});
    EXPECT_EQ(Debajo(18, 250), (AsientoYCarta{1, 1}));
    EXPECT_EQ(Debajo(158, 350), (AsientoYCarta{1, 1}));
    EXPECT_EQ(Debajo(159, 350), (AsientoYCarta{1, 0}));
    EXPECT_EQ(Debajo(158, 351), (AsientoYCarta{0, 0}));
    EXPECT_EQ(Debajo(691, 350), (AsientoYCarta{3, 1}));
}

TEST_F(Entrada, UnaCartaLevantadaSeTocaMasAdentro) {
    PonMano(2, {{kOros, 1}});
    EXPECT_EQ(Debajo(350, 20), (AsientoYCarta{2, 1}));
    estado.Mano(2, 1, 1, kAltura) = kLevantada;
    EXPECT_EQ(Debajo(350, 20), (AsientoYCarta{2, 0}));
    EXPECT_EQ(Debajo(350, 38), (AsientoYCarta{2, 1}));
}

TEST_F(Entrada, SeMiranLasCartasDeLaSerieEnPantalla) {
    estado.SerieActual = 2;
    estado.NumCartas(4, 2) = 1;
    estado.Mano(4, 2, 1, kPalo) = kOros;
    EXPECT_EQ(Debajo(310, 500), (AsientoYCarta{4, 1}));
    estado.SerieActual = 1;
    EXPECT_EQ(Debajo(310, 500), (AsientoYCarta{0, 0}));
}

TEST_F(Entrada, FilaYColumnaDelReparto) {
    estado.ReparteX = 181;
    estado.ReparteY = 204;
    estado.FilasReparto = 4;
    EXPECT_EQ(FilaYColumna(181, 204), (std::pair{1, 1}));
    EXPECT_EQ(FilaYColumna(181 + 25, 204 + 44), (std::pair{1, 1}));
    EXPECT_EQ(FilaYColumna(181 + 26, 204), (std::pair{1, 0})); // the last three pixels of a column
    EXPECT_EQ(FilaYColumna(181 + 28, 204), (std::pair{1, 0}));
    EXPECT_EQ(FilaYColumna(181 + 29, 204 + 45), (std::pair{0, 2}));
    EXPECT_EQ(FilaYColumna(181 + 11 * 29, 204 + 3 * 48), (std::pair{4, 12}));
    EXPECT_EQ(FilaYColumna(181 + 12 * 29, 204 + 4 * 48), (std::pair{0, 0}));
    EXPECT_EQ(FilaYColumna(180, 203), (std::pair{0, 0}));
}

TEST_F(Entrada, ElPunteroSobreLasCartasDelTurno) {
    TurnoDeLaPersona();
    PonMano(2, {{kOros, 1}});
    EXPECT_EQ(Sobre(SobreCarta(4, 1)), Puntero::ManoVerde);
    EXPECT_EQ(Sobre(SobreCarta(4, 2)), Puntero::ManoRoja);
    EXPECT_EQ(Sobre(SobreCarta(4, 3)), Puntero::ManoVerde);
    EXPECT_EQ(Sobre(SobreCarta(2, 1)), Puntero::Flecha);
    EXPECT_EQ(Sobre(kFieltro), Puntero::Flecha);
    EXPECT_EQ(Sobre({350, 590}), Puntero::Flecha); // in the zone, below the cards
}

TEST_F(Entrada, EnElTurnoDeOtroElPunteroEsLaFlecha) {
    TurnoDeLaPersona();
    estado.JugadorActual = 1;
    EXPECT_EQ(Sobre(SobreCarta(4, 1)), Puntero::Flecha);
}

TEST_F(Entrada, SinManoEnJuegoElPunteroEsLaFlecha) {
    TurnoDeLaPersona();
    estado.ManoEnCurso = false;
    EXPECT_EQ(Sobre(SobreCarta(4, 1)), Puntero::Flecha);
    estado.ManoEnCurso = true;
    estado.PartidaEnCurso = false;
    EXPECT_EQ(Sobre(SobreCarta(4, 1)), Puntero::Flecha);
}

TEST_F(Entrada, OrdenandoElPunteroMueveCartasVisiblesYNoJuega) {
    TurnoDeLaPersona();
    PonMano(1, {{kOros, 1}});
    PonMano(2, {{kOros, 2}});
    estado.CartasJugador(2) = kVisibles;
    estado.ModoOrdenar = true;
    EXPECT_EQ(Sobre(SobreCarta(4, 2)), Puntero::Ordenar);
    EXPECT_EQ(Sobre(SobreCarta(2, 1)), Puntero::Ordenar);
    EXPECT_EQ(Sobre(SobreCarta(1, 1)), Puntero::Flecha);
    EXPECT_EQ(Sobre(kFieltro), Puntero::Flecha);
}

TEST_F(Entrada, LaColumnaDeBotonesDevuelveLaFlecha) {
    TurnoDeLaPersona();
    Sobre(SobreCarta(4, 1));
    DespachaEvento({.tipo = TipoEvento::RatonMueve, .control = Control::Pic_Botonera, .x = 5});
    EXPECT_EQ(PunteroEnMesa(), Puntero::Flecha);
    EXPECT_EQ(estado.CursorTabla, 0);
}

TEST_F(Entrada, UnClicEnUnaCartaLegalLaElige) {
    TurnoDeLaPersona();
    estado.SonidoActivo = true;
    Clica(SobreCarta(4, 3));
    EXPECT_TRUE(estado.JugadaHecha);
    EXPECT_EQ(estado.CartaElegida, 3);
    EXPECT_FALSE(estado.EsperandoJugada);
    EXPECT_EQ(p.sonidos.back(), (SonidoPedido{25, true}));
}

TEST_F(Entrada, ElegirUnaCartaVuelveAPintarSuAsiento) {
    TurnoDeLaPersona();
    EmpiezaTraza();
    Clica(SobreCarta(4, 3));
    EXPECT_EQ(TrazaDe("RedibujarAsiento"), (std::vector<std::string>{"RedibujarAsiento(4)"}));
}

// The turned card looks out 18 pixels at the pile's left.
TEST_F(Entrada, ElPunteroSobreLaPilaCambiaSoloSiHayCambio) {
    Juega(kBrisca);
    PonMano(4, {{kOros, 7}, {kBastos, kRey}, {kCopas, 5}});
    ManoEmpezada(4);
    EXPECT_EQ(Sobre({355, 300}), Puntero::Flecha);
    bazas.CartaCambio = 7;
    EXPECT_EQ(Sobre({355, 300}), Puntero::Cambiar);
    EXPECT_EQ(Sobre({286, 230}), Puntero::Cambiar);
    EXPECT_EQ(Sobre({404, 370}), Puntero::Cambiar);
    EXPECT_EQ(Sobre({285, 300}), Puntero::Flecha);
    EXPECT_EQ(Sobre({405, 300}), Puntero::Flecha);
    EXPECT_EQ(Sobre({355, 229}), Puntero::Flecha);
    EXPECT_EQ(Sobre({355, 371}), Puntero::Flecha);
    estado.ControlJugador(4) = kAutomatico;
    EXPECT_EQ(Sobre({355, 300}), Puntero::Flecha);
}

TEST_F(Entrada, UnClicEnUnaCartaQueNoValeNoHaceNada) {
    TurnoDeLaPersona();
    estado.SonidoActivo = true;
    const Integer elegida = estado.CartaElegida;
    Clica(SobreCarta(4, 2));
    EXPECT_FALSE(estado.JugadaHecha);
    EXPECT_EQ(estado.CartaElegida, elegida);
    EXPECT_TRUE(estado.EsperandoJugada);
    EXPECT_THAT(p.sonidos, testing::IsEmpty());
}

TEST_F(Entrada, SinPermisoParaElegirUnClicNoJuega) {
    TurnoDeLaPersona();
    estado.EligeCarta = false;
    Clica(SobreCarta(4, 1));
    EXPECT_FALSE(estado.JugadaHecha);
    EXPECT_TRUE(estado.EsperandoJugada);
}

TEST_F(Entrada, ElBotonDerechoNoJuegaCartas) {
    TurnoDeLaPersona();
    const Punto carta = SobreCarta(4, 1);
    Aprieta(carta.x, carta.y, 2);
    EXPECT_FALSE(estado.JugadaHecha);
    EXPECT_EQ(estado.BotonRaton, 2);
    EXPECT_EQ(estado.RatonX, carta.x);
    EXPECT_EQ(estado.RatonY, carta.y);
}

TEST_F(Entrada, ElPunteroQueYaEstabaEncimaTambienJuega) {
    TurnoDeLaPersona();
    estado.JugadorActual = 1;
    const Punto carta = SobreCarta(4, 1);
    Mueve(carta.x, carta.y);
    EXPECT_EQ(PunteroEnMesa(), Puntero::Flecha);
    estado.JugadorActual = 4;
    Aprieta(carta.x, carta.y);
    EXPECT_TRUE(estado.JugadaHecha);
    EXPECT_EQ(estado.CartaElegida, 1);
}

TEST_F(Entrada, AlEmpezarElTurnoElPunteroQueEstaEncimaCambia) {
    TurnoDeLaPersona();
    estado.JugadorActual = 1;
    const Punto carta = SobreCarta(4, 1);
    Aprieta(kFieltro.x, kFieltro.y); // the last press was elsewhere
    Mueve(carta.x, carta.y);
    estado.JugadorActual = 4;
    RefrescaPuntero();
    EXPECT_EQ(PunteroEnMesa(), Puntero::ManoVerde);
}

TEST_F(Entrada, MirarOtraVezBajoElPunteroNoQuedaAnotado) {
    TurnoDeLaPersona();
    const Punto carta = SobreCarta(4, 1);
    Mueve(carta.x, carta.y);
    EmpiezaTraza();
    RefrescaPuntero();
    EXPECT_TRUE(traza.empty());
    Mueve(carta.x, carta.y);
    EXPECT_FALSE(TrazaDe("ColocarCarta").empty());
}

TEST_F(Entrada, UnClicDuranteUnaPausaValeEnElSiguientePaseDondeSeDio) {
    TurnoDeLaPersona();
    const Punto carta = SobreCarta(4, 3);
    p.guion.RatonPulsa(carta.x, carta.y, 1);
    p.guion.RatonSuelta(carta.x, carta.y, 1);
    p.guion.RatonMueve(10, 10);
    EmpiezaTraza();
    estado.VelocidadJuego = 50;
    p.DuermeHasta(p.Reloj() + 400);
    EXPECT_FALSE(estado.JugadaHecha);
    const Evento primero = *p.SiguienteEvento(Pase::DeEspera);
    DespachaEvento(primero);
    EXPECT_TRUE(estado.JugadaHecha);
    EXPECT_EQ(estado.CartaElegida, 3);
}

TEST_F(Entrada, ApretarEscondeElMenuDeOrdenar) {
    TurnoDeLaPersona();
    Clic(SobreCarta(4, 2).x, SobreCarta(4, 2).y, 2);
    ASSERT_TRUE(p.EstaVisible(Control::Pic_SelOpciones, 0));
    Aprieta(kFieltro.x, kFieltro.y);
    EXPECT_FALSE(p.EstaVisible(Control::Pic_SelOpciones, 0));
}

TEST_F(Entrada, UnClicFueraDeLasZonasDejaDeOrdenar) {
    TurnoDeLaPersona();
    estado.ModoOrdenar = true;
    Clica({350, 590});
    EXPECT_TRUE(estado.ModoOrdenar);
    Clica(kFieltro);
    EXPECT_FALSE(estado.ModoOrdenar);
    estado.ModoOrdenar = true;
    Clic(kFieltro.x, kFieltro.y, 2);
    EXPECT_FALSE(estado.ModoOrdenar);
}

TEST_F(Entrada, LasTeclasDeMinimizarYControlCNoCuentan) {
    EXPECT_FALSE(TeclaActiva(27));
    EXPECT_FALSE(TeclaActiva('q'));
    EXPECT_FALSE(TeclaActiva('Q'));
    EXPECT_EQ(p.minimizadas, 3);
    EXPECT_FALSE(TeclaActiva(3));
    EXPECT_EQ(p.minimizadas, 3);
    EXPECT_TRUE(TeclaActiva('a'));
    EXPECT_TRUE(TeclaActiva(13));
    EXPECT_TRUE(TeclaActiva(' '));
}

TEST_F(Entrada, SinPartidaUnaTeclaPideUna) {
    DespachaEvento({.tipo = TipoEvento::Tecla, .tecla = 'a'});
    EXPECT_EQ(sesion.peticion, Peticion::NuevaPartida);
}

TEST_F(Entrada, ConPartidaUnaTeclaNoPideOtra) {
    estado.PartidaEnCurso = true;
    DespachaEvento({.tipo = TipoEvento::Tecla, .tecla = 'a'});
    EXPECT_EQ(sesion.peticion, Peticion::Ninguna);
    EXPECT_TRUE(p.mensajes.empty());
}
