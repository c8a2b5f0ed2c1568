// Whole hands and matches of Cinquillo.

#include "games/cinquillo/cinquillo.h"
#include "table/button_column.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/random.h"
#include "core/session_state.h"
#include "games/cinquillo/cinquillo_table.h"
#include "games/common/trick_state.h"
#include "table/trace.h"
#include "tests/support/live_table.h"

using namespace prueba;
using testing::ElementsAre;

namespace {

// One suit, from one rank to another.
std::vector<Carta> Tramo(Integer palo, std::initializer_list<Integer> valores) {
    std::vector<Carta> cartas;
    for (Integer valor : valores)
        cartas.emplace_back(palo, valor);
    return cartas;
}

std::vector<Carta> operator+(std::vector<Carta> una, const std::vector<Carta>& otra) {
    una.insert(una.end(), otra.begin(), otra.end());
    return una;
}

std::vector<Carta> Bajas(Integer palo) {
    return Tramo(palo, {1, 2, 3, 4, 5});
}

std::vector<Carta> Altas(Integer palo) {
    return Tramo(palo, {6, 7, 10, 11, 12});
}

struct ManoDeCinquillo : MesaViva {
    ManoDeCinquillo() {
        estado.VelocidadJuego = 100;
        estado.PartidaEnCurso = true;
        estado.JugadorMano = 1;
        estado.LimitePartida = 1;
        TodoSolo();
        estado.NombreJugador(1) = "Ana";
        estado.NombreJugador(2) = "Luis";
        estado.NombreJugador(3) = "Eva";
        estado.NombreJugador(4) = "Iñigo";
        for (int asiento = 1; asiento <= 4; ++asiento) {
            estado.NivelJugador(asiento) = 100;
            estado.CaracterJugador(asiento) = kMedio;
        }
    }
    // Seats 1 to 4 with these hands: the deal goes five and five.
    void Reparte(const std::vector<Carta>& uno, const std::vector<Carta>& dos,
                 const std::vector<Carta>& tres, const std::vector<Carta>& cuatro) {
        std::vector<Carta> baraja;
        for (std::ptrdiff_t pasada : {0, 5}) {
            for (const auto* mano : {&uno, &dos, &tres, &cuatro})
                baraja.insert(baraja.end(), mano->begin() + pasada, mano->begin() + pasada + 5);
        }
        BarajaSera(baraja);
    }
    // Everybody holds the half of two suits: seat 1 opens with its 5 and nobody ever passes.
    void ReparteMitades() {
        Reparte(Bajas(kOros) + Bajas(kCopas), Altas(kOros) + Altas(kCopas),
                Bajas(kEspadas) + Bajas(kBastos), Altas(kEspadas) + Altas(kBastos));
    }
    // Seat 1, a person, is going to click its last card: As to 5 of oros and of copas lie 16 pixels apart from y 178.
    void PulsaElCincoDeCopas() {
        estado.ControlJugador(1) = kManual;
        estado.CartasJugador(1) = kVisibles;
        ReparteMitades();
        p.guion.RatonMueve(60, 330);
        p.guion.RatonPulsa(60, 330, 1);
    }
    static Carta Tendida(Integer asiento, int ronda) {
        return {bazas.RegistroBazas(asiento + 5, ronda), bazas.RegistroBazas(asiento + 10, ronda)};
    }
    // Something happens every time that the table makes this call.
    static void Cuando(const std::string& llamada, const std::function<void()>& accion) {
        EscuchaTraza([=](const std::string& linea) {
            if (linea == llamada)
                accion();
        });
    }
    // Different cards, in the hands and on the table.
    static int CartasALaVista() {
        Tabla<bool, 4, 12> vistas;
        for (Integer asiento = 1; asiento <= 4; ++asiento) {
            for (const Carta& carta : ManoDe(asiento))
                vistas(carta.palo, carta.valor) = carta.palo != kSinCarta;
        }
        for (Integer palo = kOros; palo <= kBastos; ++palo) {
            for (Integer valor = 1; valor <= 12; ++valor)
                vistas(palo, valor) = vistas(palo, valor) || bazas.CartaJugada(palo, valor) != 0;
        }
        return static_cast<int>(std::ranges::count(vistas, true));
    }
    static Integer PuntosDe(int asiento) {
        return static_cast<Integer>(std::stoi(estado.Juegos(1).Texto1(asiento)));
    }
};

const Carta kNada{kSinCarta, 0};

} // namespace

