#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "table/bet_board.h"

#include "games/game_rows.h"
#include "table/game_row.h"
#include "table/whole_table.h"
#include "tests/support/bet_table.h"

using namespace prueba;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr Control kPasar = Control::Pic_APBotPasar, kIgualar = Control::Pic_APBotIgualar,
                  kApostar = Control::Pic_APBotApostar, kAnular = Control::Pic_APBotAnular;

struct Apostadora : MesaDeApuestas {
    void Pulsa(Control control, int indice = 0) {
        DespachaEvento({.tipo = TipoEvento::Clic, .control = control, .indice = indice});
    }
    // The captions on show, from the top.
    std::vector<std::string> Botones() {
        std::vector<std::string> captions;
        for (const Control boton : {kPasar, kIgualar, kApostar, kAnular}) {
            if (p.EstaVisible(boton, 0))
                captions.push_back(p.Tablero().NombreDe({boton, 0}));
        }
        return captions;
    }
    // The others have bet that much in this round.
    static void HanApostado(Integer puntos) {
        apuestas.MaximaApuesta = puntos;
        apuestas.Apuesta(1, 1, apuestas.FaseApuesta) = puntos;
    }
    static Punto SobreFicha(Integer asiento, int d) {
        return {estado.PosFichaX(asiento - 1, d) + 16, estado.PosFichaY(asiento - 1, d) + 16};
    }
    void ClicEnFicha(Integer asiento, int d) {
        const Punto punto = SobreFicha(asiento, d);
        Clic(punto.x, punto.y);
    }
    std::string ValorEn(Control visor) { return p.Tablero().NombreDe({visor, 0}); }
};

// Another row of the game, as long as it lives.
class FilaCambiada {
public:
    explicit FilaCambiada(Integer juego) : fila_(*FilaDe(juego)) {
        for (const FilaJuego* otra : LosJuegos())
            filas_.push_back(otra->id == juego ? &fila_ : otra);
    }
    ~FilaCambiada() { UsaJuegos(LosJuegos()); }
    FilaCambiada(const FilaCambiada&) = delete;
    FilaCambiada& operator=(const FilaCambiada&) = delete;
    FilaJuego& Fila() { return fila_; }
    void Usa() { UsaJuegos(filas_); }

private:
    FilaJuego fila_;
    std::vector<const FilaJuego*> filas_;
};

} // namespace

TEST_F(Apostadora, SinNadaApostadoOfreceReservarse) {
    Apuestan(kPoker);
    MuestraApostadora();
    EXPECT_TRUE(p.EstaVisible(Control::Pic_Apostadora, 0));
    EXPECT_THAT(Botones(), ElementsAre("Me reservo"));
}

TEST_F(Apostadora, ConUnaApuestaDelanteOfreceNoIrOIgualar) {
    Apuestan(kPoker);
    HanApostado(40);
    MuestraApostadora();
    EXPECT_THAT(Botones(), ElementsAre("No voy", "Igualar a 40"));
}

TEST_F(Apostadora, ConDocePuntosYCuarentaQueIgualarVaConElResto) {
    Apuestan(kPoker);
    AsignarResto(4, 12);
    HanApostado(40);
    MuestraApostadora();
    EXPECT_THAT(Botones(), ElementsAre("No voy", "Voy con mi resto"));
}

TEST_F(Apostadora, ConFichasPuestasOfreceFinalizarOAnular) {
    Apuestan(kPoker);
    HanApostado(40);
    PonFicha(4, 4);
    MuestraApostadora();
    EXPECT_THAT(Botones(), ElementsAre("Igualar a 40", "Finalizar apuesta", "Anular apostado"));
}

TEST_F(Apostadora, ConBancaSoloSeFinalizaOAnula) {
    Apuestan(kBlackJack);
    MuestraApostadora();
    EXPECT_THAT(Botones(), IsEmpty());
    PonFicha(4, 4);
    MuestraApostadora();
    EXPECT_THAT(Botones(), ElementsAre("Finalizar apuesta", "Anular apostado"));
}

TEST_F(Apostadora, LosBotonesVanCadaTreintaYLosOcultosGuardanSuSitio) {
    Apuestan(kPoker);
    MuestraApostadora();
    const auto arriba = [this](Control boton) { return p.Tablero().LugarDe({boton, 0}).y; };
    EXPECT_EQ(arriba(kIgualar) - arriba(kPasar), 30);
    EXPECT_EQ(arriba(kApostar) - arriba(kPasar), 60);
    EXPECT_EQ(arriba(kAnular) - arriba(kPasar), 90);
    EXPECT_EQ(p.PunteroDe(kPasar, 0), Puntero::ManoIndice);
}

