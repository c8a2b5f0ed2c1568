// The manual deal, by mouse. At 800 by 600 the Spanish spread begins at (181, 204): 29 pixels a column and 48
// a row.

#include "betting/bet_state.h"
#include "table/button_column.h"
#include "table/manual_deal.h"
#include "table/manual_spread.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "core/random.h"
#include "core/session_state.h"
#include "games/common/hands.h"
#include "table/deck.h"
#include "tests/support/live_table.h"

using namespace prueba;

namespace {

constexpr Punto kZona[] = {{}, {80, 300}, {355, 80}, {640, 300}, {355, 520}};
constexpr Punto kFieltro{355, 420}; // under the spread, in no zone

struct RepartoAMano : MesaViva {
    RepartoAMano() {
        Juega(kBrisca);
        estado.SistemaReparto = kRepartoManual;
        estado.PartidaEnCurso = true;
        estado.JugadorMano = 1;
        estado.VelocidadJuego = 100;
    }
    // Lays the spread and comes back with it on the table: the wait finds nothing to wait for.
    void Extendido() {
        ASSERT_FALSE(RepartirAMano());
        sesion.sin_eventos = false;
        estado.PartidaEnCurso = true;
        estado.RepartoEnCurso = true;
    }
    static Punto EnReparto(const Carta& carta) {
        return {estado.ReparteX + (carta.valor - 1) * 29 + 13,
                estado.ReparteY + (carta.palo - 1) * (estado.AltoMiniCarta + 2) + 20};
    }
    void Toma(const Carta& carta) {
        const Punto sitio = EnReparto(carta);
        Mueve(sitio.x, sitio.y);
        Aprieta(sitio.x, sitio.y);
    }
    void Da(const Carta& carta, Integer asiento) {
        Toma(carta);
        Mueve(kZona[asiento].x, kZona[asiento].y);
        Suelta(kZona[asiento].x, kZona[asiento].y);
    }
    // The same, queued for a wait.
    void EncolaDa(const Carta& carta, Integer asiento) {
        const Punto sitio = EnReparto(carta);
        p.guion.RatonMueve(sitio.x, sitio.y);
        p.guion.RatonPulsa(sitio.x, sitio.y, 1);
        p.guion.RatonMueve(kZona[asiento].x, kZona[asiento].y);
        p.guion.RatonSuelta(kZona[asiento].x, kZona[asiento].y, 1);
    }
    // Where the spread will stand, before it is laid.
    static void PonEsquina() {
        estado.ReparteX = 181;
        estado.ReparteY = 204;
    }
    // Three cards for each of the four seats, in their order: 1 to 3, 4 to 6, ... of one suit each.
    void EncolaRepartoDeBrisca() {
        PonEsquina();
        for (Integer asiento = 1; asiento <= 4; ++asiento) {
            for (Integer valor = 1; valor <= 3; ++valor)
                EncolaDa({asiento, valor}, asiento);
        }
    }
    Puntero Sobre(const Punto& punto) {
        Mueve(punto.x, punto.y);
        return PunteroEnMesa();
    }
};

} // namespace

TEST_F(RepartoAMano, ElRepartoSeCentraYEsperaTodaLaBaraja) {
    Extendido();
    EXPECT_EQ(estado.ReparteX, 181); // 355 - 12 * 29 / 2
    EXPECT_EQ(estado.ReparteY, 204); // 300 - 48 * 4 / 2
    EXPECT_EQ(estado.FilasReparto, 4);
    EXPECT_EQ(estado.CartasEnMazo, 40);
    EXPECT_EQ(estado.JugadoresEnMano, 4);
    for (int palo = kOros; palo <= kBastos; ++palo) {
        EXPECT_TRUE(estado.CartaEnReparto(palo, 7));
        EXPECT_FALSE(estado.CartaEnReparto(palo, 8));
        EXPECT_FALSE(estado.CartaEnReparto(palo, 9));
        EXPECT_TRUE(estado.CartaEnReparto(palo, 12));
    }
}

