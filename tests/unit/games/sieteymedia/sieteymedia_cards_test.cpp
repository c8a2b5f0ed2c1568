// The covered card and the change of a Four.

#include "games/sieteymedia/sieteymedia_cards.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/random.h"
#include "tests/support/sieteymedia_table.h"

using namespace prueba;
using testing::ElementsAre;
using testing::SizeIs;

namespace {

struct CartasSiete : MesaDeSiete {
    CartasSiete() {
        ManoJugada();
        apuestas.FaseApuesta = kFaseApuestas;
        TocaJugar(4);
    }
    static Carta EnMano(Integer asiento, int lugar = 1) {
        return {estado.Mano(asiento, 1, lugar, kPalo), estado.Mano(asiento, 1, lugar, kValor)};
    }
    static Carta EnBaraja(int lugar) { return {estado.Baraja(lugar, 1), estado.Baraja(lugar, 2)}; }
    // The last cards of the deck, in their order.
    static void Quedan(const std::vector<Carta>& cartas) {
        estado.CartasEnMazo = static_cast<Integer>(cartas.size());
        estado.PosicionMazo = static_cast<Integer>(estado.TotalBaraja - estado.CartasEnMazo + 1);
        int lugar = estado.PosicionMazo;
        for (const Carta& carta : cartas) {
            estado.Baraja(lugar, 1) = carta.palo;
            estado.Baraja(lugar, 2) = carta.valor;
            ++lugar;
        }
    }
    static void TieneUnCuatro() {
        PonSerieTapada(4, 1, {{kOros, 4}});
        series.PuedeCambiarCuatro = true;
    }
    static void Cambia(double azar) {
        EncolaAzar({azar});
        CambiaCuatro();
    }
};

const std::vector<Carta> kDiez{{kBastos, 1},  {kBastos, 2}, {kBastos, 3},  {kBastos, 5},
                               {kBastos, 6},  {kBastos, 7}, {kBastos, 10}, {kBastos, 11},
                               {kBastos, 12}, {kEspadas, 1}};

} // namespace

TEST_F(CartasSiete, DestapaSerieDejaAbiertasTodasSusCartas) {
    PonSerieTapada(4, 1, {{kOros, 4}, {kOros, 1}});
    PonSerieTapada(3, 1, {{kCopas, 4}});
    EmpiezaTraza();
    DestapaSerie(4, 1);
    EXPECT_EQ(estado.Mano(4, 1, 1, kCara), kDescubierta);
    EXPECT_EQ(estado.Mano(4, 1, 1, kTapada), 0);
    EXPECT_EQ(estado.Mano(3, 1, 1, kTapada), kTapadaSi);
    EXPECT_THAT(TrazaDe("Pausa"), ElementsAre("Pausa(220)"));
    EXPECT_THAT(TrazaDe("RedibujarAsiento"), ElementsAre("RedibujarAsiento(4)"));
}

TEST_F(CartasSiete, DestapaSerieConCeroDestapaATodos) {
    for (const Integer asiento : std::initializer_list<Integer>{1, 2, 4})
        PonSerieTapada(asiento, 1, {{kOros, asiento}});
    PonSerieTapada(4, 2, {{kCopas, 4}});
    EmpiezaTraza();
    DestapaSerie(0, 1);
    for (const Integer asiento : std::initializer_list<Integer>{1, 2, 4})
        EXPECT_EQ(estado.Mano(asiento, 1, 1, kTapada), 0) << asiento;
    EXPECT_EQ(estado.Mano(4, 2, 1, kTapada), kTapadaSi);
    EXPECT_THAT(TrazaDe("RedibujarAsiento"), SizeIs(3));
}

TEST_F(CartasSiete, ElCuatroSeCambiaPorUnaCartaDelCentroDelMazo) {
    Quedan(kDiez); // places 31 to 40: chance falls on 33 to 39
    TieneUnCuatro();
    Cambia(0.5);
    EXPECT_EQ(EnMano(4), Carta(kBastos, 7)); // 6 x 0.5 + 33
    EXPECT_EQ(EnBaraja(36), Carta(kOros, 4));
    EXPECT_EQ(estado.Mano(4, 1, 1, kCara), kDescubierta);
    EXPECT_EQ(estado.Mano(4, 1, 1, kTapada), 0);
    EXPECT_FALSE(series.PuedeCambiarCuatro);
    EXPECT_EQ(estado.CartasEnMazo, 10);
    EXPECT_EQ(estado.PosicionMazo, 31);
}

TEST_F(CartasSiete, LasDosPrimerasCartasNoSalenPorElCuatro) {
    Quedan(kDiez);
    TieneUnCuatro();
    Cambia(0);
    EXPECT_EQ(EnMano(4), Carta(kBastos, 3));
    TieneUnCuatro();
    Cambia(0.999);
    EXPECT_EQ(EnMano(4), Carta(kBastos, 12));
}