TEST_F(Apostadora, EnPokerDosVisoresLaRondaYLoAcumulado) {
    Apuestan(kPoker);
    apuestas.Apuesta(4, 1, kFaseSalida) = 5;
    apuestas.Apuesta(4, 1, kFasePrimeraRonda) = 20;
    MuestraApostadora();
    EXPECT_EQ(ValorEn(Control::Pic_APApoJugAct), "Apuesta actual: 20");
    EXPECT_EQ(ValorEn(Control::Pic_APApoJugAcu), "Acumulado: 25");
    EXPECT_TRUE(p.EstaVisible(Control::Pic_APApoJugAcu, 0));
}

TEST_F(Apostadora, ConBancaUnSoloVisorTambienTrasUnaDePoker) {
    Apuestan(kPoker);
    MuestraApostadora();
    OcultaApostadora();
    Apuestan(kSieteYMedia);
    apuestas.Apuesta(4, 1, kFaseApuestas) = 15;
    MuestraApostadora();
    EXPECT_EQ(ValorEn(Control::Pic_APApoJugAct), "Apuesta actual: 15");
    EXPECT_FALSE(p.EstaVisible(Control::Pic_APApoJugAcu, 0));
}

TEST_F(Apostadora, LosRotulosDeLosVisoresYElNombre) {
    p.UsaLienzosRegistrados();
    const auto tiene = [this](const std::string& texto) {
        const auto& llamadas = p.Dibujado(Control::Pic_Apostadora).Llamadas();
        return std::ranges::any_of(llamadas, [&](const std::string& llamada) {
            return llamada.find("\"" + texto + "\"") != std::string::npos;
        });
    };
    Apuestan(kPoker);
    MuestraApostadora();
    EXPECT_TRUE(tiene("Jugador4"));
    EXPECT_TRUE(tiene("A c t u a l"));
    EXPECT_TRUE(tiene("Acumulado"));
    EXPECT_FALSE(tiene("A p u e s t a"));
    Apuestan(kSieteYMedia);
    MuestraApostadora();
    EXPECT_TRUE(tiene("A p u e s t a"));
}

TEST_F(Apostadora, UnBotonSeHundeSuenaEsperaYVuelve) {
    Apuestan(kPoker);
    MuestraApostadora();
    EmpiezaTraza();
    Pulsa(kPasar);
    EXPECT_THAT(Pasos(), ElementsAre("EstadoBoton(\"Pic_APBotPasar\", 1, 2)", "Sonido(1, 6)",
                                     "Pausa(160)", "EstadoBoton(\"Pic_APBotPasar\", 1, 1)"));
}

TEST_F(Apostadora, ReservarseAcabaElTurnoSinApostar) {
    Apuestan(kPoker);
    MuestraApostadora();
    Pulsa(kPasar);
    EXPECT_EQ(apuestas.ApuestaEnCurso, 0);
    EXPECT_TRUE(estado.JugadaHecha);
    EXPECT_FALSE(estado.EsperandoJugada);
    EXPECT_FALSE(p.EstaVisible(kPasar, 0));
}

TEST_F(Apostadora, NoIrEsAbandonar) {
    Apuestan(kPoker);
    HanApostado(40);
    MuestraApostadora();
    Pulsa(kPasar);
    EXPECT_EQ(apuestas.ApuestaEnCurso, -1);
    EXPECT_TRUE(estado.JugadaHecha);
}

TEST_F(Apostadora, PasarCierraElMenu) {
    Apuestan(kPoker);
    MuestraApostadora();
    p.Muestra(Control::Pic_SelOpciones, 0, true);
    Pulsa(kPasar);
    EXPECT_FALSE(p.EstaVisible(Control::Pic_SelOpciones, 0));
}

TEST_F(Apostadora, IgualarPoneLoQueFaltaYElTurnoSigueAbierto) {
    Apuestan(kPoker);
    HanApostado(40);
    PonFicha(4, 4);
    MuestraApostadora();
    Pulsa(kIgualar);
    EXPECT_EQ(EnLaRonda(4), 40);
    EXPECT_THAT(Puestas(4), ElementsAre(4, 5, 4));
    EXPECT_TRUE(estado.EsperandoJugada);
    EXPECT_FALSE(estado.JugadaHecha);
    EXPECT_THAT(Botones(), ElementsAre("Finalizar apuesta", "Anular apostado"));
}

TEST_F(Apostadora, IgualarConTodoElRestoAcabaElTurno) {
    Apuestan(kPoker);
    AsignarResto(4, 12);
    HanApostado(40);
    MuestraApostadora();
    EmpiezaTraza();
    Pulsa(kIgualar);
    EXPECT_EQ(EnLaRonda(4), 12);
    EXPECT_EQ(RestoDe(4), 0);
    EXPECT_TRUE(estado.JugadaHecha);
    EXPECT_FALSE(estado.EsperandoJugada);
    EXPECT_THAT(TrazaDe("EstadoBoton"),
                testing::Contains("EstadoBoton(\"Pic_APBotApostar\", 3, 2)"));
    EXPECT_THAT(p.mensajes, IsEmpty());
}