TEST_F(RepartoAMano, MientrasSeReparteSePuedeEmpezarCambiarNormasYSalir) {
    p.formas = {Forma::Normas, Forma::Estadis};
    for (int boton : {kBotonNueva, kBotonNormas, kBotonSalir})
        HabilitaBoton(boton, false);
    for (int boton : {kBotonTutor, kBotonEstadis})
        HabilitaBoton(boton, true);
    Extendido();
    for (int boton : {kBotonNueva, kBotonNormas, kBotonSalir})
        EXPECT_TRUE(BotonHabilitado(boton)) << boton;
    for (int boton : {kBotonTutor, kBotonEstadis})
        EXPECT_FALSE(BotonHabilitado(boton)) << boton;
}

TEST_F(RepartoAMano, EmpiezaSinDescartesNiUltimoQueReciba) {
    estado.UltimoRecibe = 3;
    estado.NumDescartes = 7;
    Extendido();
    EXPECT_EQ(estado.UltimoRecibe, 0);
    EXPECT_EQ(estado.NumDescartes, 0);
}

TEST_F(RepartoAMano, TrasExtenderSePintanLosAsientosYSusNombres) {
    EmpiezaTraza();
    Extendido();
    const std::vector<std::string> fin(traza.end() - 5, traza.end());
    EXPECT_EQ(fin, (std::vector<std::string>{"RedibujarAsiento(1)", "RedibujarAsiento(2)",
                                             "RedibujarAsiento(3)", "RedibujarAsiento(4)",
                                             "MostrarNombres()"}));
}

TEST_F(RepartoAMano, CadaPasoDeUnaCartaSuenaYSePinta) {
    Extendido();
    EmpiezaTraza();
    Toma({kOros, 1});
    EXPECT_EQ(TrazaDe("Sonido"), (std::vector<std::string>{"Sonido(1, 24)"}));
    traza.clear();
    Mueve(kZona[4].x, kZona[4].y);
    EXPECT_EQ(TrazaDe("RedibujarAsiento"), (std::vector<std::string>{"RedibujarAsiento(4)"}));
    EXPECT_EQ(TrazaDe("Sonido"), (std::vector<std::string>{"Sonido(0, 25)"}));
    Suelta(kZona[4].x, kZona[4].y);
    traza.clear();
    const Punto dada = SobreCarta(4, 1);
    Mueve(dada.x, dada.y);
    Aprieta(dada.x, dada.y);
    EXPECT_EQ(TrazaDe("RedibujarAsiento"), (std::vector<std::string>{"RedibujarAsiento(4)"}));
    Toma({kOros, 2});
    traza.clear();
    Mueve(kFieltro.x, kFieltro.y);
    Suelta(kFieltro.x, kFieltro.y);
    EXPECT_EQ(TrazaDe("Sonido"), (std::vector<std::string>{"Sonido(0, 25)"}));
}

TEST_F(RepartoAMano, CadaCartaSeExtiendeConSuPausaYLosComodinesConOtra) {
    estado.ComodinesJuego = 3;
    apuestas.Fichas(3, 4) = 2;
    Juega(kPoker);
    EmpiezaTraza();
    Extendido();
    const auto pausas = TrazaDe("Pausa");
    EXPECT_EQ(std::count(pausas.begin(), pausas.end(), "Pausa(25)"), 52);
    EXPECT_EQ(std::count(pausas.begin(), pausas.end(), "Pausa(40)"), 2);
    EXPECT_EQ(estado.FilasReparto, 5);
    EXPECT_EQ(estado.ReparteX, 166); // 355 - 188.5, half to even
    EXPECT_EQ(estado.ReparteY, 200); // 300 - 40 * 5 / 2
    EXPECT_TRUE(estado.CartaEnReparto(kComodin, 2));
    EXPECT_FALSE(estado.CartaEnReparto(kComodin, 3));
}

