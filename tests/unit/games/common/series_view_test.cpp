// The cards of the games with a bank under the mouse: a covered card may be turned.

#include "betting/bet_state.h"
#include "games/common/series_view.h"

#include <gtest/gtest.h>

#include "betting/chips.h"
#include "table/game_row.h"
#include "tests/support/live_table.h"

using namespace prueba;

namespace {

struct MesaDeSeries : MesaViva {
    // Seat 4 on its turn, its first card covered.
    void Turno(Integer juego, const std::vector<Carta>& mano) {
        Juega(juego);
        estado.JugadorBanca = 2;
        PonMano(4, mano);
        estado.Mano(4, 1, 1, kTapada) = 1;
        ManoEmpezada(4);
        estado.EligeCarta = true;
        estado.EsperandoJugada = true;
    }
    Puntero Sobre(int lugar) {
        const Punto carta = SobreCarta(4, lugar);
        Mueve(carta.x, carta.y);
        return PunteroEnMesa();
    }
    void Clica(int lugar) {
        const Punto carta = SobreCarta(4, lugar);
        Clic(carta.x, carta.y);
    }
};

} // namespace

TEST_F(MesaDeSeries, SoloLaCartaTapadaSePuedeVoltear) {
    Turno(kSieteYMedia, {{kOros, 5}, {kCopas, 1}});
    EXPECT_EQ(Sobre(1), Puntero::Voltear);
    EXPECT_EQ(Sobre(2), Puntero::Flecha);
    apuestas.ModoApuesta = true;
    EXPECT_EQ(Sobre(1), Puntero::Flecha);
}

TEST_F(MesaDeSeries, UnClicEnLaTapadaLaDescubreYElTurnoSigue) {
    Turno(kSieteYMedia, {{kOros, 5}, {kCopas, 1}});
    EmpiezaTraza();
    Clica(1);
    EXPECT_EQ(estado.Mano(4, 1, 1, kTapada), 0);
    EXPECT_TRUE(estado.EsperandoJugada);
    EXPECT_EQ(TrazaDe("Sonido"), std::vector<std::string>{"Sonido(0, 25)"});
    EXPECT_EQ(TrazaDe("RedibujarAsiento"), std::vector<std::string>{"RedibujarAsiento(4)"});
}

TEST_F(MesaDeSeries, ConSieteYMediaElTurnoAcabaAlVoltear) {
    Turno(kSieteYMedia, {{kOros, 7}, {kCopas, kSota}});
    Clica(1);
    EXPECT_FALSE(estado.EsperandoJugada);
}

TEST_F(MesaDeSeries, UnClicEnUnaCartaAbiertaNoHaceNada) {
    Turno(kSieteYMedia, {{kOros, 7}, {kCopas, kSota}});
    Clica(2);
    EXPECT_TRUE(estado.EsperandoJugada);
    EXPECT_EQ(estado.Mano(4, 1, 1, kTapada), 1);
    EXPECT_EQ(estado.CartaElegida, 0);
}

TEST_F(MesaDeSeries, EnElBlackJackUnClicEnLasCartasNoEsUnaJugada) {
    Turno(kBlackJack, {{kOros, 7}, {kCopas, 9}});
    estado.Mano(4, 1, 1, kTapada) = 0;
    EXPECT_EQ(Sobre(2), Puntero::Flecha);
    Clica(2);
    EXPECT_TRUE(estado.EsperandoJugada);
}

TEST_F(MesaDeSeries, EnElBlackJackLaBancaTomaUnaSolaCartaYQuienNoTieneRestoNinguna) {
    Juega(kBlackJack);
    estado.JugadorBanca = 2;
    for (int asiento : {1, 2, 3})
        AsignarResto(asiento, 50);
    AsignarResto(4, 0);
    const FilaJuego& juego = JuegoEnMesa();
    EXPECT_TRUE(juego.reparto.recibe(1, true));
    EXPECT_FALSE(juego.reparto.recibe(4, true));
    EXPECT_TRUE(juego.reparto.recibe(2, true));
    estado.NumCartas(2, 1) = 1;
    estado.NumCartas(1, 1) = 1;
    EXPECT_FALSE(juego.reparto.recibe(2, true));
    EXPECT_TRUE(juego.reparto.recibe(1, true));
}