TEST_F(ManoDeCinquillo, UnaManoEnteraQueNadiePasa) {
    ReparteMitades();
    ManoCinquillo();
    EXPECT_EQ(estado.GanadorMano, 1);
    EXPECT_EQ(estado.NumBaza, 10);
    EXPECT_EQ(estado.GanadorPartida, 1);
    EXPECT_FALSE(estado.PartidaEnCurso);
    for (int ronda = 1; ronda <= 10; ++ronda)
        EXPECT_NE(Tendida(1, ronda), kNada);
    EXPECT_EQ(Tendida(2, 10), kNada);
    EXPECT_EQ(bazas.CartaJugada(kOros, 5), 1);
    EXPECT_EQ(bazas.CartaJugada(kOros, 6), 2);
}

TEST_F(ManoDeCinquillo, ElRegistroDeLaMano) {
    ReparteMitades();
    ManoCinquillo();
    const RegistroJuego& registro = estado.Juegos(1);
    EXPECT_EQ(registro.Inicio, "Ana");
    EXPECT_EQ(registro.Marcas(1, 1), 1);
    for (int asiento : {2, 3, 4}) {
        EXPECT_EQ(registro.Marcas(asiento, 1), 0);
        EXPECT_EQ(estado.NumCartas(asiento, 1), 1);
    }
    EXPECT_EQ(PuntosDe(1), PuntosDe(2) + PuntosDe(3) + PuntosDe(4));
    EXPECT_EQ(registro.Texto2(1), "");
    EXPECT_EQ(registro.Cifra(1), 0);
}

TEST_F(ManoDeCinquillo, ElQueSaleSinCincoPasaSinSenalYLaRondaCuenta) {
    // Seat 1 holds no 5 and nothing beside one; seat 2 holds all four.
    estado.LimitePartida = 1;
    estado.ControlJugador(2) = kManual;
    estado.CartasJugador(2) = kVisibles;
    Reparte(Tramo(kOros, {1, 2, 3, 10, 11}) + Tramo(kCopas, {1, 2, 3, 10, 11}),
            {{kOros, 5},
             {kCopas, 5},
             {kEspadas, 5},
             {kBastos, 5},
             {kOros, 4},
             {kOros, 6},
             {kCopas, 4},
             {kCopas, 6},
             {kEspadas, 4},
             {kEspadas, 6}},
            {{kOros, 7},
             {kOros, 12},
             {kCopas, 7},
             {kCopas, 12},
             {kEspadas, 1},
             {kEspadas, 2},
             {kEspadas, 3},
             {kEspadas, 7},
             {kEspadas, 10},
             {kEspadas, 11}},
            Tramo(kBastos, {1, 2, 3, 4, 6}) + Tramo(kBastos, {7, 10, 11, 12}) +
                std::vector<Carta>{{kEspadas, 12}});
    EmpiezaTraza();
    ManoCinquillo(); // stops in seat 2's wait
    EXPECT_EQ(estado.JugadorActual, 2);
    EXPECT_EQ(estado.NumBaza, 1);
    EXPECT_EQ(estado.CartasEnBaza, 2); // who passes has had a turn, too
    EXPECT_EQ(Tendida(1, 1), kNada);
    // Only seat 2 has flashed, and no pause of an automatic seat was made.
    EXPECT_THAT(TrazaDe("ResaltarAsiento"), testing::SizeIs(1));
    EXPECT_EQ(std::ranges::count(TrazaDe("Pausa"), "Pausa(300)"), 0);
}

