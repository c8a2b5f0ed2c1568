// What the table asks of Póker: the mixing of the discards, the cards raised to be thrown away.

#include <gtest/gtest.h>

#include "betting/bet_state.h"
#include "core/random.h"
#include "table/deal.h"
#include "table/game_row.h"
#include "table/layout.h"
#include "tests/support/live_table.h"

using namespace prueba;

namespace {

struct MesaDePoker : MesaViva {
    // 32 cards, the Siete the lowest but for the As.
    MesaDePoker() {
        estado.CartasBaraja = 6;
        Juega(kPoker);
        estado.PartidaEnCurso = true;
    }
    static void PonEnBaraja(int lugar, const Carta& carta) {
        estado.Baraja(lugar, 1) = carta.palo;
        estado.Baraja(lugar, 2) = carta.valor;
    }
    static void Descarta(const Carta& carta) {
        ++estado.NumDescartes;
        estado.Descartes(estado.NumDescartes, 1) = carta.palo;
        estado.Descartes(estado.NumDescartes, 2) = carta.valor;
    }
    static Carta Descarte(int i) { return {estado.Descartes(i, 1), estado.Descartes(i, 2)}; }
    // Two cards are left; four discards of other seats lie there, and three of seat 1, which holds two cards.
    void QuedanDos() {
        PonMano(1, {{kBastos, 1}, {kBastos, 7}});
        PonEnBaraja(31, {kCopas, 8});
        PonEnBaraja(32, {kCopas, 9});
        estado.PosicionMazo = 31;
        estado.CartasEnMazo = 2;
        for (const Integer valor : std::initializer_list<Integer>{7, 8, 9, 10})
            Descarta({kOros, valor});
        for (const Integer valor : std::initializer_list<Integer>{11, 12, 13})
            Descarta({kEspadas, valor});
    }
};

} // namespace

TEST_F(MesaDePoker, LoQueFaltaEnElMazoSaleDeLosDescartesAnteriores) {
    QuedanDos();
    EncolaAzar({0.0, 0.25, 0.5, 0.75});
    RobarCartas(1, 3, 0);
    ASSERT_EQ(p.mensajes.size(), 1U);
    EXPECT_EQ(p.mensajes[0].titulo, "Mezclar cartas descartadas");
    EXPECT_EQ(p.mensajes[0].lineas, 3);
    EXPECT_EQ(p.mensajes[0].modo, 1);
    EXPECT_EQ(ManoDe(1), (std::vector<Carta>{
                             {kBastos, 1}, {kBastos, 7}, {kCopas, 8}, {kCopas, 9}, {kOros, 7}}));
    EXPECT_EQ(estado.CartasEnMazo, 3);
    EXPECT_EQ(estado.PosicionMazo, 34);
}

TEST_F(MesaDePoker, LosDescartesDelPropioAsientoNoSeMezclanYQuedanEnElMontonNuevo) {
    QuedanDos();
    RobarCartas(1, 3, 0);
    EXPECT_EQ(estado.NumDescartes, 3);
    EXPECT_EQ(Descarte(1), (Carta{kEspadas, 11}));
    EXPECT_EQ(Descarte(2), (Carta{kEspadas, 12}));
    EXPECT_EQ(Descarte(3), (Carta{kEspadas, 13}));
}

TEST_F(MesaDePoker, UnaSegundaMezclaNoRepiteNingunaCarta) {
    QuedanDos();
    EncolaAzar({0.0, 0.25, 0.5, 0.75});
    RobarCartas(1, 3, 0);
    // Seat 2 throws five away: three cards are left, and the three of seat 1 may be mixed by now.
    for (const Integer valor : std::initializer_list<Integer>{9, 10, 11, 12, 13})
        Descarta({kBastos, valor});
    EncolaAzar({0.0, 0.34, 0.67});
    RobarCartas(2, 5, 0);
    EXPECT_EQ(ManoDe(2), (std::vector<Carta>{
                             {kOros, 8}, {kOros, 9}, {kOros, 10}, {kEspadas, 11}, {kEspadas, 12}}));
    EXPECT_EQ(estado.CartasEnMazo, 1);
    EXPECT_EQ(estado.NumDescartes, 5);
    EXPECT_EQ(Descarte(1), (Carta{kBastos, 9}));
}

TEST_F(MesaDePoker, UnClicLevantaLaCartaYOtroLaBaja) {
    p.UsaLienzosRegistrados();
    PonMano(4, {{kOros, 7}, {kOros, 8}, {kOros, 9}, {kCopas, 1}, {kCopas, 9}});
    ManoEmpezada(4);
    apuestas.FaseApuesta = 4;
    estado.EligeCarta = true;
    estado.EsperandoJugada = true;
    const Punto carta = SobreCarta(4, 2);
    Clic(carta.x, carta.y);
    EXPECT_EQ(estado.Mano(4, 1, 2, kAltura), kLevantada);
    EXPECT_TRUE(estado.JugadaHecha);
    EXPECT_TRUE(estado.EsperandoJugada);
    EXPECT_EQ(p.Tablero().NombreDe({Control::Pic_BotContinuar, 0}), "Descartar elegidas");
    Clic(carta.x, carta.y);
    EXPECT_EQ(estado.Mano(4, 1, 2, kAltura), kEnLinea);
    EXPECT_EQ(p.Tablero().NombreDe({Control::Pic_BotContinuar, 0}),
              "Jugador4 automático: el programa juega por este jugador");
}

TEST_F(MesaDePoker, EnLasApuestasUnClicNoLevantaNada) {
    PonMano(4, {{kOros, 7}, {kOros, 8}, {kOros, 9}, {kCopas, 1}, {kCopas, 9}});
    ManoEmpezada(4);
    estado.EligeCarta = true;
    apuestas.ModoApuesta = true;
    const Punto carta = SobreCarta(4, 2);
    Clic(carta.x, carta.y);
    EXPECT_EQ(estado.Mano(4, 1, 2, kAltura), kEnLinea);
    EXPECT_EQ(PunteroEnMesa(), Puntero::Flecha);
}
