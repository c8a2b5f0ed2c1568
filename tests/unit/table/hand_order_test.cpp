// Putting a hand in order by mouse.

#include "table/hand_order.h"
#include "table/whole_table.h"

#include <gtest/gtest.h>

#include "core/session_state.h"
#include "games/cinquillo/cinquillo_choice.h"
#include "games/common/card_turn.h"
#include "games/common/trick_state.h"
#include "session/main_buttons.h"
#include "tests/support/live_table.h"

using namespace prueba;

namespace {

// A hand of one suit, known by its numbers.
std::vector<Carta> Oros(std::initializer_list<Integer> valores) {
    std::vector<Carta> cartas;
    for (Integer valor : valores)
        cartas.emplace_back(kOros, valor);
    return cartas;
}

struct Ordenar : MesaViva {
    Ordenar() {
        PonMano(4, Oros({1, 2, 3, 4, 5, 6, 7, 10, 11, 12}));
        ManoEmpezada(4);
        estado.ModoOrdenar = true;
        estado.EsperandoJugada = true;
    }
    void Toma(Integer asiento, int lugar) {
        const Punto carta = SobreCarta(asiento, lugar);
        Mueve(carta.x, carta.y);
        Aprieta(carta.x, carta.y);
    }
    void Lleva(Integer asiento, int lugar, const Punto& destino) {
        Toma(asiento, lugar);
        Mueve(destino.x, destino.y);
        Suelta(destino.x, destino.y);
    }
    // The middle of the small card that follows the pointer.
    Punto Medio() {
        const Rectangulo mover = p.Tablero().LugarDe({Control::Pic_Mover, 0});
        return {mover.x + mover.ancho / 2, mover.y + mover.alto / 2};
    }
    Punto MedioEn(int x, int y) {
        Mueve(x, y);
        return Medio();
    }
};

} // namespace

TEST_F(Ordenar, HaciaDelanteLaCartaOcupaElLugarDondeSeSuelta) {
    Lleva(4, 3, SobreCarta(4, 7));
    EXPECT_EQ(ManoDe(4), Oros({1, 2, 4, 5, 6, 7, 3, 10, 11, 12}));
    EXPECT_EQ(estado.NumCartas(4, 1), 10);
}

TEST_F(Ordenar, HaciaAtrasQuedaDetrasDeLaCartaDondeSeSuelta) {
    Lleva(4, 7, SobreCarta(4, 3));
    EXPECT_EQ(ManoDe(4), Oros({1, 2, 3, 7, 4, 5, 6, 10, 11, 12}));
}

// The pointer may leave the band in which the card is held. The click that ends the drag began on the hand.
TEST_F(Ordenar, SoltarlaConElPunteroEnElFieltroNoDejaDeOrdenar) {
    Lleva(4, 3, {355, 300});
    DespachaEvento({.tipo = TipoEvento::RatonClic, .x = 355, .y = 300});
    EXPECT_NE(ManoDe(4), Oros({1, 2, 3, 4, 5, 6, 7, 10, 11, 12}));
    EXPECT_TRUE(estado.ModoOrdenar);
}

TEST_F(Ordenar, FueraDeLasCartasVaLaPrimera) {
    Lleva(4, 7, {300, 590}); // below the cards, still in the band
    EXPECT_EQ(ManoDe(4), Oros({7, 1, 2, 3, 4, 5, 6, 10, 11, 12}));
}

TEST_F(Ordenar, EnSuPropioLugarNoCambiaNada) {
    Lleva(4, 5, SobreCarta(4, 5));
    EXPECT_EQ(ManoDe(4), Oros({1, 2, 3, 4, 5, 6, 7, 10, 11, 12}));
    EXPECT_FALSE(estado.ArrastraCarta);
}

TEST_F(Ordenar, SobreLaVecinaDeAntesTampoco) {
    Lleva(4, 5, SobreCarta(4, 4));
    EXPECT_EQ(ManoDe(4), Oros({1, 2, 3, 4, 5, 6, 7, 10, 11, 12}));
}

