#include "betting/bet_state.h"
#include "session/main_buttons.h"
#include "table/button_column.h"
#include "table/table_input.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "betting/chips.h"
#include "core/session_state.h"
#include "games/cinquillo/cinquillo.h"
#include "games/cinquillo/cinquillo_choice.h"
#include "storage/between_hands.h"
#include "storage/settings.h"
#include "table/score_plate.h"
#include "table/table_view.h"
#include "table/waiting.h"
#include "tests/support/live_table.h"

using namespace prueba;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace {

struct Botones : MesaViva {
    Botones() {
        p.formas = {Forma::Personal, Forma::Normas, Forma::Marcador, Forma::Estadis};
        for (int boton = 1; boton <= 8; ++boton)
            HabilitaBoton(boton, true);
        estado.SonidoActivo = true;
    }
    bool EstaGuardado() { return p.EnMemoria().contenidos.contains("./ZOV7031.INI"); }
};

// A match in its fourth game: three are in the records, seat 2 has won two of them and seat 3 led the last one.
struct SalidaEnCualquierMomento : MesaViva {
    SalidaEnCualquierMomento() {
        estado.VelocidadJuego = 100;
        estado.PausaEntreJugadas = false;
        estado.PartidaEnCurso = true;
        estado.JuegosJugados = 3;
        estado.JugadorMano = 3;
        estado.JuegosGanados(2) = 2;
        estado.JuegosGanados(1) = 1;
        for (int juego = 1; juego <= 3; ++juego)
            estado.Juegos(juego).Inicio = "Eva";
        sesion.mano_apuntada = true;
    }
    void Termina() { p.guion.Encola({.tipo = TipoEvento::Termina}); }
    // A pass in which nothing happens.
    void PasaDeLargo(int pases) {
        for (int pase = 0; pase < pases; ++pase)
            p.guion.RatonMueve(355, 300);
    }
    // What the next start of the program finds.
    static void SeReanuda(Integer juegos, Integer mano) {
        EXPECT_EQ(sesion.peticion, Peticion::Salir);
        EXPECT_EQ(sesion.estado_salida, 0);
        LeerIniJuego();
        EXPECT_TRUE(estado.PartidaEnCurso);
        EXPECT_FALSE(estado.ManoEnCurso);
        EXPECT_EQ(estado.JuegosJugados, juegos);
        EXPECT_EQ(estado.JugadorMano, mano);
    }
};

} // namespace

TEST_F(Botones, UnoDeshabilitadoNoHaceNada) {
    for (int boton = 1; boton <= 8; ++boton) {
        HabilitaBoton(boton, false);
        PulsaBoton(boton);
    }
    EXPECT_EQ(sesion.peticion, Peticion::Ninguna);
    EXPECT_THAT(p.formas_abiertas, IsEmpty());
    EXPECT_THAT(p.temas_ayuda, IsEmpty());
    EXPECT_THAT(p.sonidos, IsEmpty());
}

TEST_F(Botones, UnNumeroQueNoEsBotonTampoco) {
    PulsaBoton(0);
    PulsaBoton(9);
    EXPECT_THAT(p.sonidos, IsEmpty());
}

TEST_F(Botones, TodosSuenanMenosElTutor) {
    PulsaBoton(kBotonAyuda);
    EXPECT_THAT(p.sonidos, ElementsAre(SonidoPedido{9, true}));
    p.sonidos.clear();
    PulsaBoton(kBotonTutor);
    EXPECT_THAT(p.sonidos, Not(Contains(SonidoPedido{9, true})));
}

TEST_F(Botones, DejanDeOrdenarEscondenElMenuYDevuelvenLaFlecha) {
    estado.ModoOrdenar = true;
    estado.CursorTabla = 2;
    p.Muestra(Control::Pic_SelOpciones, 0, true);
    PulsaBoton(kBotonAyuda);
    EXPECT_FALSE(estado.ModoOrdenar);
    EXPECT_FALSE(p.EstaVisible(Control::Pic_SelOpciones, 0));
    EXPECT_EQ(estado.CursorTabla, 0);
    EXPECT_EQ(PunteroEnMesa(), Puntero::Flecha);
}