TEST_F(ManoDeCinquillo, TresAsientosPuedenPasarSeguidos) {
    // Seat 4 holds the four 5s; nobody else can lay before it.
    Reparte(Tramo(kOros, {1, 2, 3, 4, 6}) + Tramo(kOros, {7, 10, 11, 12}) + Tramo(kBastos, {1}),
            Tramo(kCopas, {1, 2, 3, 4, 6}) + Tramo(kCopas, {7, 10, 11, 12}) + Tramo(kBastos, {2}),
            Tramo(kEspadas, {1, 2, 3, 4, 6}) + Tramo(kEspadas, {7, 10, 11, 12}) +
                Tramo(kBastos, {3}),
            {{kOros, 5},
             {kCopas, 5},
             {kEspadas, 5},
             {kBastos, 5},
             {kBastos, 4},
             {kBastos, 6},
             {kBastos, 7},
             {kBastos, 10},
             {kBastos, 11},
             {kBastos, 12}});
    ManoCinquillo();
    for (Integer asiento = 1; asiento <= 3; ++asiento)
        EXPECT_EQ(Tendida(asiento, 1), kNada);
    EXPECT_EQ(Tendida(4, 1).valor, 5);
    // With one 5 on the table, two of the three pass again.
    int pasan = 0;
    for (Integer asiento = 1; asiento <= 3; ++asiento)
        pasan += Tendida(asiento, 2) == kNada ? 1 : 0;
    EXPECT_GE(pasan, 2);
}

TEST_F(ManoDeCinquillo, SeCuentanLosTurnosDeLaVuelta) {
    ReparteMitades();
    std::vector<Integer> turnos;
    Cuando("ResaltarAsiento()", [&] { turnos.push_back(estado.CartasEnBaza); });
    ManoCinquillo();
    ASSERT_GE(turnos.size(), 6U);
    turnos.resize(6);
    EXPECT_THAT(turnos, ElementsAre(1, 2, 3, 4, 1, 2));
}

TEST_F(ManoDeCinquillo, UnCincoSePuedeTenderConOtroPaloSinAbrir) {
    ReparteMitades();
    ManoCinquillo();
    // Seat 1 and seat 3 lay two 5s each, though the neighbouring suits were closed when they did.
    for (Integer palo = kOros; palo <= kBastos; ++palo)
        EXPECT_EQ(bazas.CartaJugada(palo, 5), palo <= kCopas ? 1 : 3);
}

TEST_F(ManoDeCinquillo, ElTextoDelFinalVaDeMenosAMasNegativos) {
    Reparte(Tramo(kOros, {5, 4, 3, 2, 1}) + Tramo(kCopas, {5, 4, 3, 2, 1}),
            Altas(kEspadas) + Altas(kBastos), Bajas(kEspadas) + Bajas(kBastos),
            Altas(kOros) + Altas(kCopas));
    ManoCinquillo();
    ASSERT_FALSE(p.mensajes.empty());
    EXPECT_EQ(p.mensajes[0].titulo, "Final de la mano");
    EXPECT_EQ(estado.GanadorMano, 1);
    // Seat 2 passes once, before seat 3 opens espadas, and keeps the 11 and the 12 of bastos: 2 and 1. Seat 3
    // keeps an As, 2, and seat 4 a Rey, 1.
    EXPECT_EQ(p.mensajes[0].texto, "Iñigo : 1 punto negativo.\r\n"
                                   "Eva : 2 puntos negativos.\r\n"
                                   "Luis : 3 puntos negativos.\r\n"
                                   "\r\n"
                                   "Ha ganado la mano Ana");
    EXPECT_EQ(p.mensajes[0].lineas, 5);
    EXPECT_EQ(estado.Juegos(1).Texto1(1), "6");
    EXPECT_EQ(estado.Juegos(1).Texto2(2), "11 12 ");
    EXPECT_EQ(estado.Juegos(1).Texto2(3), "A ");
    EXPECT_EQ(estado.Juegos(1).Texto2(4), "12 ");
}

TEST_F(ManoDeCinquillo, AlFinalTodasLasManosSeDescubrenYLosBotonesSeCierran) {
    p.formas = {Forma::Personal, Forma::Normas, Forma::Marcador, Forma::Estadis};
    ReparteMitades();
    p.al_preguntar = [](const CajaMensaje& caja) {
        if (caja.titulo != "Final de la mano")
            return;
        EXPECT_FALSE(estado.ManoEnCurso);
        for (int asiento = 2; asiento <= 4; ++asiento)
            EXPECT_EQ(estado.Mano(asiento, 1, 1, kCara), kDescubierta);
        for (int boton : {1, 2, 3, 7, 8})
            EXPECT_FALSE(BotonHabilitado(boton)) << boton;
    };
    ManoCinquillo();
    EXPECT_FALSE(p.mensajes.empty());
}

