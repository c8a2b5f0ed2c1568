#include "table/controls.h"
#include "table/messages.h"

#include <fmt/format.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/text.h"
#include "table/tips.h"
#include "tests/support/live_table.h"

using namespace prueba;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

constexpr int kTemaAviso = 2149;

struct Mensajes : MesaViva {
    bool PanelALaVista() { return p.EstaVisible(Control::Pic_Sugerencia, 0); }
    void CierraPanel() {
        DespachaEvento({.tipo = TipoEvento::Clic, .control = Control::Bot_CerrarSuge});
    }
    Milisegundos Dura(int unidades) {
        const Milisegundos antes = p.Reloj();
        Pausa(unidades);
        return p.Reloj() - antes;
    }
};

} // namespace

TEST_F(Mensajes, LaCajaLlevaLoSuyoTalCual) {
    Mensaje("Final de la mano", "Dos  espacios\r\ny otra línea.", 2, 1);
    ASSERT_EQ(p.mensajes.size(), 1U);
    EXPECT_EQ(p.mensajes[0].titulo, "Final de la mano");
    EXPECT_EQ(p.mensajes[0].texto, "Dos  espacios\r\ny otra línea.");
    EXPECT_EQ(p.mensajes[0].lineas, 2);
    EXPECT_EQ(p.mensajes[0].modo, 1);
    EXPECT_EQ(estado.LineasMensaje, 2);
    EXPECT_EQ(estado.ModoMensaje, 1);
}

TEST_F(Mensajes, LaRespuestaQuedaEnRespuestaMensaje) {
    p.respuestas = {Boton::Si, Boton::No};
    Mensaje("t", "x", 1, 2);
    EXPECT_TRUE(estado.RespuestaMensaje);
    Mensaje("t", "x", 1, 2);
    EXPECT_FALSE(estado.RespuestaMensaje);
}

TEST_F(Mensajes, LaAyudaDelModoTresQuedaEnAyudaPulsada) {
    p.respuestas = {Boton::Ayuda, Boton::Salir};
    Mensaje("t", "x", 3, 3);
    EXPECT_TRUE(estado.AyudaPulsada);
    Mensaje("t", "x", 3, 3);
    EXPECT_FALSE(estado.AyudaPulsada);
}

TEST_F(Mensajes, UnModoDesconocidoTieneUnSoloBoton) {
    Mensaje("t", "x", 1, 7);
    EXPECT_EQ(estado.ModoMensaje, 1);
}

TEST_F(Mensajes, CadaBotonSuenaYLaMesaQuedaConLaFlecha) {
    estado.SonidoActivo = true;
    estado.CursorTabla = 2;
    CambiarCursor(Control::Mesa, 0, Puntero::ManoVerde);
    Mensaje("t", "x", 1, 1);
    EXPECT_THAT(p.sonidos, ElementsAre(SonidoPedido{9, true}));
    EXPECT_EQ(estado.CursorTabla, 0);
    EXPECT_EQ(PunteroEnMesa(), Puntero::Flecha);
}

TEST_F(Mensajes, ConUnaVentanaAbiertaSeCentraEnLaPantalla) {
    Mensaje("t", "x", 1, 1);
    estado.VentanaModal = true;
    Mensaje("t", "x", 1, 1);
    EXPECT_FALSE(p.mensajes[0].centrada);
    EXPECT_TRUE(p.mensajes[1].centrada);
}

TEST_F(Mensajes, AceptarYCancelarPreguntanComoSiYNo) {
    p.respuestas = {Boton::No};
    EXPECT_FALSE(PreguntaAceptar("t", "x", 6));
    EXPECT_TRUE(PreguntaAceptar("t", "x", 6));
    EXPECT_TRUE(p.mensajes[0].aceptar);
    EXPECT_EQ(p.mensajes[0].modo, 2);
}

TEST(LineasDeTexto, CuentaLosFinalesDeLineaYLasQueSeParten) {
    EXPECT_EQ(LineasDe("una"), 1);
    EXPECT_EQ(LineasDe("una\r\ndos"), 2);
    EXPECT_EQ(LineasDe("una\r\n\r\ntres"), 3);
    EXPECT_EQ(LineasDe(std::string(58, 'm')), 1);
    EXPECT_EQ(LineasDe(std::string(59, 'm')), 2);
}