TEST_F(Botones, MientrasDuraSuAccionEstaElReloj) {
    Puntero durante = Puntero::Flecha;
    p.al_abrir = [&](Forma) { durante = PunteroEnMesa(); };
    PulsaBoton(kBotonMarcador);
    EXPECT_EQ(durante, Puntero::RelojArena);
}

TEST_F(Botones, NuevaSinPartidaNoPregunta) {
    PulsaBoton(kBotonNueva);
    EXPECT_EQ(sesion.peticion, Peticion::NuevaPartida);
    EXPECT_THAT(p.mensajes, IsEmpty());
}

TEST_F(Botones, NuevaConPartidaPreguntaSiSeAbandona) {
    estado.PartidaEnCurso = true;
    p.respuestas = {Boton::No};
    PulsaBoton(kBotonNueva);
    EXPECT_EQ(sesion.peticion, Peticion::Ninguna);
    ASSERT_EQ(p.mensajes.size(), 1U);
    EXPECT_EQ(p.mensajes[0].titulo, "Abandonar la partida en curso");
    EXPECT_EQ(
        p.mensajes[0].texto,
        "¿Desea  abandonar  la  partida  que  está  jugando  para comenzar una nueva partida?");
    EXPECT_EQ(p.mensajes[0].lineas, 2);
    EXPECT_EQ(p.mensajes[0].modo, 2);
    PulsaBoton(kBotonNueva);
    EXPECT_EQ(sesion.peticion, Peticion::NuevaPartida);
}

TEST_F(Botones, PersonalizarEsModalYGuarda) {
    bool modal = false;
    p.al_abrir = [&](Forma) { modal = estado.VentanaModal; };
    PulsaBoton(kBotonPersonal);
    EXPECT_THAT(p.formas_abiertas, ElementsAre(Forma::Personal));
    EXPECT_TRUE(modal);
    EXPECT_FALSE(estado.VentanaModal);
    EXPECT_TRUE(EstaGuardado());
    EXPECT_EQ(sesion.peticion, Peticion::Ninguna);
}

TEST_F(Botones, ConOtrosJugadoresEmpiezaUnaPartidaConSuBaraja) {
    Juega(kBrisca);
    p.al_abrir = [](Forma) {
        estado.EstadoJugador(1) = kDesactivado;
        ActivarAsientos();
        estado.JugadoresCambiados = true;
    };
    PulsaBoton(kBotonPersonal);
    EXPECT_EQ(estado.TotalBaraja, 36);
    EXPECT_EQ(sesion.peticion, Peticion::NuevaPartida);
}

TEST_F(Botones, ElCambioDeJugadoresDeOtraVezNoCuenta) {
    estado.JugadoresCambiados = true;
    PulsaBoton(kBotonPersonal);
    EXPECT_EQ(sesion.peticion, Peticion::Ninguna);
}

TEST_F(Botones, LasNormasDelMismoJuegoSoloGuardan) {
    PulsaBoton(kBotonNormas);
    EXPECT_THAT(p.formas_abiertas, ElementsAre(Forma::Normas));
    EXPECT_TRUE(EstaGuardado());
    EXPECT_EQ(sesion.peticion, Peticion::Ninguna);
}