TEST_F(ManoDeCinquillo, ConRepartoAManoPersonalizarSigueHabilitado) {
    p.formas = {Forma::Personal, Forma::Normas, Forma::Marcador, Forma::Estadis};
    ReparteMitades();
    bool visto = false;
    p.al_preguntar = [&](const CajaMensaje& caja) {
        visto = visto || (caja.titulo == "Final de la mano" && BotonHabilitado(kBotonPersonal));
    };
    Cuando("ResaltarAsiento()", [] { estado.SistemaReparto = kRepartoManual; });
    ManoCinquillo();
    EXPECT_TRUE(visto);
}

TEST_F(ManoDeCinquillo, ElTurnoAutomaticoPasoAPaso) {
    ReparteMitades();
    EmpiezaTraza();
    ManoCinquillo();
    const auto desde = std::ranges::find(traza, "ResaltarAsiento()");
    ASSERT_NE(desde, traza.end());
    const auto hasta = std::find(desde + 1, traza.end(), "ResaltarAsiento()");
    std::vector<std::string> turno;
    std::copy_if(desde, hasta, std::back_inserter(turno),
                 [](const std::string& linea) { return linea != "Pausa(12)"; });
    // The 5 de oros, place 5 of ten, raised 20 pixels into the table.
    const Punto lugar = LugarTendido(kOros, 5);
    const std::string vuelo = "MoverCarta(1, 5, 38, 242, 2, 2, " + std::to_string(lugar.x) + ", " +
                              std::to_string(lugar.y) + ", 1, 2, 0)";
    EXPECT_THAT(turno, ElementsAre("ResaltarAsiento()", "Pausa(140)", "RedibujarAsiento(1)",
                                   "Pausa(340)", "Pausa(140)", "RedibujarAsiento(1)", "Pausa(340)",
                                   "Pausa(300)", "RedibujarAsiento(1)", "Pausa(500)",
                                   "ColocarCarta(1, 5, 10)", "RedibujarAsiento(1)", vuelo,
                                   "Sonido(1, 24)", "Sonido(0, 25)", "Pausa(500)"));
}

TEST_F(ManoDeCinquillo, LaPersonaEligeConElRaton) {
    PulsaElCincoDeCopas();
    ManoCinquillo();
    EXPECT_EQ(Tendida(1, 1), (Carta{kCopas, 5}));
    EXPECT_EQ(estado.NumCartas(1, 1), 9);
}

// After the first click the mouse rests on the 4 de copas, which the 5 has made legal by the next turn.
TEST_F(ManoDeCinquillo, ElPunteroQuietoDiceSiLaCartaVale) {
    PulsaElCincoDeCopas();
    EmpiezaTraza();
    ManoCinquillo();
    ASSERT_EQ(estado.NumBaza, 2);
    ASSERT_EQ(estado.JugadorActual, 1);
    const auto espera = std::ranges::find(traza.rbegin(), traza.rend(), "PedirContinuar(1)");
    const auto turno = std::find(espera, traza.rend(), "ResaltarAsiento()");
    EXPECT_NE(std::find(espera, turno, "CambiarCursor(\"mesa\", \"ManoVerde\")"), turno);
}

TEST_F(ManoDeCinquillo, ElBotonVerdeJuegaPorLaPersona) {
    estado.ControlJugador(1) = kManual;
    estado.CartasJugador(1) = kVisibles;
    ReparteMitades();
    p.guion.PulsaControl({Control::Pic_BotContinuar, 0});
    ManoCinquillo();
    EXPECT_EQ(Tendida(1, 1).valor, 5);
    EXPECT_NE(Tendida(4, 1), kNada);
}

TEST_F(ManoDeCinquillo, SoloEnElTurnoDeUnaPersonaEstaElTutor) {
    estado.ControlJugador(1) = kManual;
    estado.CartasJugador(1) = kVisibles;
    ReparteMitades();
    EmpiezaTraza();
    ManoCinquillo(); // stops in seat 1's wait, and leaves it
    EXPECT_FALSE(BotonHabilitado(kBotonTutor));
    EXPECT_FALSE(estado.EligeCarta);
}