TEST_F(RepartoAMano, LosPunterosSobreElReparto) {
    Extendido();
    EXPECT_EQ(Sobre(EnReparto({kCopas, 4})), Puntero::Ordenar);
    EXPECT_EQ(Sobre(EnReparto({kCopas, 8})), Puntero::Flecha); // there is no 8
    EXPECT_EQ(Sobre({181 + 27, 204 + 20}), Puntero::Flecha);   // the gap of a column
    EXPECT_EQ(Sobre({181 + 13, 204 + 46}), Puntero::Flecha);   // the gap of a row
    EXPECT_EQ(Sobre(kFieltro), Puntero::Flecha);
    Da({kCopas, 4}, 2);
    EXPECT_EQ(Sobre(EnReparto({kCopas, 4})), Puntero::Flecha);
    EXPECT_EQ(Sobre(SobreCarta(2, 1)), Puntero::ManoVerde);
    Toma({kOros, 1});
    EXPECT_EQ(Sobre(kFieltro), Puntero::ManoCerrada);
}

TEST_F(RepartoAMano, LaZonaDeUnAsientoTomaLaCartaSinSoltarla) {
    Extendido();
    Toma({kEspadas, 10});
    EXPECT_TRUE(estado.ArrastraReparto);
    EXPECT_TRUE(p.EstaVisible(Control::Pic_Mover, 0));
    EXPECT_TRUE(estado.CartaEnReparto(kEspadas, 10));
    EXPECT_EQ(estado.NumCartas(3, 1), 0);
    Mueve(kZona[3].x, kZona[3].y);
    EXPECT_FALSE(estado.ArrastraReparto);
    EXPECT_FALSE(p.EstaVisible(Control::Pic_Mover, 0));
    EXPECT_FALSE(estado.CartaEnReparto(kEspadas, 10));
    EXPECT_EQ(ManoDe(3), (std::vector<Carta>{{kEspadas, kSota}}));
    EXPECT_EQ(estado.Mano(3, 1, 1, kCara), kDescubierta);
    EXPECT_EQ(estado.Mano(3, 1, 1, kAltura), kEnLinea);
    EXPECT_EQ(estado.UltimoRecibe, 3);
}

TEST_F(RepartoAMano, LaCartaColgadaVaDocePixelesALaIzquierda) {
    Extendido();
    Toma({kOros, 1});
    Mueve(kFieltro.x, kFieltro.y);
    EXPECT_EQ(p.Tablero().LugarDe({Control::Pic_Mover, 0}).x, kFieltro.x - 12);
}

TEST_F(RepartoAMano, UnAsientoLlenoDejaLaCartaColgadaYAlSoltarlaVuelve) {
    Extendido();
    for (Integer valor = 1; valor <= 3; ++valor)
        Da({kOros, valor}, 2);
    Toma({kOros, 4});
    Mueve(kZona[2].x, kZona[2].y);
    EXPECT_TRUE(estado.ArrastraReparto);
    EXPECT_EQ(estado.NumCartas(2, 1), 3);
    Suelta(kZona[2].x, kZona[2].y);
    EXPECT_FALSE(estado.ArrastraReparto);
    EXPECT_TRUE(estado.CartaEnReparto(kOros, 4));
    EXPECT_FALSE(p.EstaVisible(Control::Pic_Mover, 0));
    EXPECT_EQ(estado.NumCartas(2, 1), 3);
    EXPECT_EQ(Sobre(EnReparto({kOros, 4})), Puntero::Ordenar);
}

TEST_F(RepartoAMano, LaCartaColgadaPuedePasarDeUnAsientoLlenoAOtro) {
    Extendido();
    for (Integer valor = 1; valor <= 3; ++valor)
        Da({kOros, valor}, 2);
    Toma({kOros, 4});
    Mueve(kZona[2].x, kZona[2].y);
    Mueve(kZona[1].x, kZona[1].y);
    EXPECT_FALSE(estado.ArrastraReparto);
    EXPECT_EQ(ManoDe(1), (std::vector<Carta>{{kOros, 4}}));
}