TEST_F(Mensajes, UnaSugerenciaEnsenaSuTextoYSuTema) {
    MostrarSugerencia(50);
    EXPECT_TRUE(PanelALaVista());
    EXPECT_EQ(estado.TipActual, 50);
    EXPECT_EQ(estado.TemaActual, 2170);
}

TEST_F(Mensajes, ConLaVentanaDesactivadaNoPasaNada) {
    estado.VentanaInfo = 2;
    estado.TemaActual = 3100;
    estado.TipActual = 15;
    MostrarSugerencia(50);
    EXPECT_FALSE(PanelALaVista());
    EXPECT_EQ(estado.TemaActual, 3100);
    EXPECT_EQ(estado.TipActual, 15);
}

TEST_F(Mensajes, UnIndiceSinSugerenciaEstaVacio) {
    MostrarSugerencia(11);
    EXPECT_EQ(estado.TemaActual, 0);
    EXPECT_EQ(estado.Sugerencias(11).Texto, "");
    EXPECT_THROW(MostrarSugerencia(51), IndiceFuera);
}

TEST_F(Mensajes, LaSugerenciaSePintaEnSusCincoRenglones) {
    p.UsaLienzosRegistrados();
    MostrarSugerencia(15);
    std::vector<std::string> renglones;
    for (const std::string& llamada : p.Dibujado(Control::Pic_Sugerencia).Llamadas()) {
        if (!llamada.starts_with("Texto("))
            continue;
        renglones.push_back(llamada.substr(0, llamada.find(';')));
        EXPECT_THAT(llamada, HasSubstr(fmt::format(", {:06X},", color::kAzul)));
    }
    EXPECT_THAT(renglones, ElementsAre("Texto(7, 20, \"Para ampliar la  información \"",
                                       "Texto(7, 30, \"sobre las reglas y  mecánica \"",
                                       "Texto(7, 40, \"de este juego,pulse el botón \"",
                                       "Texto(7, 50, \"'más  ayuda'   en  la  parte \"",
                                       "Texto(7, 60, \"superior de esta ventana.    \""));
}

TEST_F(Mensajes, ElPrimerCierreAvisaYElSegundoCierra) {
    MostrarSugerencia(50);
    CierraPanel();
    EXPECT_TRUE(PanelALaVista());
    EXPECT_EQ(estado.TipActual, 0);
    EXPECT_EQ(estado.TemaActual, kTemaAviso);
    EXPECT_EQ(estado.VentanaInfo, 1);
    CierraPanel();
    EXPECT_FALSE(PanelALaVista());
    EXPECT_EQ(estado.VentanaInfo, 2);
}

TEST_F(Mensajes, OtraSugerenciaHaceDelCierreUnPrimerCierre) {
    MostrarSugerencia(50);
    CierraPanel();
    MostrarSugerencia(15);
    CierraPanel();
    EXPECT_TRUE(PanelALaVista());
    EXPECT_EQ(estado.VentanaInfo, 1);
    EXPECT_EQ(estado.TipActual, 0);
}

TEST_F(Mensajes, CerradaDelTodoSoloVuelveSiSeReactiva) {
    MostrarSugerencia(50);
    CierraPanel();
    CierraPanel();
    MostrarSugerencia(15);
    EXPECT_FALSE(PanelALaVista());
    estado.VentanaInfo = 1;
    MostrarSugerencia(15);
    EXPECT_TRUE(PanelALaVista());
    CierraPanel();
    EXPECT_EQ(estado.TipActual, 0);
    EXPECT_TRUE(PanelALaVista());
}

TEST_F(Mensajes, MasAyudaAbreElTemaDeLaSugerencia) {
    MostrarSugerencia(15);
    DespachaEvento({.tipo = TipoEvento::Clic, .control = Control::Pic_MasAyuda});
    EXPECT_THAT(p.temas_ayuda, ElementsAre(3100));
}

TEST(Sugerencias, CadaUnaTieneCincoRenglonesDeVeintinueveLetras) {
    for (const Consejo& consejo : Consejos())
        EXPECT_EQ(Longitud(consejo.texto), 145) << consejo.indice;
}