// Limit and names are on the plate, and need not wait for the next hand.
TEST_F(Botones, TrasUnaFormaLaPlacaDeLaPartidaDiceLoQueHaCambiado) {
    p.UsaLienzosRegistrados();
    Juega(kBrisca);
    estado.PartidaEnCurso = true;
    estado.JuegosJugados = 1;
    estado.LimitePartida = 3;
    vista.nombres = true;
    PintaTanteo();
    p.al_abrir = [](Forma) { estado.LimitePartida = 8; };
    PulsaBoton(kBotonNormas);
    EXPECT_THAT(p.Tablero().NombreDe({Control::Pic_Tanteo, 0}), HasSubstr("0 de 8"));
    p.al_abrir = [](Forma) { estado.NombreJugador(4) = "Rosa"; };
    PulsaBoton(kBotonPersonal);
    EXPECT_THAT(p.Tablero().NombreDe({Control::Pic_Tanteo, 0}), HasSubstr("Rosa: 0 de 8"));
}

TEST_F(Botones, OtroJuegoEnLasNormasPideSuSesion) {
    p.al_abrir = [](Forma) { estado.JuegoActivo = kTute; };
    PulsaBoton(kBotonNormas);
    EXPECT_EQ(estado.JuegoPrevio, kCinquillo);
    EXPECT_EQ(sesion.peticion, Peticion::NuevaSesion);
}

TEST_F(Botones, ElInformeSeAbreSiempreYLaEstadisticaConJuegos) {
    PulsaBoton(kBotonMarcador);
    PulsaBoton(kBotonEstadis);
    EXPECT_THAT(p.formas_abiertas, ElementsAre(Forma::Marcador));
    estado.JuegosJugados = 1;
    PulsaBoton(kBotonEstadis);
    EXPECT_THAT(p.formas_abiertas, ElementsAre(Forma::Marcador, Forma::Estadis));
}

TEST_F(Botones, LaAyudaSeAbreEnSuPrincipio) {
    PulsaBoton(kBotonAyuda);
    EXPECT_THAT(p.temas_ayuda, ElementsAre(0));
}

TEST_F(Botones, ElTutorEnsenaUnaCartaYDejaElTurno) {
    PonMano(4, {{kBastos, kRey}, {kOros, 5}, {kCopas, 5}});
    ManoEmpezada(4);
    estado.NivelJugador(4) = 30;
    estado.EsperandoJugada = true;
    estado.EligeCarta = true;
    estado.JugadaHecha = true;
    EmpiezaTraza();
    PulsaBoton(kBotonTutor);
    EXPECT_TRUE(estado.EsperandoJugada);
    EXPECT_FALSE(estado.JugadaHecha);
    EXPECT_FALSE(estado.TutorPulsado);
    EXPECT_EQ(estado.NivelJugador(4), 100);
    EXPECT_EQ(TrazaDe("Pausa").front(), "Pausa(60)");
    EXPECT_THAT(TrazaDe("Sonido"), Contains("Sonido(1, 26)"));
    EXPECT_THAT(TrazaDe("MoverCarta"), IsEmpty());
    EXPECT_EQ(estado.Mano(4, 1, estado.CartaElegida, kAltura), kEnLinea);
    EXPECT_EQ(ManoDe(4).size(), 3U);
}

TEST_F(Botones, SinPartidaSeSaleSinPreguntar) {
    PulsaBoton(kBotonSalir);
    EXPECT_THAT(p.mensajes, IsEmpty());
    EXPECT_EQ(sesion.peticion, Peticion::Salir);
    EXPECT_TRUE(EstaGuardado());
}

TEST_F(Botones, ConPartidaSePreguntaSiSePospone) {
    estado.PartidaEnCurso = true;
    p.respuestas = {Boton::No};
    PulsaBoton(kBotonSalir);
    EXPECT_EQ(sesion.peticion, Peticion::Ninguna);
    EXPECT_FALSE(EstaGuardado());
    ASSERT_EQ(p.mensajes.size(), 1U);
    EXPECT_EQ(p.mensajes[0].titulo, "Posponer la partida en curso");
    EXPECT_EQ(p.mensajes[0].texto, "¿Desea  abandonar  el  programa  para  continuar  en  otro "
                                   "momento la partida que está jugando?");
    EXPECT_EQ(p.mensajes[0].lineas, 2);
}

