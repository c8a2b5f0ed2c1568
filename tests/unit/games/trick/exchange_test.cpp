#include "games/common/trick_state.h"
#include "games/trick/exchange.h"

#include <gtest/gtest.h>

#include <memory>

#include "table/messages.h"
#include "tests/support/live_table.h"
#include "tests/support/trick_table.h"

using namespace prueba;

namespace {

// Seat 4 holds these cards, has won the last trick and is on turn with a large stock.
struct Cambio : testing::Test {
    void Juega(Integer juego, Integer jugadores, Carta pinta, const std::vector<Carta>& mano) {
        if (mesa == nullptr || estado.JuegoActivo != juego || estado.NumJugadores != jugadores)
            mesa = std::make_unique<MesaDeTrick>(juego, jugadores);
        const Integer asiento = jugadores == 3 ? 3 : 4;
        Pinta(pinta);
        PonMano(asiento, mano);
        estado.CartasEnMazo = 20;
        estado.GanadorBaza = asiento;
        TocaA(asiento);
    }
    static Integer Mira() {
        MiraCambio();
        return bazas.CartaCambio;
    }
    std::unique_ptr<MesaDeTrick> mesa;
};

} // namespace

TEST_F(Cambio, UnaQuePintaSinTantosLaTomaElDos) {
    Juega(kTute, 2, {kBastos, 5}, {{kBastos, 2}, {kBastos, 7}});
    EXPECT_EQ(Mira(), 2);
}

TEST_F(Cambio, UnSieteVueltoLoTomaElDos) {
    Juega(kBrisca, 2, {kBastos, 7}, {{kBastos, 2}});
    EXPECT_EQ(Mira(), 2);
}

TEST_F(Cambio, UnDosVueltoNoLoTomaNadie) {
    Juega(kBrisca, 2, {kBastos, 2}, {{kBastos, 7}, {kBastos, 4}, {kBastos, kAs}});
    EXPECT_EQ(Mira(), 0);
}

TEST_F(Cambio, UnaConTantosLaTomaElSiete) {
    for (const Integer valor : {kAs, kTres, kRey, kCaballo, kSota}) {
        Juega(kTute, 2, {kBastos, valor}, {{kBastos, 2}, {kBastos, 7}});
        EXPECT_EQ(Mira(), 7) << valor;
        Juega(kTute, 2, {kBastos, valor}, {{kBastos, 2}, {kOros, 7}});
        EXPECT_EQ(Mira(), 0) << valor;
    }
}

TEST_F(Cambio, EnBriscaDeTresHaceDeBajaElCuatro) {
    Juega(kBrisca, 3, {kBastos, 6}, {{kBastos, 4}});
    EXPECT_EQ(Mira(), 4);
}

TEST_F(Cambio, EnBriscaDeTresUnCuatroVueltoNoLoTomaNadie) {
    Juega(kBrisca, 3, {kBastos, 4}, {{kBastos, 7}, {kBastos, 5}, {kBastos, kAs}});
    EXPECT_EQ(Mira(), 0);
}

TEST_F(Cambio, SoloQuienGanoLaUltimaBaza) {
    Juega(kTute, 2, {kBastos, 5}, {{kBastos, 2}});
    estado.GanadorBaza = 2;
    EXPECT_EQ(Mira(), 0);
    estado.GanadorBaza = 0; // the first trick of a match
    EXPECT_EQ(Mira(), 0);
}

TEST_F(Cambio, QuienGanoLaBazaCambiaAunqueNoSalga) {
    Juega(kTute, 2, {kBastos, 5}, {{kBastos, 2}});
    EnMesa(2, {kOros, 4});
    TocaA(4);
    EXPECT_EQ(Mira(), 2);
}

TEST_F(Cambio, EnBriscaElMazoTieneQuePasarDeLosJugadores) {
    Juega(kBrisca, 4, {kBastos, 5}, {{kBastos, 2}});
    estado.CartasEnMazo = 5;
    EXPECT_EQ(Mira(), 2);
    estado.CartasEnMazo = 4;
    EXPECT_EQ(Mira(), 0);
}