// A half goes to the even neighbour: 6 x 0.25 + 33 is 34.5, 6 x 0.75 + 33 is 37.5.
TEST_F(CartasSiete, ElLugarSeRedondeaAlPar) {
    Quedan(kDiez);
    TieneUnCuatro();
    Cambia(0.25);
    EXPECT_EQ(EnMano(4), Carta(kBastos, 5));
    TieneUnCuatro();
    Cambia(0.75);
    EXPECT_EQ(EnMano(4), Carta(kBastos, 11));
}

TEST_F(CartasSiete, ConPocasCartasElCambioQuedaDentroDelMazo) {
    Quedan({{kBastos, 1}});
    TieneUnCuatro();
    Cambia(0);
    EXPECT_EQ(EnMano(4), Carta(kBastos, 1));
    EXPECT_EQ(EnBaraja(40), Carta(kOros, 4));
    Quedan({{kBastos, 2}, {kBastos, 3}});
    TieneUnCuatro();
    Cambia(0);
    EXPECT_EQ(EnMano(4), Carta(kBastos, 3));
}

TEST_F(CartasSiete, SinMazoNoHayCambio) {
    Quedan({});
    TieneUnCuatro();
    EXPECT_FALSE(OfreceCambiarCuatro(4));
    Cambia(0);
    EXPECT_EQ(EnMano(4), Carta(kOros, 4));
    EXPECT_EQ(estado.Mano(4, 1, 1, kTapada), kTapadaSi);
}

TEST_F(CartasSiete, UnCuatroQueSaleSePuedeVolverACambiar) {
    Quedan({{kBastos, 1}, {kBastos, 2}, {kCopas, 4}, {kBastos, 3}});
    TieneUnCuatro();
    Cambia(0.5);
    EXPECT_EQ(EnMano(4), Carta(kCopas, 4));
    EXPECT_TRUE(series.PuedeCambiarCuatro);
    EXPECT_EQ(EnBaraja(39), Carta(kOros, 4));
}

TEST_F(CartasSiete, TrasElCambioSeDecideDeNuevo) {
    Quedan(kDiez);
    TieneUnCuatro();
    Azar(0);
    Cambia(0.5); // a Siete: 0.6 of the highest bet
    EXPECT_EQ(apuestas.ApuestaPropuesta, 12);
}

TEST_F(CartasSiete, LasDosCartasVuelan) {
    Quedan(kDiez);
    TieneUnCuatro();
    EmpiezaTraza();
    Cambia(0.5);
    const auto vuelos = TrazaDe("MoverCarta");
    ASSERT_THAT(vuelos, SizeIs(2));
    EXPECT_TRUE(vuelos[0].starts_with("MoverCarta(1, 4,"));
    EXPECT_TRUE(vuelos[1].starts_with("MoverCarta(4, 7,"));
}

TEST_F(CartasSiete, SoloElCuatroDeLaPrimeraCartaSeOfrece) {
    Quedan(kDiez);
    PonSerieTapada(4, 1, {{kOros, 4}});
    EXPECT_TRUE(OfreceCambiarCuatro(4));
    PonSerieTapada(4, 1, {{kOros, 5}});
    EXPECT_FALSE(OfreceCambiarCuatro(4));
    PonSerieTapada(4, 1, {{kOros, 4}, {kOros, 1}});
    EXPECT_FALSE(OfreceCambiarCuatro(4));
}

TEST_F(CartasSiete, QuienJuegaSoloCambiaHastaTenerOtraCarta) {
    Quedan({{kBastos, 1}, {kBastos, 2}, {kCopas, 4}, {kBastos, 3}, {kBastos, 7}, {kBastos, 6}});
    TieneUnCuatro();
    EncolaAzar({0.1, 0.7}); // places 37 and 38
    CambiaCuatroSolo();
    EXPECT_EQ(EnMano(4), Carta(kBastos, 3));
    EXPECT_EQ(EnBaraja(37), Carta(kOros, 4));
    EXPECT_EQ(EnBaraja(38), Carta(kCopas, 4));
}

TEST_F(CartasSiete, QuienConservaElCuatroNoLoCambia) {
    Quedan(kDiez);
    TieneUnCuatro();
    series.ConservaCuatro = true;
    CambiaCuatroSolo();
    EXPECT_EQ(EnMano(4), Carta(kOros, 4));
    EXPECT_EQ(estado.Mano(4, 1, 1, kTapada), kTapadaSi);
}

TEST_F(CartasSiete, ElCuatroParpadeaTresVecesAntesDeCambiarse) {
    Quedan(kDiez);
    TieneUnCuatro();
    EmpiezaTraza();
    CambiaCuatroSolo();
    EXPECT_THAT(TrazaDe("Sonido"), testing::Contains("Sonido(1, 26)").Times(3));
}

// Of four cards chance only ever falls on the third.
TEST_F(CartasSiete, SiSoloPuedenSalirCuatrosNadieCambiaPorCambiar) {
    Quedan({{kBastos, 1}, {kBastos, 2}, {kCopas, 4}, {kBastos, 3}});
    TieneUnCuatro();
    CambiaCuatroSolo();
    EXPECT_EQ(EnMano(4), Carta(kOros, 4));
}