TEST_F(RepartoAMano, LaCartaQueSeTomaDejaElPunteroSinForma) {
    Extendido();
    Toma({kOros, 1});
    Mueve(kZona[4].x, kZona[4].y);
    EXPECT_EQ(estado.NumCartas(4, 1), 1);
    EXPECT_EQ(estado.CursorTabla, 0);
    EXPECT_EQ(Sobre(SobreCarta(4, 1)), Puntero::ManoVerde);
}

TEST_F(RepartoAMano, QuienNoJuegaNoTomaCartas) {
    Desactiva({1});
    Extendido();
    Da({kOros, 1}, 1);
    EXPECT_EQ(estado.NumCartas(1, 1), 0);
    EXPECT_TRUE(estado.CartaEnReparto(kOros, 1));
    EXPECT_EQ(estado.JugadoresEnMano, 3);
}

TEST_F(RepartoAMano, SoltarlaEnElFieltroLaDevuelve) {
    Extendido();
    Toma({kBastos, 12});
    Mueve(kFieltro.x, kFieltro.y);
    Suelta(kFieltro.x, kFieltro.y);
    EXPECT_FALSE(estado.ArrastraReparto);
    EXPECT_TRUE(estado.CartaEnReparto(kBastos, 12));
}

TEST_F(RepartoAMano, UnaCartaDadaSePuedeRecoger) {
    Extendido();
    Da({kOros, 1}, 4);
    Da({kOros, 2}, 4);
    EmpiezaTraza();
    const Punto primera = SobreCarta(4, 1);
    Mueve(primera.x, primera.y);
    Aprieta(primera.x, primera.y);
    EXPECT_EQ(TrazaDe("Pausa").front(), "Pausa(100)");
    EXPECT_EQ(ManoDe(4), (std::vector<Carta>{{kOros, 2}}));
    EXPECT_EQ(estado.Mano(4, 1, 2, kPalo), kSinCarta);
    EXPECT_TRUE(estado.CartaEnReparto(kOros, 1));
    EXPECT_FALSE(estado.CartaEnReparto(kOros, 2));
    Da({kOros, 1}, 1);
    EXPECT_EQ(ManoDe(1), (std::vector<Carta>{{kOros, 1}}));
}

TEST_F(RepartoAMano, ElBotonDerechoNoTomaCartas) {
    Extendido();
    const Punto sitio = EnReparto({kOros, 1});
    Mueve(sitio.x, sitio.y);
    Aprieta(sitio.x, sitio.y, 2);
    EXPECT_FALSE(estado.ArrastraReparto);
}

TEST_F(RepartoAMano, UnBotonDevuelveLoQueCuelga) {
    p.formas = {Forma::Personal};
    Extendido();
    Toma({kOros, 1});
    HabilitaBoton(kBotonPersonal, true);
    PulsaBoton(kBotonPersonal);
    EXPECT_FALSE(estado.ArrastraReparto);
    EXPECT_TRUE(estado.CartaEnReparto(kOros, 1));
}

TEST_F(RepartoAMano, ElRepartoEnteroAcabaSolo) {
    EncolaRepartoDeBrisca();
    ASSERT_TRUE(RepartirAMano());
    EXPECT_FALSE(estado.RepartoEnCurso);
    EXPECT_EQ(ManoDe(1), (std::vector<Carta>{{kOros, 1}, {kOros, 2}, {kOros, 3}}));
    EXPECT_EQ(ManoDe(4), (std::vector<Carta>{{kBastos, 1}, {kBastos, 2}, {kBastos, 3}}));
    EXPECT_EQ(estado.Mano(1, 1, 1, kCara), kDorso);
    EXPECT_EQ(estado.Mano(4, 1, 1, kCara), kDescubierta);
    EXPECT_EQ(estado.CartasEnMazo, 28);
    EXPECT_EQ(estado.PosicionMazo, 13);
    EXPECT_EQ(estado.UltimoRecibe, 4);
}