TEST_F(Apostadora, UnaApuestaInsuficienteDejaElTurnoAbierto) {
    Apuestan(kPoker);
    HanApostado(40);
    PonFicha(4, 4);
    MuestraApostadora();
    Pulsa(kApostar);
    ASSERT_EQ(p.mensajes.size(), 1U);
    EXPECT_EQ(p.mensajes[0].titulo, "Apuesta insuficiente");
    EXPECT_EQ(p.mensajes[0].texto, "Debe subir a un mínimo de 40 para poder igualar la máxima "
                                   "apuesta y seguir jugando la mano.");
    EXPECT_EQ(p.mensajes[0].lineas, 1);
    EXPECT_TRUE(estado.EsperandoJugada);
    EXPECT_FALSE(estado.JugadaHecha);
}

TEST_F(Apostadora, FinalizarAcabaElTurno) {
    Apuestan(kPoker);
    PonFicha(4, 4);
    MuestraApostadora();
    Pulsa(kApostar);
    EXPECT_TRUE(estado.JugadaHecha);
    EXPECT_FALSE(estado.EsperandoJugada);
    EXPECT_EQ(apuestas.ApuestaEnCurso, 10);
}

TEST_F(Apostadora, FinalizarSinEsperaNoHaceNada) {
    Apuestan(kPoker);
    PonFicha(4, 4);
    MuestraApostadora();
    estado.EsperandoJugada = false;
    Pulsa(kApostar);
    EXPECT_FALSE(estado.JugadaHecha);
}

TEST_F(Apostadora, AnularDevuelveLasFichasYOfreceDeNuevoPasar) {
    Apuestan(kPoker);
    ColocaApuesta(4, 35);
    MuestraApostadora();
    Pulsa(kAnular);
    EXPECT_EQ(RestoDe(4), 100);
    EXPECT_EQ(RestoDe(kBote), 0);
    EXPECT_EQ(apuestas.ApuestaEnCurso, 0);
    EXPECT_THAT(Botones(), ElementsAre("Me reservo"));
    EXPECT_EQ(ValorEn(Control::Pic_APApoJugAct), "Apuesta actual: 0");
}

TEST_F(Apostadora, AcabadoElTurnoNiBotonesNiFichasHacenNada) {
    Apuestan(kPoker);
    HanApostado(40);
    MuestraApostadora();
    Pulsa(kPasar);
    Pulsa(kIgualar);
    ClicEnFicha(4, 4);
    EXPECT_EQ(apuestas.ApuestaEnCurso, -1);
    EXPECT_EQ(RestoDe(4), 100);
}

TEST_F(Apostadora, OcultaNoSePulsa) {
    Apuestan(kPoker);
    MuestraApostadora();
    OcultaControlesMesa();
    EXPECT_FALSE(p.EstaVisible(Control::Pic_Apostadora, 0));
    EXPECT_THAT(Botones(), IsEmpty());
    Pulsa(kPasar);
    EXPECT_FALSE(estado.JugadaHecha);
}

TEST_F(Apostadora, SobreUnaFichaElPunteroSenalaYElClicLaPone) {
    Apuestan(kPoker);
    const Punto diez = SobreFicha(4, 4);
    Mueve(diez.x, diez.y);
    EXPECT_EQ(estado.FichaBajoCursor, 4);
    EXPECT_EQ(PunteroEnMesa(), Puntero::ManoIndice);
    Clic(diez.x, diez.y);
    EXPECT_THAT(Puestas(4), ElementsAre(4));
    EXPECT_THAT(Botones(), ElementsAre("Finalizar apuesta", "Anular apostado"));
    Mueve(diez.x + 200, diez.y - 200);
    EXPECT_EQ(estado.FichaBajoCursor, 0);
    EXPECT_EQ(PunteroEnMesa(), Puntero::Flecha);
}

TEST_F(Apostadora, UnaPilaAltaSeAlcanzaPorEncimaDeSuPie) {
    Apuestan(kPoker);
    apuestas.Fichas(4, 1) = 4; // three more stand out two pixels each
    const Punto uno{estado.PosFichaX(3, 1) + 16, estado.PosFichaY(3, 1)};
    Mueve(uno.x, uno.y - 6);
    EXPECT_EQ(estado.FichaBajoCursor, 1);
    Mueve(uno.x, uno.y - 7);
    EXPECT_EQ(estado.FichaBajoCursor, 0);
}