TEST_F(Botones, ElBotonVerdeSinEsperaSoloEscondeElMenu) {
    p.Muestra(Control::Pic_SelOpciones, 0, true);
    EmpiezaTraza();
    PulsaContinuar();
    EXPECT_FALSE(p.EstaVisible(Control::Pic_SelOpciones, 0));
    EXPECT_THAT(traza, IsEmpty());
}

TEST_F(Botones, UnControlEscondidoNoRecibeClics) {
    estado.EsperandoJugada = true;
    DespachaEvento({.tipo = TipoEvento::Clic, .control = Control::Pic_BotContinuar});
    EXPECT_TRUE(estado.EsperandoJugada);
}

// With a pause between moves one clicks from turn to turn: the click too many is not the person's.
TEST_F(Botones, UnClicQueEmpezoEnTurnoAjenoNoJuegaPorLaPersona) {
    ManoEmpezada(4);
    p.DuermeHasta(1000);
    PedirContinuar(1);
    const Evento clic{.tipo = TipoEvento::Clic, .control = Control::Pic_BotContinuar, .desde = 900};
    DespachaEvento(clic);
    EXPECT_TRUE(estado.EsperandoJugada);
    DespachaEvento({.tipo = TipoEvento::Tecla, .tecla = 'a', .desde = 900});
    EXPECT_TRUE(estado.EsperandoJugada);
    DespachaEvento({.tipo = TipoEvento::Clic, .control = Control::Pic_BotContinuar, .desde = 1200});
    EXPECT_FALSE(estado.EsperandoJugada);
}

// Also when a turn begins while the pointer is on the column: it is not on the card on which it was seen last.
TEST_F(Botones, SobreLaColumnaElPunteroYaNoEstaEnNingunaCarta) {
    PonMano(4, {{kOros, 5}, {kCopas, 7}});
    ManoEmpezada(4);
    estado.EligeCarta = true;
    const Punto carta = SobreCarta(4, 1);
    Mueve(carta.x, carta.y);
    ASSERT_NE(PunteroEnMesa(), Puntero::Flecha);
    DespachaEvento({.tipo = TipoEvento::RatonMueve, .control = Control::Pic_Botonera});
    RefrescaPuntero();
    EXPECT_EQ(PunteroEnMesa(), Puntero::Flecha);
}

TEST_F(SalidaEnCualquierMomento, EnElSorteoQuedaUnaPartidaSinJuegos) {
    p.traviesa = true;
    PasaDeLargo(1);
    Termina();
    NuevaPartida();
    SeReanuda(0, 3);
    EXPECT_EQ(estado.JuegosGanados(2), 0);
}

TEST_F(SalidaEnCualquierMomento, EnElRepartoLaManoNoCuenta) {
    p.traviesa = true;
    PasaDeLargo(11);
    Termina();
    ManoCinquillo();
    EXPECT_EQ(estado.NumCartas(4, 1) + estado.NumCartas(1, 1) + estado.NumCartas(2, 1) +
                  estado.NumCartas(3, 1),
              12);
    SeReanuda(3, 3);
    EXPECT_EQ(estado.JuegosGanados(2), 2);
    EXPECT_EQ(estado.Juegos(3).Inicio, "Eva");
}

TEST_F(SalidaEnCualquierMomento, EnElRepartoAManoTampoco) {
    estado.SistemaReparto = kRepartoManual;
    p.guion.PulsaControl({Control::Pic_Boton, kBotonSalir});
    ManoCinquillo();
    EXPECT_THAT(Titulos(), ElementsAre("Posponer la partida en curso"));
    SeReanuda(3, 3);
}

TEST_F(SalidaEnCualquierMomento, AlEmpezarUnTurnoSinEspera) {
    p.traviesa = true;
    TodoSolo();
    PasaDeLargo(40 + 5);
    Termina();
    ManoCinquillo();
    SeReanuda(3, 3);
}