TEST_F(RepartoAMano, AlAcabarSeQuitaElRepartoYSeVuelvenAPintarLasManos) {
    p.UsaLienzosRegistrados();
    EncolaRepartoDeBrisca();
    ASSERT_TRUE(RepartirAMano());
    std::vector<std::string> dibujado = p.Dibujado(Control::Mesa).Llamadas();
    const auto limpia = std::find(dibujado.rbegin(), dibujado.rend(), "Fieltro(0, 0, 800, 600)");
    ASSERT_NE(limpia, dibujado.rend());
    dibujado.erase(dibujado.begin(), limpia.base());
    EXPECT_THAT(dibujado, testing::Not(testing::Contains(testing::StartsWith("MiniCarta("))));
    // Each seat as its cards lie now: those of seat 1 with the back up.
    const auto cartas = [&](const std::string& cuales) {
        return std::ranges::count_if(dibujado, [&](const std::string& llamada) {
            return llamada.starts_with("Carta(") && llamada.find(cuales) != std::string::npos;
        });
    };
    EXPECT_EQ(cartas("palo 1 valor 1 cara 1"), 1);
    EXPECT_EQ(cartas("palo 4 valor 3 cara 2"), 2);
}

TEST_F(RepartoAMano, ElMazoQuedaALaVistaConLoQueNoSeHaDado) {
    EncolaRepartoDeBrisca();
    EmpiezaTraza();
    ASSERT_TRUE(RepartirAMano());
    EXPECT_EQ(TrazaDe("DibujarMazo"),
              std::vector<std::string>{"DibujarMazo(" + std::to_string(estado.MazoX) + ", " +
                                       std::to_string(estado.MazoY) + ", 28)"});
}

TEST_F(RepartoAMano, LoDadoLlenaLosLugaresBajosYElRestoVaAlAzarPorEncima) {
    EncolaRepartoDeBrisca();
    // The first two cards left, the 4 and the 5 of oros, draw the same place of the 28: the 5 draws again.
    EncolaAzar({0.5 / 28, 0.9 / 28, 27.5 / 28});
    ASSERT_TRUE(RepartirAMano());
    EXPECT_EQ(estado.Baraja(1, 1), kOros);
    EXPECT_EQ(estado.Baraja(1, 2), 1);
    EXPECT_EQ(estado.Baraja(4, 1), kCopas);
    EXPECT_EQ(estado.Baraja(12, 1), kBastos);
    EXPECT_EQ(estado.Baraja(12, 2), 3);
    EXPECT_EQ(estado.Baraja(13, 1), kOros);
    EXPECT_EQ(estado.Baraja(13, 2), 4);
    EXPECT_EQ(estado.Baraja(40, 1), kOros);
    EXPECT_EQ(estado.Baraja(40, 2), 5);
}

TEST_F(RepartoAMano, ElBotonVerdeNoLoAcaba) {
    p.siempre_continua = true;
    estado.EsperandoJugada = true;
    EXPECT_FALSE(RepartirAMano());
    EXPECT_TRUE(sesion.sin_eventos);
}

TEST_F(RepartoAMano, SiLasNormasVuelvenAlAutomaticoSeReparteDeNuevo) {
    p.formas = {Forma::Normas};
    p.al_abrir = [](Forma) { estado.SistemaReparto = kRepartoAutomatico; };
    PonEsquina();
    EncolaDa({kOros, 1}, 3);
    p.guion.PulsaControl({Control::Pic_Boton, kBotonNormas});
    ASSERT_TRUE(IniciarJuego());
    EXPECT_TRUE(estado.ManoEnCurso);
    EXPECT_FALSE(estado.RepartoEnCurso);
    for (int asiento = 1; asiento <= 4; ++asiento)
        EXPECT_EQ(estado.NumCartas(asiento, 1), 3);
    EXPECT_EQ(estado.CartasEnMazo, 27);
}

TEST_F(RepartoAMano, OtraBarajaEnLasNormasExtiendeLaNueva) {
    estado.ApuestaSalida = 0;
    Juega(kPoker);
    for (int asiento = 1; asiento <= 4; ++asiento)
        apuestas.Fichas(asiento, 4) = 2;
    p.formas = {Forma::Normas};
    p.al_abrir = [](Forma) {
        estado.CartasBaraja = 6;
        ConstruirBaraja();
    };
    p.guion.PulsaControl({Control::Pic_Boton, kBotonNormas});
    EXPECT_TRUE(RepartirAMano());
    EXPECT_FALSE(RepartoCompleto());
    EXPECT_FALSE(estado.RepartoEnCurso);
}