TEST_F(Apostadora, DondeNoHayFichasNoHayNadaQuePulsar) {
    Apuestan(kPoker);
    AsignarResto(4, 3); // a 2 and a 1
    const Punto diez = SobreFicha(4, 4);
    Clic(diez.x, diez.y);
    EXPECT_EQ(estado.FichaBajoCursor, 0);
    EXPECT_EQ(RestoDe(4), 3);
}

TEST_F(Apostadora, LasFichasDeOtroNoSePulsan) {
    Apuestan(kPoker);
    ClicEnFicha(1, 4);
    ClicEnFicha(3, 4);
    EXPECT_EQ(RestoDe(1) + RestoDe(3), 200);
    EXPECT_EQ(RestoDe(kBote), 0);
}

TEST_F(Apostadora, EnOtrasFasesLasFichasNoSePulsan) {
    const std::vector<std::pair<const char*, void (*)()>> fases{
        {"sin apuestas", [] { apuestas.ModoApuesta = false; }},
        {"automático", [] { estado.ControlJugador(4) = kAutomatico; }},
        {"mirando otra serie", [] { estado.SerieEnJuego = 2; }},
        {"repartiendo", [] { estado.RepartoEnCurso = true; }},
        {"sin turno", [] { estado.JugadorActual = 0; }},
    };
    for (const auto& [fase, pon] : fases) {
        Apuestan(kPoker);
        pon();
        ClicEnFicha(4, 4);
        EXPECT_EQ(RestoDe(4), 100) << fase;
        EXPECT_NE(PunteroEnMesa(), Puntero::ManoIndice) << fase;
        estado.ControlJugador(4) = kManual;
        estado.RepartoEnCurso = false;
    }
}

TEST_F(Apostadora, OrdenandoElClicEnUnaFichaSoloDejaDeOrdenar) {
    Apuestan(kPoker);
    estado.ModoOrdenar = true;
    ClicEnFicha(4, 4);
    EXPECT_EQ(RestoDe(4), 100);
    EXPECT_FALSE(estado.ModoOrdenar);
    EXPECT_EQ(PunteroEnMesa(), Puntero::ManoIndice); // from now on it may be placed
}

TEST_F(Apostadora, UnaFichaNegadaNoCambiaElTablero) {
    Apuestan(kPoker);
    estado.ApuestaMaxima = 5;
    ClicEnFicha(4, 4);
    EXPECT_THAT(Titulos(), ElementsAre("Límite sobrepasado"));
    EXPECT_THAT(Botones(), ElementsAre("Me reservo"));
    EXPECT_EQ(RestoDe(4), 100);
}

TEST_F(Apostadora, ElJuegoPuedeNegarLaFicha) {
    FilaCambiada cambio(kPoker);
    cambio.Fila().dinero.permite_ficha = [] { return false; };
    cambio.Usa();
    Apuestan(kPoker);
    EmpiezaTraza();
    ClicEnFicha(4, 4);
    EXPECT_THAT(TrazaDe("PonFicha"), IsEmpty());
    EXPECT_THAT(TrazaDe("MuestraApostadora"), IsEmpty());
    EXPECT_EQ(RestoDe(4), 100);
}

TEST_F(Apostadora, LosBotonesJuntoAlAsientoVanAlJuego) {
    static std::vector<std::pair<Control, int>> pulsados;
    pulsados.clear();
    FilaCambiada cambio(kBlackJack);
    cambio.Fila().entrada.clic_control = [](Control control, int indice) {
        pulsados.emplace_back(control, indice);
    };
    cambio.Usa();
    Apuestan(kBlackJack);
    p.Muestra(Control::Pic_BotSuperior, 2, true);
    p.Muestra(Control::Pic_BotLateral, 1, true);
    p.Muestra(Control::Pic_BotDobSeg, 0, true);
    Pulsa(Control::Pic_BotSuperior, 2);
    Pulsa(Control::Pic_BotSuperior, 1); // hidden
    Pulsa(Control::Pic_BotLateral, 1);
    Pulsa(Control::Pic_BotDobSeg);
    EXPECT_THAT(pulsados, ElementsAre(std::pair{Control::Pic_BotSuperior, 2},
                                      std::pair{Control::Pic_BotLateral, 1},
                                      std::pair{Control::Pic_BotDobSeg, 0}));
}

TEST_F(Apostadora, ConOtroTamanoVaALaEsquinaDeAhora) {
    p.UsaLienzosRegistrados();
    Apuestan(kPoker);
    MuestraApostadora();
    const Rectangulo antes = p.Tablero().LugarDe({Control::Pic_Apostadora, 0});
    p.Mide(1280, 800);
    CambiaTamano();
    const Rectangulo despues = p.Tablero().LugarDe({Control::Pic_Apostadora, 0});
    EXPECT_EQ(despues.x, antes.x + 480);
    EXPECT_EQ(despues.y, antes.y + 200);
}