TEST_F(SalidaEnCualquierMomento, EnElTurnoDeUnaPersona) {
    BarajaSera({});
    p.guion.PulsaControl({Control::Pic_Boton, kBotonSalir});
    ManoCinquillo();
    EXPECT_EQ(estado.JugadorMano, 4); // the lead had moved on
    SeReanuda(3, 3);
}

TEST_F(SalidaEnCualquierMomento, EnUnaPreguntaLaSesionQueAcabaNoSePierde) {
    // The desktop ends the session while the box is open: the next pass hears of it.
    p.al_preguntar = [this](const CajaMensaje&) { Termina(); };
    p.respuestas = {Boton::No};
    p.guion.PulsaControl({Control::Pic_Boton, kBotonNueva});
    ManoCinquillo();
    SeReanuda(3, 3);
}

TEST_F(SalidaEnCualquierMomento, EnLaEsperaDelFinalDeManoLaManoNoCuenta) {
    p.siempre_continua = true;
    p.al_preguntar = [this](const CajaMensaje& caja) {
        if (caja.titulo == "Final de la mano")
            Termina();
    };
    ManoCinquillo();
    EXPECT_THAT(Titulos(), ElementsAre("Final de la mano"));
    SeReanuda(3, 3);
}

TEST_F(SalidaEnCualquierMomento, CerrarLaVentanaAlFinalDeLaManoSePreguntaEnLaSiguiente) {
    p.siempre_continua = true;
    bool cerrada = false;
    p.al_preguntar = [&](const CajaMensaje& caja) {
        if (caja.titulo == "Final de la mano" && !cerrada) {
            p.guion.Encola({.tipo = TipoEvento::CierraVentana});
            cerrada = true;
        }
    };
    estado.LimitePartida = 9;
    ManoCinquillo();
    EXPECT_THAT(Titulos(), ElementsAre("Final de la mano", "Posponer la partida en curso"));
    SeReanuda(4, 4);
}

TEST_F(SalidaEnCualquierMomento, CerrarLaVentanaEnLaUltimaManoSePreguntaAlAcabarLaPartida) {
    p.siempre_continua = true;
    TodoSolo();
    estado.LimitePartida = 1;
    bool cerrada = false;
    p.al_preguntar = [&](const CajaMensaje& caja) {
        if (caja.titulo == "Final de la mano" && !cerrada) {
            p.guion.Encola({.tipo = TipoEvento::CierraVentana});
            cerrada = true;
        }
    };
    estado.PausaEntreJugadas = true; // the end of the hand waits, and takes the wish to close
    estado.JuegosGanados.Borra();
    ManoCinquillo();
    EXPECT_FALSE(estado.PartidaEnCurso);
    EXPECT_EQ(sesion.peticion, Peticion::Ninguna);
    BucleSesion();
    EXPECT_EQ(sesion.peticion, Peticion::Salir);
}

TEST_F(SalidaEnCualquierMomento, EnElPokerElDineroVuelveAlDeElPrincipioDeLaMano) {
    Juega(kPoker);
    for (int asiento = 1; asiento <= 4; ++asiento)
        AsignarResto(asiento, 200);
    estado.JuegosJugados = 4;
    sesion.mano_apuntada = false;
    AnotaDineroPrevio();
    AsignarResto(1, 150);
    AsignarResto(2, 120);
    AsignarResto(0, 130);
    apuestas.Apuesta(1, 1, 2) = 50;
    estado.ManoEnCurso = true;
    GuardarYSalir();
    SeReanuda(3, 2);
    for (int asiento = 1; asiento <= 4; ++asiento)
        EXPECT_EQ(RestoDe(asiento), 200);
    EXPECT_EQ(RestoDe(0), 0);
    EXPECT_EQ(apuestas.Apuesta(1, 1, 2), 0);
}
