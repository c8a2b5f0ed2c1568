#include "platform/headless/headless_platform.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/game_state.h"

namespace {

CajaMensaje DeModo(int modo) {
    CajaMensaje caja;
    caja.titulo = "Final de la mano";
    caja.modo = modo;
    return caja;
}

struct SinPantalla : testing::Test {
    PlataformaSinPantalla p;
    SinPantalla() { estado = {}; }

    std::optional<Evento> PaseDe(Pase pase) {
        p.Bombea();
        return p.SiguienteEvento(pase);
    }
};

TEST_F(SinPantalla, ElRelojSoloAvanzaDurmiendoYNuncaAtras) {
    p.DuermeHasta(400);
    EXPECT_EQ(p.Reloj(), 400);
    p.DuermeHasta(100);
    EXPECT_EQ(p.Reloj(), 400);
}

TEST_F(SinPantalla, UnPaseDeEsperaTomaUnSoloEvento) {
    p.guion.Tecla('a');
    p.guion.Tecla('b');
    EXPECT_EQ(PaseDe(Pase::DeEspera)->tecla, 'a');
    EXPECT_FALSE(p.SiguienteEvento(Pase::DeEspera));
    EXPECT_EQ(PaseDe(Pase::DeEspera)->tecla, 'b');
}

TEST_F(SinPantalla, UnPaseDePasoSoloTomaSiEstaTraviesa) {
    p.guion.Tecla('a');
    EXPECT_FALSE(PaseDe(Pase::DePaso));
    p.traviesa = true;
    EXPECT_EQ(PaseDe(Pase::DePaso)->tecla, 'a');
}

TEST_F(SinPantalla, SinEventosLaEsperaAcaba) {
    EXPECT_FALSE(p.EsperaEvento());
    p.guion.Tecla('a');
    EXPECT_TRUE(p.EsperaEvento());
}

TEST_F(SinPantalla, SiempreContinuaPulsaElBotonVerdeMientrasSeEsperaUnaJugada) {
    p.siempre_continua = true;
    EXPECT_FALSE(p.EsperaEvento());

    estado.EsperandoJugada = true;
    EXPECT_TRUE(p.EsperaEvento());
    EXPECT_EQ(PaseDe(Pase::DeEspera)->control, Control::Pic_BotContinuar);
    EXPECT_FALSE(PaseDe(Pase::DePaso));
}

TEST_F(SinPantalla, LoEncoladoVaAntesQueElBotonVerde) {
    p.siempre_continua = true;
    estado.EsperandoJugada = true;
    p.guion.Tecla('x');
    EXPECT_EQ(PaseDe(Pase::DeEspera)->tipo, TipoEvento::Tecla);
    EXPECT_EQ(PaseDe(Pase::DeEspera)->tipo, TipoEvento::Clic);
}

TEST_F(SinPantalla, ElRepartoAManoNoLoAcabaElBotonVerde) {
    p.siempre_continua = true;
    estado.EsperandoJugada = true;
    estado.RepartoEnCurso = true;
    EXPECT_FALSE(p.EsperaEvento());
}

TEST_F(SinPantalla, SinRespuestasUnaPreguntaEsSiYLoDemasSeCierra) {
    EXPECT_EQ(p.Pregunta(DeModo(1)), Boton::Salir);
    EXPECT_EQ(p.Pregunta(DeModo(2)), Boton::Si);
    EXPECT_EQ(p.Pregunta(DeModo(3)), Boton::Salir);
}

TEST_F(SinPantalla, LasRespuestasVanPorOrdenACadaCaja) {
    p.respuestas = {Boton::No, Boton::No, Boton::Ayuda, Boton::Si};
    EXPECT_EQ(p.Pregunta(DeModo(1)), Boton::Salir); // a box of one button takes its answer too
    EXPECT_EQ(p.Pregunta(DeModo(2)), Boton::No);
    EXPECT_EQ(p.Pregunta(DeModo(3)), Boton::Ayuda);
    EXPECT_EQ(p.Pregunta(DeModo(2)), Boton::Si);
    EXPECT_TRUE(p.respuestas.empty());
}

TEST_F(SinPantalla, GuardaLoQueSeLePide) {
    p.Pregunta(DeModo(1));
    p.Suena(9, true);
    p.Ayuda(2149);
    p.Abre(Forma::Normas);
    EXPECT_EQ(p.mensajes.front().titulo, "Final de la mano");
    EXPECT_THAT(p.sonidos, testing::ElementsAre(SonidoPedido{9, true}));
    EXPECT_THAT(p.temas_ayuda, testing::ElementsAre(2149));
    EXPECT_THAT(p.formas_abiertas, testing::ElementsAre(Forma::Normas));
}

TEST_F(SinPantalla, AbrirUnaFormaHaceLoQueSeLeDijo) {
    Forma abierta = Forma::Personal;
    p.al_abrir = [&](Forma forma) { abierta = forma; };
    p.Abre(Forma::Estadis);
    EXPECT_EQ(abierta, Forma::Estadis);
    EXPECT_TRUE(p.TieneForma(Forma::Estadis));
    p.formas.erase(Forma::Estadis);
    EXPECT_FALSE(p.TieneForma(Forma::Estadis));
}

TEST_F(SinPantalla, LaFechaAvanzaConElReloj) {
    EXPECT_EQ(p.Ahora(), (FechaHora{2000, 1, 1, 0, 0, 0}));
    p.primer_dia = {2027, 12, 31, 23, 59, 30};
    p.DuermeHasta(45'999);
    EXPECT_EQ(p.Ahora(), (FechaHora{2028, 1, 1, 0, 0, 15}));
    p.Limpia();
    EXPECT_EQ(p.Ahora(), FechaHora{});
}

TEST_F(SinPantalla, SoloDibujaConLienzosRegistrados) {
    EXPECT_FALSE(p.HayPantalla());
    p.LienzoDe(Control::Mesa, 0).Fieltro({0, 0, 10, 10});
    p.UsaLienzosRegistrados();
    EXPECT_TRUE(p.HayPantalla());
    EXPECT_THAT(p.Dibujado(Control::Mesa).Llamadas(), testing::IsEmpty());

    p.LienzoDe(Control::Mesa, 0).Carta(3, 4, {.palo = kCopas, .valor = 12, .cara = 2});
    EXPECT_THAT(p.Dibujado(Control::Mesa).Llamadas(),
                testing::ElementsAre("Carta(3, 4; palo 2 valor 12 cara 2 orientación 1)"));
}

TEST_F(SinPantalla, LimpiaDejaUnaMesaNueva) {
    p.Mide(1280, 800);
    p.DuermeHasta(99);
    p.guion.Tecla('a');
    p.respuestas = {Boton::No};
    p.siempre_continua = p.traviesa = true;
    p.Muestra(Control::Pic_BotContinuar, 0, true);
    p.Instala("./PkFDes.ZOV", "datos");
    p.EnMemoria().contenidos["./ZOV31.INI"] = "01";
    p.EnMemoria().contenidos["./PkFDes.ZOV"] = "otra cosa";
    p.Limpia();

    EXPECT_EQ(p.AnchoVentana(), 800);
    EXPECT_EQ(p.AltoVentana(), 600);
    EXPECT_EQ(p.Reloj(), 0);
    EXPECT_TRUE(p.guion.Vacio());
    EXPECT_TRUE(p.respuestas.empty());
    EXPECT_FALSE(p.siempre_continua || p.traviesa);
    EXPECT_FALSE(p.EstaVisible(Control::Pic_BotContinuar, 0));
    EXPECT_TRUE(p.EstaVisible(Control::Pic_Botonera, 0));
    EXPECT_THAT(p.EnMemoria().contenidos,
                testing::ElementsAre(testing::Pair("./PkFDes.ZOV", "datos")));
}

} // namespace
