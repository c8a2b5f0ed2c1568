// What keys and screen readers find on the table, game by game: told in cards and seats.

#include "table/targets.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "betting/bet_state.h"
#include "betting/chips.h"
#include "betting/phases.h"
#include "games/cinquillo/cinquillo_choice.h"
#include "games/common/series_state.h"
#include "games/common/trick_state.h"
#include "games/trick/choice_tute.h"
#include "table/bet_board.h"
#include "table/button_column.h"
#include "table/hit_tests.h"
#include "table/manual_deal.h"
#include "table/messages.h"
#include "table/pile.h"
#include "table/score_plate.h"
#include "table/side_buttons.h"
#include "table/table_input.h"
#include "table/table_view.h"
#include "table/whole_table.h"
#include "tests/support/bank_table.h"
#include "tests/support/live_table.h"

using namespace prueba;
using testing::Contains;
using testing::ElementsAre;
using testing::Not;

namespace {

using Textos = std::vector<std::string>;

std::string Dicho(const Objetivo& uno) {
    return uno.nombre + (uno.estado.empty() ? "" : ", " + uno.estado);
}

Textos Dichos(ClaseObjetivo clase) {
    Textos textos;
    for (const Objetivo& uno : ObjetivosDeLaMesa()) {
        if (uno.clase == clase)
            textos.push_back(Dicho(uno));
    }
    return textos;
}

Textos ManoDicha(Integer asiento) {
    Textos textos;
    for (const Objetivo& uno : ObjetivosDeLaMesa()) {
        if (uno.clase == ClaseObjetivo::CartaDeMano && uno.asiento == asiento)
            textos.push_back(Dicho(uno));
    }
    return textos;
}

std::vector<Objetivo> De(ClaseObjetivo clase) {
    std::vector<Objetivo> suyos = ObjetivosDeLaMesa();
    std::erase_if(suyos, [clase](const Objetivo& uno) { return uno.clase != clase; });
    return suyos;
}

// The first of that name; none fails the test.
Objetivo Uno(const std::string& nombre) {
    const std::vector<Objetivo> todos = ObjetivosDeLaMesa();
    const auto uno = std::ranges::find(todos, nombre, &Objetivo::nombre);
    EXPECT_NE(uno, todos.end()) << nombre;
    return uno == todos.end() ? Objetivo{} : *uno;
}

struct Objetivos : MesaViva {
    Objetivos() {
        const char* kNombres[] = {"", "Ana", "Luis", "Eva", "Iñigo"};
        for (int asiento = 1; asiento <= 4; ++asiento)
            estado.NombreJugador(asiento) = kNombres[asiento];
        estado.VelocidadJuego = 100;
    }
    // Seat 4 chooses a card.
    void Elige(Integer juego, const std::vector<Carta>& mano) {
        Juega(juego);
        PonMano(4, mano);
        ManoEmpezada(4);
        estado.EligeCarta = true;
        estado.EsperandoJugada = true;
    }
    static void Boca(Integer asiento, const std::vector<Carta>& cartas) {
        PonMano(asiento, cartas);
        for (int lugar = 1; lugar <= estado.NumCartas(asiento, 1); ++lugar)
            estado.Mano(asiento, 1, lugar, kCara) = kDescubierta;
    }
    // Bets are open and seat 4 has 100 points.
    void Apuesta(Integer juego) {
        Juega(juego);
        ManoEmpezada(4);
        AsignarResto(4, 100);
        apuestas.ModoApuesta = true;
        apuestas.FaseApuesta = juego == kPoker ? kFasePrimeraRonda : kFaseApuestas;
        estado.EsperandoJugada = true;
    }
};

} // namespace

TEST_F(Objetivos, CinquilloDiceQueCartasSePuedenJugar) {
    Elige(kCinquillo, {{kOros, 6}, {kBastos, kRey}, {kCopas, 5}});
    bazas.CartaJugada(kOros, 5) = 2;
    EligeCartaCinquillo();
    EXPECT_THAT(ManoDicha(4),
                ElementsAre("Seis de Oros, se puede jugar", "Rey de Bastos, no se puede jugar",
                            "Cinco de Copas, se puede jugar"));
    EXPECT_TRUE(Uno("Seis de Oros").se_pulsa);
    EXPECT_FALSE(Uno("Rey de Bastos").se_pulsa);
    EXPECT_TRUE(Uno("Rey de Bastos").tiene_menu);
}