TEST_F(Cambio, EnTuteBastaUnaCartaEnElMazo) {
    Juega(kTute, 2, {kBastos, 5}, {{kBastos, 2}});
    estado.CartasEnMazo = 1;
    EXPECT_EQ(Mira(), 2);
    estado.CartasEnMazo = 0;
    EXPECT_EQ(Mira(), 0);
}

TEST_F(Cambio, LaVueltaVaAlLugarDeLaQueSeDa) {
    Juega(kBrisca, 2, {kBastos, kAs}, {{kOros, 4}, {kBastos, 7}, {kOros, kAs}});
    estado.Mano(4, 1, 2, kCara) = kDescubierta;
    Mira();
    CambiaTriunfo();
    EXPECT_EQ(estado.Mano(4, 1, 2, kPalo), kBastos);
    EXPECT_EQ(estado.Mano(4, 1, 2, kValor), kAs);
    EXPECT_EQ(estado.Mano(4, 1, 2, kCara), kDescubierta);
    EXPECT_EQ(estado.PaloTriunfo, kBastos);
    EXPECT_EQ(estado.ValorTriunfo, 7);
    EXPECT_EQ(bazas.CartaCambio, 0);
    EXPECT_EQ(estado.NumCartas(4, 1), 3);
}

TEST_F(Cambio, TrasCambiarSeEligeDeNuevo) {
    Juega(kBrisca, 2, {kBastos, kRey}, {{kOros, kAs}, {kBastos, 7}, {kOros, kTres}});
    Mira();
    CambiaTriunfo();
    // 21 for the Tres, 22 for the Rey, 23 for the As.
    EXPECT_EQ(bazas.NumJugables, 3);
    EXPECT_EQ(bazas.CartasJugables(2, 1), 22);
    EXPECT_EQ(bazas.CartasJugables(2, 2), 2);
    EXPECT_EQ(estado.CartaElegida, 3);
}

TEST_F(Cambio, SinDerechoNoPasaNada) {
    Juega(kBrisca, 2, {kBastos, kRey}, {{kOros, kAs}, {kBastos, 7}});
    const EstadoJuego antes = estado;
    CambiaTriunfo();
    bazas.CartaCambio = 2; // a card that the seat does not hold
    CambiaTriunfo();
    EXPECT_TRUE(estado == antes);
}

TEST_F(Cambio, LasDosCartasVuelan) {
    Juega(kBrisca, 2, {kBastos, kRey}, {{kOros, kAs}, {kBastos, 7}});
    Mira();
    mesa->Escucha({"MoverCarta"});
    CambiaTriunfo();
    ASSERT_EQ(mesa->traza.size(), 2U);
    EXPECT_TRUE(mesa->traza[0].starts_with("MoverCarta(4, 12, "));
    EXPECT_TRUE(mesa->traza[1].starts_with("MoverCarta(4, 7, "));
}

namespace {

struct CambioConRaton : MesaViva {
    CambioConRaton() {
        Juega(kBrisca);
        PonMano(4, {{kOros, 4}, {kBastos, 7}, {kOros, 5}});
        ManoEmpezada(4);
        estado.PaloTriunfo = kBastos;
        estado.ValorTriunfo = kAs;
        estado.CartasEnMazo = 20;
        estado.GanadorBaza = 4;
        bazas.CartaCambio = 7;
    }
};

} // namespace

TEST_F(CambioConRaton, AlCambiarElPunteroDejaDeOfrecerloYElConsejoSigue) {
    estado.VentanaInfo = 1;
    MostrarSugerencia(42);
    Mueve(estado.MazoX + 50, estado.MazoY + 50);
    ASSERT_EQ(PunteroEnMesa(), Puntero::Cambiar);
    Clic(estado.MazoX + 50, estado.MazoY + 50);
    EXPECT_EQ(estado.ValorTriunfo, 7);
    EXPECT_NE(PunteroEnMesa(), Puntero::Cambiar);
    EXPECT_TRUE(p.EstaVisible(Control::Pic_Sugerencia, 0));
}

TEST_F(CambioConRaton, UnConsejoDeOtraCosaSeQueda) {
    estado.VentanaInfo = 1;
    MostrarSugerencia(50);
    Clic(estado.MazoX + 50, estado.MazoY + 50);
    EXPECT_EQ(estado.ValorTriunfo, 7);
    EXPECT_TRUE(p.EstaVisible(Control::Pic_Sugerencia, 0));
}
