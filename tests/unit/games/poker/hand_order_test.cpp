// The hand in the order in which it is read.

#include "games/poker/hand_layout.h"
#include "games/poker/hand_order.h"

#include <gtest/gtest.h>

#include "games/poker/hand_reading.h"
#include "games/poker/poker_state.h"
#include "table/deck.h"
#include "tests/support/live_table.h"

using namespace prueba;

namespace {

struct OrdenDeLaMano : MesaViva {
    OrdenDeLaMano() {
        estado.ComodinesJuego = 3;
        estado.CartasBaraja = 1;
        Juega(kPoker);
    }
    static std::vector<int> Ordenada(Integer categoria) {
        AnalizaJugada(1);
        OrdenaJugada(1, categoria);
        std::vector<int> valores;
        for (int i = 1; i <= 5; ++i)
            valores.push_back(poker.JugadaOrdenada(i, 2));
        return valores;
    }
    static std::vector<int> Valores(Integer asiento) {
        std::vector<int> valores;
        for (const Carta& carta : ManoDe(asiento))
            valores.push_back(carta.valor);
        return valores;
    }
};

using Lista = std::vector<int>;

} // namespace

TEST_F(OrdenDeLaMano, LaParejaSeEnsenaDelanteYLasSueltasDeMayorAMenor) {
    PonMano(1, {{1, 3}, {2, 1}, {3, 9}, {4, 13}, {2, 9}});
    EXPECT_EQ(Ordenada(poker.Pareja), (Lista{9, 9, 1, 13, 3}));
    EXPECT_EQ(poker.CartasClave, 2);
}

TEST_F(OrdenDeLaMano, ElComodinDelFullVaEnElTercerSitio) {
    PonMano(1, {{5, 91}, {1, 3}, {2, 9}, {3, 9}, {4, 3}});
    EXPECT_EQ(Ordenada(poker.Full), (Lista{9, 9, 91, 3, 3}));
    EXPECT_EQ(poker.CartasClave, 5);
}

TEST_F(OrdenDeLaMano, ElSegundoComodinDelTrioEsUnaCartaSuelta) {
    PonMano(1, {{5, 91}, {1, 9}, {5, 92}, {2, 9}, {4, 3}});
    EXPECT_EQ(Ordenada(poker.Trio), (Lista{9, 9, 91, 92, 3}));
}

TEST_F(OrdenDeLaMano, UnProyectoDeColorSoloTomaCartasDeSuPalo) {
    PonMano(1, {{2, 9}, {1, 2}, {1, 9}, {1, 13}, {1, 5}});
    EXPECT_EQ(Ordenada(poker.ProyColor), (Lista{13, 9, 5, 2, 9}));
    EXPECT_EQ(poker.JugadaOrdenada(2, 1), 1);
    EXPECT_EQ(poker.JugadaOrdenada(5, 1), 2);
    EXPECT_EQ(poker.CartasClave, 4);
}

TEST_F(OrdenDeLaMano, OrdenarLaManoAdelantaLaJugadaConTodosSusCampos) {
    PonMano(4, {{1, 8}, {2, 8}, {3, 2}, {4, 8}, {3, 8}});
    estado.Mano(4, 1, 5, kAltura) = kLevantada;
    OrdenarMano(4);
    EXPECT_EQ(Valores(4), (Lista{8, 8, 8, 8, 2}));
    EXPECT_EQ(estado.Mano(4, 1, 4, kAltura), kLevantada);
}

TEST_F(OrdenDeLaMano, LaDobleParejaVaDeLaMayorALaMenor) {
    PonMano(4, {{1, 4}, {2, 13}, {3, 7}, {4, 4}, {3, 13}});
    OrdenaCartasSeat(4);
    EXPECT_EQ(Valores(4), (Lista{13, 13, 4, 4, 7}));
}

TEST_F(OrdenDeLaMano, LaEscaleraVaDeArribaAbajoConElComodinEnSuSitio) {
    PonMano(4, {{5, 92}, {1, 6}, {2, 9}, {3, 8}, {4, 5}});
    OrdenaCartasSeat(4);
    EXPECT_EQ(Valores(4), (Lista{9, 8, 92, 6, 5}));
}

TEST_F(OrdenDeLaMano, LaManoSeVuelveADibujar) {
    PonMano(4, {{1, 4}, {2, 13}, {3, 7}, {4, 4}, {3, 13}});
    EmpiezaTraza();
    OrdenaCartasSeat(4);
    EXPECT_FALSE(TrazaDe("RedibujarAsiento").empty());
}