TEST_F(Objetivos, CinquilloDiceLasFilasYSusExtremos) {
    Elige(kCinquillo, {{kOros, 6}});
    for (const Integer valor : std::initializer_list<Integer>{4, 5, 6, 7, 10})
        bazas.CartaJugada(kOros, valor) = 2;
    bazas.CartaJugada(kBastos, 5) = 1;
    EXPECT_THAT(Dichos(ClaseObjetivo::CartaDeMesa),
                ElementsAre("Sota de Oros, en un extremo", "Siete de Oros", "Seis de Oros",
                            "Cinco de Oros", "Cuatro de Oros, en un extremo",
                            "Cinco de Bastos, en un extremo"));
}

TEST_F(Objetivos, LasCartasTapadasDeLosRivalesNoSeDicen) {
    Elige(kCinquillo, {{kOros, 6}});
    PonMano(1, {{kOros, 1}, {kCopas, kRey}});
    EXPECT_THAT(ManoDicha(1), ElementsAre());
    EXPECT_EQ(Uno("Asiento de Ana").estado, "2 cartas");
    for (const Objetivo& uno : ObjetivosDeLaMesa()) {
        EXPECT_THAT(Dicho(uno), Not(testing::HasSubstr("Rey de Copas")));
        EXPECT_THAT(Dicho(uno), Not(testing::HasSubstr("As de Oros")));
    }
}

TEST_F(Objetivos, QuienJuegaConLasCartasTapadasNoOyeSusNombres) {
    estado.CartasJugador(4) = kOcultas;
    Elige(kCinquillo, {{kOros, 5}, {kBastos, kRey}});
    EligeCartaCinquillo();
    EXPECT_THAT(ManoDicha(4), ElementsAre("Carta tapada, se puede jugar"));
    EXPECT_FALSE(De(ClaseObjetivo::CartaDeMano)[0].tiene_menu);
}

TEST_F(Objetivos, SinTurnoLasCartasSeDicenSinMas) {
    Elige(kCinquillo, {{kOros, 5}});
    estado.JugadorActual = 2;
    EXPECT_THAT(ManoDicha(4), ElementsAre("Cinco de Oros"));
    EXPECT_FALSE(Uno("Cinco de Oros").se_pulsa);
}

TEST_F(Objetivos, ElAsientoDiceTurnoYCartas) {
    Elige(kBrisca, {{kOros, 5}, {kOros, 6}, {kOros, 7}});
    estado.JugadorMano = 3;
    EXPECT_EQ(Uno("Asiento de Iñigo").estado, "le toca, 3 cartas");
    EXPECT_EQ(Uno("Asiento de Eva").estado, "es mano");
    EXPECT_EQ(De(ClaseObjetivo::Asiento).size(), 4U);
    Desactiva({1});
    EXPECT_EQ(De(ClaseObjetivo::Asiento).size(), 3U);
}

TEST_F(Objetivos, ElRotuloDelAsientoSeDiceComoPalabra) {
    Elige(kBrisca, {{kOros, 5}});
    estado.RotuloSerie(2, 1) = "P a s o";
    EXPECT_EQ(Uno("Asiento de Luis").estado, "Paso");
}

TEST_F(Objetivos, CadaCartaSeTocaDondeEsElla) {
    const std::vector<Carta> diez{{kOros, 1},  {kOros, 2}, {kOros, 3},     {kOros, 4},
                                  {kOros, 5},  {kOros, 6}, {kOros, kSota}, {kOros, kRey},
                                  {kCopas, 1}, {kCopas, 2}};
    ManoEmpezada(4);
    for (Integer asiento = 1; asiento <= 4; ++asiento) {
        Boca(asiento, diez);
        estado.Mano(asiento, 1, 4, kAltura) = kLevantada;
    }
    int vistas = 0;
    for (const Objetivo& carta : De(ClaseObjetivo::CartaDeMano)) {
        DetectaJdorYCar(carta.toque.x, carta.toque.y);
        EXPECT_EQ(estado.AsientoBajoCursor, carta.asiento) << carta.nombre;
        EXPECT_EQ(estado.CartaBajoCursor, carta.lugar) << carta.nombre;
        ++vistas;
    }
    EXPECT_EQ(vistas, 40);
}