TEST_F(RepartoAMano, EnElPokerRecibeQuienTieneResto) {
    estado.ApuestaSalida = 0;
    Juega(kPoker);
    apuestas.Fichas(3, 4) = 2;
    apuestas.Fichas(4, 4) = 2;
    Extendido();
    EXPECT_EQ(estado.JugadoresEnMano, 2);
    Da({kOros, 1}, 1);
    EXPECT_EQ(estado.NumCartas(1, 1), 0);
    Da({kOros, 1}, 3);
    EXPECT_EQ(estado.NumCartas(3, 1), 1);
}

// A void hand has left the ante of seat 1, its last chips, in the pot: it is in with that, and wants all its cards.
TEST_F(RepartoAMano, EnElPokerTambienRecibeQuienEstaConSuRestoEnElBote) {
    Juega(kPoker);
    apuestas.Apuesta(1, 1, 2) = 3;
    apuestas.Fichas(3, 4) = 2;
    apuestas.Fichas(4, 4) = 2;
    Extendido();
    EXPECT_EQ(estado.JugadoresEnMano, 3);
    Da({kOros, 1}, 1);
    EXPECT_EQ(estado.NumCartas(1, 1), 1);
}

TEST_F(RepartoAMano, EnSieteYMediaLaCartaSeDaTapada) {
    Juega(kSieteYMedia);
    apuestas.Fichas(3, 4) = 2;
    Extendido();
    Da({kOros, 1}, 3);
    EXPECT_EQ(estado.Mano(3, 1, 1, kTapada), 1);
}

TEST_F(RepartoAMano, UnComodinSeDaComoComodin) {
    estado.ComodinesJuego = 3;
    estado.ApuestaSalida = 0;
    Juega(kPoker);
    apuestas.Fichas(3, 4) = 2;
    Extendido();
    Da({kComodin, 2}, 3);
    EXPECT_EQ(ManoDe(3), (std::vector<Carta>{{kComodin, 92}}));
    EXPECT_FALSE(estado.CartaEnReparto(kComodin, 2));
    const Punto carta = SobreCarta(3, 1);
    Mueve(carta.x, carta.y);
    Aprieta(carta.x, carta.y);
    EXPECT_TRUE(estado.CartaEnReparto(kComodin, 2));
}

TEST_F(RepartoAMano, SalirDesdeElRepartoDejaSinMano) {
    p.guion.PulsaControl({Control::Pic_Boton, kBotonSalir});
    EXPECT_FALSE(RepartirAMano());
    EXPECT_EQ(sesion.peticion, Peticion::Salir);
    EXPECT_FALSE(estado.RepartoEnCurso);
    EXPECT_FALSE(estado.ManoEnCurso);
}

TEST_F(RepartoAMano, UnTamanoNuevoVuelveACentrarElReparto) {
    p.UsaLienzosRegistrados();
    Extendido();
    p.Mide(1366, 768);
    DespachaEvento({.tipo = TipoEvento::Tamano, .x = 1366, .y = 768});
    EXPECT_EQ(estado.ReparteX, 464); // 638 - 174
    EXPECT_EQ(estado.ReparteY, 288); // 384 - 96
}

TEST_F(RepartoAMano, LaCartaColgadaNoSePintaEnElReparto) {
    p.UsaLienzosRegistrados();
    Extendido();
    Toma({kOros, 1});
    p.Dibujado(Control::Mesa).Olvida();
    PintaReparto();
    const auto& dibujado = p.Dibujado(Control::Mesa).Llamadas();
    EXPECT_EQ(dibujado.front(), "Fieltro(181, 204, 26, 45)");
    EXPECT_EQ(dibujado[1], "MiniCarta(210, 204, 26, 45; palo 1 valor 2 cara 2 orientación 1)");
}