TEST_F(Ordenar, LaCartaLlevaTodosSusCampos) {
    estado.Mano(4, 1, 3, kAltura) = kLevantada;
    estado.Mano(4, 1, 3, kTapada) = 1;
    const Punto destino = SobreCarta(4, 9);
    const Punto carta = SobreCarta(4, 3);
    Mueve(carta.x, carta.y);
    Aprieta(carta.x, carta.y);
    Mueve(destino.x, destino.y);
    Suelta(destino.x, destino.y);
    EXPECT_EQ(estado.Mano(4, 1, 9, kValor), 3);
    EXPECT_EQ(estado.Mano(4, 1, 9, kAltura), kLevantada);
    EXPECT_EQ(estado.Mano(4, 1, 9, kTapada), 1);
    EXPECT_EQ(estado.Mano(4, 1, 3, kAltura), kEnLinea);
}

TEST_F(Ordenar, MientrasSeLlevaFaltaDeLaManoYVaConElPuntero) {
    p.UsaLienzosRegistrados();
    Toma(4, 3);
    EXPECT_TRUE(estado.ArrastraCarta);
    EXPECT_EQ(estado.CartaMovida, 3);
    EXPECT_EQ(PunteroEnMesa(), Puntero::ManoCerrada);
    EXPECT_TRUE(p.EstaVisible(Control::Pic_Mover, 0));
    EXPECT_EQ(MedioEn(300, 520), (Punto{300, 520}));
    Suelta(300, 520);
    EXPECT_FALSE(p.EstaVisible(Control::Pic_Mover, 0));
}

TEST_F(Ordenar, SuenaAlTomarlaYAlSoltarla) {
    estado.SonidoActivo = true;
    Lleva(4, 3, SobreCarta(4, 7));
    EXPECT_EQ(p.sonidos, (std::vector<SonidoPedido>{{24, false}, {25, true}}));
}

TEST_F(Ordenar, AlSoltarlaSePintanLosAsientosQueJuegan) {
    estado.EstadoJugador(2) = kDesactivado;
    Toma(4, 3);
    const Punto destino = SobreCarta(4, 7);
    Mueve(destino.x, destino.y);
    EmpiezaTraza();
    Suelta(destino.x, destino.y);
    EXPECT_EQ(TrazaDe("RedibujarAsiento"),
              (std::vector<std::string>{"RedibujarAsiento(1)", "RedibujarAsiento(3)",
                                        "RedibujarAsiento(4)"}));
}

TEST_F(Ordenar, NoSaleDeLaBandaDelAsientoCuatro) {
    Toma(4, 3);
    EXPECT_EQ(MedioEn(0, 0), (Punto{248, 494}));     // 230 + 18, 438 + 56
    EXPECT_EQ(MedioEn(709, 599), (Punto{466, 590})); // 480 - 14, 599 - 9
}

TEST_F(Ordenar, NoSaleDeLaBandaDeLosDemas) {
    for (Integer asiento = 1; asiento <= 3; ++asiento) {
        estado.CartasJugador(asiento) = kVisibles;
        PonMano(asiento, {{kCopas, 1}, {kCopas, 2}});
    }
    Toma(1, 1);
    EXPECT_EQ(MedioEn(0, 0), (Punto{15, 214}));      // 175 + 39
    EXPECT_EQ(MedioEn(709, 599), (Punto{129, 414})); // 160 - 31, 425 - 11
    Suelta(129, 414);
    Toma(2, 1);
    EXPECT_EQ(MedioEn(0, 0), (Punto{248, 35}));
    EXPECT_EQ(MedioEn(709, 599), (Punto{466, 131})); // 160 - 29
    Suelta(466, 131);
    Toma(3, 1);
    EXPECT_EQ(MedioEn(0, 0), (Punto{584, 212})); // 549 + 35, 175 + 37
    EXPECT_EQ(MedioEn(709, 599), (Punto{675, 413}));
    Suelta(675, 413);
}