TEST_F(Objetivos, LoPropioVaPrimeroYDeIzquierdaADerecha) {
    Elige(kCinquillo, {{kOros, 6}, {kOros, 7}, {kOros, kSota}});
    Boca(2, {{kBastos, 1}});
    const std::vector<Objetivo> cartas = De(ClaseObjetivo::CartaDeMano);
    ASSERT_EQ(cartas.size(), 4U);
    EXPECT_EQ(cartas[3].asiento, 2);
    EXPECT_LT(cartas[0].donde.x, cartas[1].donde.x);
    EXPECT_LT(cartas[1].donde.x, cartas[2].donde.x);
    // Three of ten cards leave so much of each other to see, the last one is whole.
    EXPECT_EQ(cartas[0].donde.x + cartas[0].donde.ancho, cartas[1].donde.x);
    EXPECT_EQ(cartas[2].donde.ancho, kAnchoCarta);
}

TEST_F(Objetivos, TuteDiceElTriunfoYElCambioPorElSiete) {
    Juega(kTute);
    Desactiva({1, 3});
    PonMano(4, {{kBastos, 7}, {kOros, 2}});
    ManoEmpezada(4);
    Pinta({kBastos, kRey});
    estado.CartasEnMazo = 24;
    estado.EligeCarta = true;
    DibujarMazo(estado.MazoX, estado.MazoY, estado.CartasEnMazo);
    EXPECT_EQ(Dicho(Uno("Triunfo: Rey de Bastos")), "Triunfo: Rey de Bastos");
    EXPECT_EQ(Uno("Mazo").estado, "quedan 24 cartas");
    bazas.CartaCambio = 7;
    const Objetivo triunfo = Uno("Triunfo: Rey de Bastos");
    EXPECT_EQ(triunfo.estado, "se puede cambiar por el Siete");
    EXPECT_TRUE(triunfo.se_pulsa);
    Mueve(triunfo.toque.x, triunfo.toque.y);
    EXPECT_EQ(PunteroEnMesa(), Puntero::Cambiar);
}

TEST_F(Objetivos, SinMazoSeSigueDiciendoElPaloDeTriunfo) {
    Elige(kBrisca, {{kOros, 5}});
    Pinta({kCopas, kAs});
    estado.CartasEnMazo = 0;
    EXPECT_THAT(Dichos(ClaseObjetivo::Triunfo), ElementsAre());
    estado.JuegosJugados = 2;
    vista.nombres = true;
    PintaTanteo();
    EXPECT_THAT(Dichos(ClaseObjetivo::Rotulo),
                Contains(testing::StartsWith("Mano 2. Triunfo: Copas. Ana: 0 de ")));
}

TEST_F(Objetivos, LaBazaSeDiceEnElOrdenEnQueSeJugo) {
    Elige(kTute, {{kOros, 5}});
    estado.NumBaza = 1;
    EnMesa(2, {kOros, kAs});
    EnMesa(3, {kOros, kTres});
    EXPECT_THAT(Dichos(ClaseObjetivo::CartaDeMesa),
                ElementsAre("As de Oros, de Luis", "Tres de Oros, de Eva"));
}

TEST_F(Objetivos, PokerDiceQueSeDescartaYQueSeHaElegido) {
    Elige(kPoker, {{kOros, 1}, {kCopas, 1}, {kEspadas, 11}, {kBastos, 12}, {kComodin, 91}});
    apuestas.FaseApuesta = kFaseDescartes;
    estado.Mano(4, 1, 3, kAltura) = kLevantada;
    EXPECT_THAT(ManoDicha(4),
                ElementsAre("As de Diamantes, se puede descartar",
                            "As de Corazones, se puede descartar",
                            "Jota de Picas, elegida para descartar",
                            "Dama de Tréboles, se puede descartar", "Comodín, se puede descartar"));
    estado.NumDescartes = 3;
    EXPECT_THAT(Dichos(ClaseObjetivo::Rotulo), Contains("Montón de descartes"));
}

TEST_F(Objetivos, PokerEnLasApuestasSeTocanLasFichasYNoLasCartas) {
    Apuesta(kPoker);
    PonMano(4, {{kOros, 1}});
    EXPECT_FALSE(Uno("As de Diamantes").se_pulsa);
    const std::vector<Objetivo> fichas = De(ClaseObjetivo::Ficha);
    ASSERT_FALSE(fichas.empty());
    int puntos = 0;
    for (const Objetivo& ficha : fichas) {
        Mueve(ficha.toque.x, ficha.toque.y);
        EXPECT_EQ(estado.FichaBajoCursor, ficha.lugar) << ficha.nombre;
        EXPECT_EQ(ficha.estado, "tiene " + std::to_string(apuestas.Fichas(4, ficha.lugar)));
        puntos += ValorDe(ficha.lugar) * apuestas.Fichas(4, ficha.lugar);
    }
    EXPECT_EQ(puntos, 100);
    EXPECT_EQ(fichas.front().nombre, "Ficha de 1 punto");
    apuestas.ModoApuesta = false;
    EXPECT_TRUE(De(ClaseObjetivo::Ficha).empty());
}