// A line of the panel never cuts a word: where one ends without a blank or a stop, so does a word.
TEST(Sugerencias, NingunRenglonParteUnaPalabra) {
    for (const Consejo& consejo : Consejos()) {
        for (int renglon = 1; renglon < 5; ++renglon) {
            const std::string ultima = Medio(consejo.texto, 29 * renglon, 1);
            const std::string primera = Medio(consejo.texto, 29 * renglon + 1, 1);
            const bool acaba = ultima == " " || primera == " " || ultima == "." || ultima == ",";
            const bool boton = consejo.indice == 5 && renglon == 2; // "botón" fills its line
            EXPECT_TRUE(acaba || boton) << consejo.indice << " renglón " << renglon;
        }
    }
}

TEST(Sugerencias, LosIndicesSonDistintosYVanDeCeroACincuenta) {
    int anterior = -1;
    for (const Consejo& consejo : Consejos()) {
        EXPECT_GT(consejo.indice, anterior);
        anterior = consejo.indice;
    }
    EXPECT_EQ(Consejos().size(), 29U);
    EXPECT_EQ(anterior, 50);
}

TEST(FactorDeLaPausa, UnoACincuentaCeroACienCasiOchoACero) {
    EXPECT_DOUBLE_EQ(FactorPausa(50), 1);
    EXPECT_DOUBLE_EQ(FactorPausa(100), 0);
    EXPECT_DOUBLE_EQ(FactorPausa(0), 7.9998);  // 2.8284 squared
    EXPECT_DOUBLE_EQ(FactorPausa(75), 0.3536); // 0.5 to the power 1.5
    EXPECT_DOUBLE_EQ(FactorPausa(25), 3.3749); // 1.8371 squared
    EXPECT_DOUBLE_EQ(FactorPausa(99), 0.0028); // 0.02 to the power 1.5
}

TEST_F(Mensajes, LaPausaDuraSusUnidadesAVelocidadCincuenta) {
    estado.VelocidadJuego = 50;
    EXPECT_EQ(Dura(400), 400);
    EXPECT_EQ(estado.MarcaPausa, 0);
}

TEST_F(Mensajes, AVelocidadCienVuelveEnSeguida) {
    estado.VelocidadJuego = 100;
    EXPECT_EQ(Dura(32000), 0);
}

TEST_F(Mensajes, AVelocidadCeroDuraCasiOchoVecesMas) {
    estado.VelocidadJuego = 0;
    EXPECT_EQ(Dura(100), 800); // 799.98
}

TEST_F(Mensajes, LaPausaCuentaDesdeLaMarca) {
    p.DuermeHasta(5000);
    MarcaPausaAhora();
    p.DuermeHasta(5150);
    EXPECT_EQ(Dura(400), 250);
    EXPECT_EQ(Dura(400), 400);
}

TEST_F(Mensajes, UnaMarcaYaPasadaNoEspera) {
    p.DuermeHasta(5000);
    MarcaPausaAhora();
    p.DuermeHasta(6000);
    EXPECT_EQ(Dura(400), 0);
}

TEST_F(Mensajes, LaMarcaDeUnRelojACeroCuentaUnMilisegundo) {
    MarcaPausaAhora();
    EXPECT_EQ(Dura(400), 399);
}

TEST_F(Mensajes, LaMarcaPasaPorLaVueltaDelReloj) {
    p.DuermeHasta(0x7FFFFFFF - 10);
    MarcaPausaAhora();
    p.DuermeHasta(0x7FFFFFFF + Milisegundos{40});
    EXPECT_EQ(Dura(400), 350);
}

TEST_F(Mensajes, ElSonidoEsperaONo) {
    estado.SonidoActivo = true;
    Sonido(0, 14);
    Sonido(1, 20);
    EXPECT_THAT(p.sonidos, ElementsAre(SonidoPedido{14, true}, SonidoPedido{20, false}));
}

TEST_F(Mensajes, SinSonidoNoSuenaNada) {
    estado.SonidoActivo = false;
    Sonido(0, 14);
    Mensaje("t", "x", 1, 1);
    EXPECT_THAT(p.sonidos, IsEmpty());
}