TEST_F(Ordenar, TambienLaManoVisibleDeOtroAsiento) {
    estado.CartasJugador(2) = kVisibles;
    PonMano(2, {{kCopas, 1}, {kCopas, 2}, {kCopas, 3}});
    Lleva(2, 1, SobreCarta(2, 3));
    EXPECT_EQ(ManoDe(2), (std::vector<Carta>{{kCopas, 2}, {kCopas, 3}, {kCopas, 1}}));
    EXPECT_EQ(ManoDe(4), Oros({1, 2, 3, 4, 5, 6, 7, 10, 11, 12}));
}

TEST_F(Ordenar, UnaManoOcultaNoSeToca) {
    PonMano(1, {{kCopas, 1}, {kCopas, 2}});
    Toma(1, 1);
    EXPECT_FALSE(estado.ArrastraCarta);
}

TEST_F(Ordenar, UnaCartaQueSeOrdenaNoSeJuega) {
    estado.EligeCarta = true;
    Clic(SobreCarta(4, 5).x, SobreCarta(4, 5).y);
    EXPECT_FALSE(estado.JugadaHecha);
    EXPECT_TRUE(estado.EsperandoJugada);
}

TEST_F(Ordenar, LoJugableSigueALaCarta) {
    EligeCartaCinquillo(); // of this hand only the 5 may be laid
    EXPECT_TRUE(LugarJugable(5));
    Lleva(4, 5, SobreCarta(4, 10));
    EXPECT_FALSE(LugarJugable(5));
    EXPECT_TRUE(LugarJugable(10));
    EXPECT_EQ(estado.CartaElegida, 10);
}

TEST_F(Ordenar, FueraDelTurnoLoElegidoNoCambia) {
    estado.CartasJugador(2) = kVisibles;
    PonMano(2, {{kCopas, 5}, {kCopas, 2}, {kCopas, 3}});
    EligeCartaCinquillo();
    Lleva(2, 1, SobreCarta(2, 3));
    EXPECT_EQ(bazas.NumJugables, 1);
    EXPECT_EQ(estado.CartaElegida, 5);
}

TEST_F(Ordenar, UnBotonDevuelveLaCartaASuLugar) {
    Toma(4, 3);
    Mueve(400, 520);
    PulsaBoton(kBotonAyuda);
    EXPECT_FALSE(estado.ArrastraCarta);
    EXPECT_FALSE(estado.ModoOrdenar);
    EXPECT_FALSE(p.EstaVisible(Control::Pic_Mover, 0));
    EXPECT_EQ(ManoDe(4), Oros({1, 2, 3, 4, 5, 6, 7, 10, 11, 12}));
    Suelta(400, 520);
    EXPECT_EQ(ManoDe(4), Oros({1, 2, 3, 4, 5, 6, 7, 10, 11, 12}));
}

TEST_F(Ordenar, ElBotonVerdeTambienLaDevuelve) {
    Toma(4, 3);
    PulsaContinuar();
    EXPECT_FALSE(estado.ArrastraCarta);
    EXPECT_EQ(ManoDe(4), Oros({1, 2, 3, 4, 5, 6, 7, 10, 11, 12}));
}

TEST_F(Ordenar, AlPintarTodoDeNuevoLaCartaQueSeLlevaTambien) {
    p.UsaLienzosRegistrados();
    Toma(4, 3);
    p.Dibujado(Control::Pic_Mover).Olvida();
    RedibujarMesa();
    EXPECT_EQ(
        p.Dibujado(Control::Pic_Mover).Llamadas(),
        (std::vector<std::string>{"MiniCarta(0, 0, 26, 36; palo 1 valor 3 cara 2 orientación 1)"}));
}

TEST_F(Ordenar, AlSoltarElPunteroDiceEnseguidaQueHayDebajo) {
    Lleva(4, 3, SobreCarta(4, 7));
    EXPECT_EQ(PunteroEnMesa(), Puntero::Ordenar);
}

TEST_F(Ordenar, AlDejarloElPunteroDejaDeOfrecerlo) {
    const Punto carta = SobreCarta(4, 3);
    Mueve(carta.x, carta.y);
    ASSERT_EQ(PunteroEnMesa(), Puntero::Ordenar);
    CierraEleccion();
    EXPECT_NE(PunteroEnMesa(), Puntero::Ordenar);
}