TEST_F(Objetivos, PokerDiceElBoteYLoApostado) {
    Apuesta(kPoker);
    AsignarResto(0, 60);
    AsignarResto(1, 75);
    apuestas.Apuesta(1, 1, kFasePrimeraRonda) = 25;
    EXPECT_THAT(Dichos(ClaseObjetivo::Rotulo), Contains("Bote, 60 puntos"));
    EXPECT_EQ(Uno("Asiento de Ana").estado, "tiene 75 puntos, apuesta 25");
}

TEST_F(Objetivos, LaApostadoraSeDiceConSusBotonesYCifras) {
    Apuesta(kPoker);
    apuestas.MaximaApuesta = 40;
    MuestraApostadora();
    const Textos botones = Dichos(ClaseObjetivo::Boton);
    EXPECT_THAT(botones, Contains("No voy"));
    EXPECT_THAT(botones, Contains("Igualar a 40"));
    const Textos rotulos = Dichos(ClaseObjetivo::Rotulo);
    EXPECT_THAT(rotulos, Contains("Apuesta de Iñigo"));
    EXPECT_THAT(rotulos, Contains("Apuesta actual: 0"));
    EXPECT_THAT(rotulos, Contains("Acumulado: 0"));
}

TEST_F(Objetivos, BlackJackDiceAbrirLosTantosYLaSerie) {
    Elige(kBlackJack, {{kOros, 8}, {kCopas, 8}});
    apuestas.FaseApuesta = kFaseJuego;
    estado.SeriesJugador(4) = 1;
    series.PuedeAbrir = true;
    EXPECT_THAT(ManoDicha(4), ElementsAre("Ocho de Diamantes, se puede abrir",
                                          "Ocho de Corazones, se puede abrir"));
    MostrarPuntos(4);
    EXPECT_THAT(Dichos(ClaseObjetivo::Rotulo), Contains("Puntos de Iñigo: 16"));
    estado.SeriesJugador(4) = 2;
    EXPECT_THAT(Uno("Asiento de Iñigo").estado, testing::HasSubstr("serie 1 de 2, 2 cartas"));
    series = {};
}

TEST_F(Objetivos, BlackJackDiceLaBancaYQuienSeHaPasado) {
    Elige(kBlackJack, {{kOros, 8}});
    estado.JugadorBanca = 2;
    AsignarResto(3, 50);
    apuestas.Apuesta(3, 1, kFaseApuestas) = 10;
    estado.SerieTerminada(3, 1) = true;
    EXPECT_THAT(Uno("Asiento de Luis").estado, testing::HasSubstr("es la banca"));
    EXPECT_EQ(Uno("Asiento de Eva").estado, "tiene 50 puntos, apuesta 10, se ha pasado");
}

TEST_F(Objetivos, SieteYMediaDiceLaTapadaPropiaYNoLaAjena) {
    Elige(kSieteYMedia, {{kOros, 6}});
    apuestas.FaseApuesta = kFaseJuego;
    estado.Mano(4, 1, 1, kTapada) = 1;
    PonSerieTapada(1, 1, {{kCopas, 4}, {kCopas, 2}});
    EXPECT_THAT(ManoDicha(4), ElementsAre("Seis de Oros, tapada, se puede volver"));
    EXPECT_THAT(ManoDicha(1), ElementsAre("Dos de Copas"));
    series.PuedeCambiarCuatro = true;
    EXPECT_THAT(ManoDicha(4), ElementsAre("Seis de Oros, tapada, se puede cambiar"));
    series = {};
}

TEST_F(Objetivos, LosBotonesDiceSiEstanDisponibles) {
    HabilitaBoton(kBotonTutor, false);
    const Textos botones = Dichos(ClaseObjetivo::Boton);
    EXPECT_THAT(botones, ElementsAre("Nueva partida", "Normas, no disponible", "Personalizar",
                                     "Estadísticas, no disponible", "Tutor de juego, no disponible",
                                     "Marcador", "Ayuda", "Salir"));
    EXPECT_FALSE(Uno("Tutor de juego").se_pulsa);
    EXPECT_TRUE(Uno("Ayuda").se_pulsa);
}