TEST_F(ManoDeCinquillo, ElTutorEnUnTurnoDePersonaNoAcabaLaEspera) {
    estado.ControlJugador(1) = kManual;
    estado.CartasJugador(1) = kVisibles;
    estado.NivelJugador(1) = 20;
    ReparteMitades();
    p.guion.PulsaControl({Control::Pic_Boton, kBotonTutor});
    EmpiezaTraza();
    ManoCinquillo();
    EXPECT_EQ(estado.NivelJugador(1), 100);
    EXPECT_EQ(std::ranges::count(TrazaDe("Sonido"), "Sonido(1, 26)"), 2);
    EXPECT_EQ(estado.NumCartas(1, 1), 10);
    EXPECT_EQ(estado.JugadorActual, 1);
}

TEST_F(ManoDeCinquillo, LaSugerenciaDelPrincipioVaConElNumeroDelTurnoAnterior) {
    estado.ControlJugador(1) = kManual;
    estado.CartasJugador(1) = kVisibles;
    ReparteMitades();
    // Before the first turn the number is 0: tip 50. The turn's own is 0.9: no other tip.
    EncolaAzar({0.9});
    EmpiezaTraza();
    ManoCinquillo();
    EXPECT_THAT(TrazaDe("MostrarSugerencia"), ElementsAre("MostrarSugerencia(50)"));
}

TEST_F(ManoDeCinquillo, LasSugerenciasDeUnTurno) {
    struct Caso {
        float anterior;
        double propio;
        std::vector<std::string> tips;
    };
    const Caso casos[] = {{0.24F, 0.5, {"MostrarSugerencia(50)"}},
                          {0.25F, 0.5, {"MostrarSugerencia(15)"}},
                          {0.79F, 0.5, {"MostrarSugerencia(15)"}},
                          {0.8F, 0.5, {}},
                          {0.8F, 0.39, {"MostrarSugerencia(50)"}},
                          {0.8F, 0.4, {}},
                          {0.3F, 0.1, {"MostrarSugerencia(15)", "MostrarSugerencia(50)"}}};
    for (const Caso& caso : casos) {
        estado.ControlJugador(1) = kManual;
        estado.CartasJugador(1) = kVisibles;
        estado.PartidaEnCurso = true;
        estado.JuegosJugados = 0;
        estado.JugadorMano = 1;
        sesion = {};
        VaciaColaAzar();
        ReparteMitades();
        EncolaAzar({caso.propio});
        estado.AzarTurno = caso.anterior;
        EmpiezaTraza();
        ManoCinquillo();
        EXPECT_EQ(TrazaDe("MostrarSugerencia"), caso.tips) << caso.anterior << " " << caso.propio;
    }
}

TEST_F(ManoDeCinquillo, SiguenManosHastaElLimite) {
    estado.LimitePartida = 2;
    ManoCinquillo();
    EXPECT_EQ(estado.JuegosGanados(estado.GanadorPartida), 2);
    EXPECT_GE(estado.JuegosJugados, 2);
    EXPECT_EQ(Titulos().back(), "Histórico de partidas jugadas");
}

TEST_F(ManoDeCinquillo, UnaCartaArrastradaVuelveAntesDeQueCambieSuMano) {
    // Seat 2's hand lies open and may be put in order. As its turn begins its last card is taken; it is released
    // over the first one two turns later, when the hand has a card less.
    ReparteMitades();
    estado.CartasJugador(2) = kVisibles;
    Cuando("Pausa(500)", [] { estado.ModoOrdenar = true; });
    p.traviesa = true;
    const int pases_hasta_el_turno_de_2 = 40 + 1;
    for (int pase = 0; pase < pases_hasta_el_turno_de_2; ++pase)
        p.guion.RatonMueve(355, 300);
    p.guion.RatonPulsa(440, 80, 1);
    p.guion.RatonMueve(250, 80);
    p.guion.RatonSuelta(250, 80, 1);
    p.al_preguntar = [](const CajaMensaje& caja) {
        if (caja.titulo == "Final de la mano") {
            EXPECT_EQ(CartasALaVista(), 40);
        }
    };
    ManoCinquillo();
    EXPECT_FALSE(estado.ArrastraCarta);
    EXPECT_FALSE(p.mensajes.empty());
}
