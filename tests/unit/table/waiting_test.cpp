#include "table/button_column.h"
#include "table/waiting.h"

#include <gtest/gtest.h>

#include "core/session_state.h"
#include "tests/support/live_table.h"

using namespace prueba;

namespace {

struct Espera : MesaViva {
    Espera() { estado.PartidaEnCurso = true; }
    void CierraVentana() { p.guion.Encola({.tipo = TipoEvento::CierraVentana}); }
};

} // namespace

TEST_F(Espera, ElBotonVerdeLaAcaba) {
    p.guion.PulsaControl({Control::Pic_BotContinuar, 0});
    EmpiezaTraza();
    EXPECT_TRUE(EsperaContinuar());
    EXPECT_EQ(traza, (std::vector<std::string>{"PedirContinuar(1)", "Sonido(0, 9)",
                                               "PedirContinuar(2)", "Pausa(420)"}));
    EXPECT_FALSE(estado.EsperandoJugada);
}

TEST_F(Espera, ConPausaEntreJugadasElBotonVerdeSeQueda) {
    p.siempre_continua = true;
    estado.PausaEntreJugadas = true;
    EXPECT_TRUE(EsperaContinuar());
    EXPECT_TRUE(p.EstaVisible(Control::Pic_BotContinuar, 0));
    estado.PausaEntreJugadas = false;
    EXPECT_TRUE(EsperaContinuar());
    EXPECT_FALSE(p.EstaVisible(Control::Pic_BotContinuar, 0));
}

TEST_F(Espera, ConUnaCartaJugadaElBotonVerdeSeVaComoConElSuyo) {
    Juega(kBrisca);
    ManoEmpezada(4);
    for (const bool pausa : {true, false}) {
        PonMano(4, {{kOros, kAs}, {kCopas, kAs}});
        estado.PausaEntreJugadas = pausa;
        estado.EligeCarta = true;
        estado.JugadaHecha = false;
        const Punto carta = SobreCarta(4, 1);
        p.guion.RatonMueve(carta.x, carta.y);
        p.guion.RatonPulsa(carta.x, carta.y, 1);
        EXPECT_TRUE(EsperaContinuar());
        EXPECT_TRUE(estado.JugadaHecha);
        EXPECT_EQ(p.EstaVisible(Control::Pic_BotContinuar, 0), pausa);
    }
}

TEST_F(Espera, CualquierTeclaValeComoElBotonVerde) {
    p.guion.Tecla(' ');
    EXPECT_TRUE(EsperaContinuar());
}

TEST_F(Espera, EscYLaQMinimizanYSiguenEsperando) {
    for (int tecla : {27, int{'q'}, int{'Q'}})
        p.guion.Tecla(tecla);
    EXPECT_FALSE(EsperaContinuar());
    EXPECT_TRUE(sesion.sin_eventos);
    EXPECT_EQ(p.minimizadas, 3);
}

TEST_F(Espera, ControlCNoHaceNada) {
    p.guion.Tecla(3);
    EXPECT_FALSE(EsperaContinuar());
    EXPECT_TRUE(sesion.sin_eventos);
    EXPECT_EQ(p.minimizadas, 0);
}

TEST_F(Espera, AcabaSiLaPartidaSeDeja) {
    p.guion.PulsaControl({Control::Pic_Boton, kBotonNueva});
    EXPECT_FALSE(EsperaContinuar());
    EXPECT_EQ(sesion.peticion, Peticion::NuevaPartida);
}

TEST_F(Espera, ElFinDeLaSesionDelEscritorioGuardaYSaleSinPreguntar) {
    p.guion.Encola({.tipo = TipoEvento::Termina});
    EXPECT_FALSE(EsperaContinuar());
    EXPECT_EQ(sesion.peticion, Peticion::Salir);
    EXPECT_TRUE(p.mensajes.empty());
}

TEST_F(Espera, CerrarLaVentanaEsElBotonDeSalir) {
    CierraVentana();
    EXPECT_FALSE(EsperaContinuar());
    EXPECT_EQ(Titulos(), (std::vector<std::string>{"Posponer la partida en curso"}));
    EXPECT_EQ(sesion.peticion, Peticion::Salir);
}

TEST_F(Espera, DondeNoSePuedeSalirSePreguntaEnCuantoSePuede) {
    HabilitaBoton(kBotonSalir, false);
    CierraVentana();
    p.guion.PulsaControl({Control::Pic_BotContinuar, 0});
    EXPECT_TRUE(EsperaContinuar());
    EXPECT_TRUE(p.mensajes.empty());
    EXPECT_TRUE(sesion.cierre_pendiente);
    HabilitaBoton(kBotonSalir, true);
    PaseDeEventos(Pase::DePaso);
    EXPECT_EQ(Titulos(), (std::vector<std::string>{"Posponer la partida en curso"}));
    EXPECT_EQ(sesion.peticion, Peticion::Salir);
    EXPECT_FALSE(sesion.cierre_pendiente);
}

TEST_F(Espera, SiSeContestaQueNoElCierreSeOlvida) {
    p.respuestas = {Boton::No};
    CierraVentana();
    p.guion.PulsaControl({Control::Pic_BotContinuar, 0});
    EXPECT_TRUE(EsperaContinuar());
    PaseDeEventos(Pase::DePaso);
    EXPECT_EQ(p.mensajes.size(), 1U);
}

TEST_F(Espera, ConAlgoPedidoLosClicsSePierdenYElTamanoNo) {
    sesion.peticion = Peticion::NuevaPartida;
    p.guion.PulsaControl({Control::Pic_Boton, kBotonSalir});
    PaseDeEventos(Pase::DeEspera);
    EXPECT_TRUE(p.mensajes.empty());
    p.Mide(1024, 768);
    p.guion.Encola({.tipo = TipoEvento::Tamano, .x = 1024, .y = 768});
    PaseDeEventos(Pase::DeEspera);
    EXPECT_EQ(estado.AnchoMesa, 934);
}

TEST_F(Espera, ElCierreQueLlegaConAlgoPedidoSePreguntaDespues) {
    sesion.peticion = Peticion::NuevaPartida;
    CierraVentana();
    PaseDeEventos(Pase::DeEspera);
    EXPECT_TRUE(p.mensajes.empty());
    sesion.peticion = Peticion::Ninguna;
    PaseDeEventos(Pase::DePaso);
    EXPECT_EQ(sesion.peticion, Peticion::Salir);
}

TEST_F(Espera, SinNadaQueEsperarLaPartidaQuedaAtras) {
    EXPECT_FALSE(EsperaContinuar());
    EXPECT_TRUE(sesion.sin_eventos);
    EXPECT_FALSE(estado.PartidaEnCurso);
}