TEST_F(Objetivos, ElBotonVerdeVaAntesQueLosPrincipales) {
    Elige(kBrisca, {{kOros, 5}});
    PedirContinuar(1);
    p.UsaLienzosRegistrados();
    PedirContinuar(1);
    EXPECT_EQ(Dichos(ClaseObjetivo::Boton).front(),
              "Iñigo automático: el programa juega por este jugador");
    estado.EsperandoJugada = false;
    EXPECT_EQ(Dichos(ClaseObjetivo::Boton).front(),
              "Iñigo automático: el programa juega por este jugador, no disponible");
}

TEST_F(Objetivos, LaSugerenciaSeDiceSinBlancosDeRelleno) {
    Elige(kPoker, {{kOros, 5}});
    CargaSugerencias();
    estado.VentanaInfo = 1;
    MostrarSugerencia(10);
    EXPECT_EQ(Uno("Sugerencia").estado,
              "Si desea que el programa realize su descarte de forma automática pulse el botón "
              "verde situado en la parte inferior derecha.");
    EXPECT_THAT(Dichos(ClaseObjetivo::Boton), Contains("Más ayuda"));
}

TEST_F(Objetivos, ElMenuDiceSusRenglonesYLaMarca) {
    Elige(kBrisca, {{kOros, 5}});
    const Punto carta = SobreCarta(4, 1);
    Clic(carta.x, carta.y, 2);
    EXPECT_THAT(Dichos(ClaseObjetivo::Opcion),
                ElementsAre("Ordenar cartas manualmente", "Ordenar cartas automáticamente"));
    const Objetivo primera = De(ClaseObjetivo::Opcion)[0];
    DespachaEvento({.tipo = TipoEvento::RatonMueve,
                    .control = primera.control,
                    .x = primera.toque.x,
                    .y = primera.toque.y});
    EXPECT_EQ(estado.OpcionResaltada, 1);
    estado.ModoOrdenar = true;
    EXPECT_EQ(Dichos(ClaseObjetivo::Opcion)[0], "Ordenar cartas manualmente, marcada");
    EXPECT_THAT(ManoDicha(4), ElementsAre("Cinco de Oros, se puede mover"));
}

TEST_F(Objetivos, ElRepartoAManoDiceLasCartasYAQuienDarlas) {
    Juega(kBrisca);
    estado.SistemaReparto = kRepartoManual;
    estado.PartidaEnCurso = true;
    ASSERT_FALSE(RepartirAMano());
    estado.PartidaEnCurso = estado.RepartoEnCurso = true;
    EXPECT_EQ(De(ClaseObjetivo::CartaDeReparto).size(), 40U);
    const Objetivo sota = Uno("Sota de Copas");
    EXPECT_TRUE(sota.se_pulsa);
    EXPECT_FALSE(Uno("Asiento de Ana").se_pulsa);
    Mueve(sota.toque.x, sota.toque.y);
    Aprieta(sota.toque.x, sota.toque.y);
    EXPECT_EQ(Uno("Sota de Copas").estado, "en la mano");
    const Objetivo ana = Uno("Asiento de Ana");
    EXPECT_TRUE(ana.se_pulsa);
    Mueve(ana.toque.x, ana.toque.y);
    EXPECT_EQ(ManoDe(1), (std::vector<Carta>{{kCopas, kSota}}));
    EXPECT_THAT(ManoDicha(1), ElementsAre("Sota de Copas, se puede devolver"));
    EXPECT_EQ(De(ClaseObjetivo::CartaDeReparto).size(), 39U);
}

TEST_F(Objetivos, LasCartasDelSorteoSeDicenDeQuienSon) {
    vista.sorteada(3) = {.palo = kEspadas, .valor = kRey, .cara = kDescubierta, .orientacion = 4};
    EXPECT_THAT(Dichos(ClaseObjetivo::CartaDeMesa), ElementsAre("Rey de Espadas, de Eva"));
    vista.sorteada(3).cara = kDorso;
    EXPECT_THAT(Dichos(ClaseObjetivo::CartaDeMesa), ElementsAre("Carta tapada, de Eva"));
    LimpiarMesa();
}

TEST_F(Objetivos, MirarNoCambiaNada) {
    Elige(kTute, {{kOros, 5}, {kOros, 6}});
    Pinta({kCopas, kAs});
    estado.CartasEnMazo = 12;
    const EstadoJuego antes = estado;
    EmpiezaTraza();
    EXPECT_FALSE(ObjetivosDeLaMesa().empty());
    EXPECT_TRUE(estado == antes);
    EXPECT_THAT(traza, ElementsAre());
}

TEST_F(Objetivos, SinJuegoEnLaMesaNoHayNada) {
    estado.JuegoActivo = 0;
    EXPECT_TRUE(ObjetivosDeLaMesa().empty());
}
