// The automatic deal and the cards drawn during a hand.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "betting/bet_state.h"
#include "core/session_state.h"
#include "table/deal.h"
#include "table/deck.h"
#include "table/seat_drawing.h"
#include "tests/support/live_table.h"

using namespace prueba;

namespace {

const std::vector<Carta> kOrosBajos{{kOros, 1}, {kOros, 2}, {kOros, 3}, {kOros, 4}, {kOros, 5}};
const std::vector<Carta> kOrosAltos{{kOros, 6}, {kOros, 7}, {kOros, 10}, {kOros, 11}, {kOros, 12}};
const std::vector<Carta> kCopasBajas{
    {kCopas, 1}, {kCopas, 2}, {kCopas, 3}, {kCopas, 4}, {kCopas, 5}};

std::vector<Carta> Primeras(const std::vector<Carta>& mano, std::size_t n) {
    return {mano.begin(), mano.begin() + static_cast<std::ptrdiff_t>(n)};
}

struct Reparto : MesaViva {
    Reparto() {
        estado.PartidaEnCurso = true;
        estado.JugadorMano = 3;
    }
    // The deck in the order of the walk: Oros, Copas, Espadas, Bastos.
    void EnOrden() { BarajaSera({}); }
    static void EnSentidoInverso() {
        estado.SentidoJuego = kInverso;
        estado.PasoSentido = -1;
    }
    static void PonEnMazo(int lugar, const Carta& carta) {
        estado.Baraja(lugar, 1) = carta.palo;
        estado.Baraja(lugar, 2) = carta.valor;
    }
    static int Suma() {
        return estado.NumCartas(1, 1) + estado.NumCartas(2, 1) + estado.NumCartas(3, 1) +
               estado.NumCartas(4, 1);
    }
};

} // namespace

TEST_F(Reparto, EmpiezaElManoYVaDeCincoEnCinco) {
    EnOrden();
    ASSERT_TRUE(Repartir());
    EXPECT_EQ(Primeras(ManoDe(3), 5), kOrosBajos);
    EXPECT_EQ(Primeras(ManoDe(4), 5), kOrosAltos);
    EXPECT_EQ(Primeras(ManoDe(1), 5), kCopasBajas);
    for (Integer asiento = 1; asiento <= 4; ++asiento)
        EXPECT_EQ(estado.NumCartas(asiento, 1), 10);
    EXPECT_EQ(estado.CartasEnMazo, 0);
    EXPECT_EQ(estado.PosicionMazo, 41);
}

TEST_F(Reparto, EnSentidoInversoVaHaciaElOtroLado) {
    EnSentidoInverso();
    EnOrden();
    ASSERT_TRUE(Repartir());
    EXPECT_EQ(Primeras(ManoDe(3), 5), kOrosBajos);
    EXPECT_EQ(Primeras(ManoDe(2), 5), kOrosAltos);
    EXPECT_EQ(Primeras(ManoDe(1), 5), kCopasBajas);
}

TEST_F(Reparto, CadaCartaEnsenaLaCaraDeSuAsiento) {
    ASSERT_TRUE(Repartir());
    EXPECT_EQ(estado.Mano(1, 1, 1, kCara), kDorso);
    EXPECT_EQ(estado.Mano(4, 1, 10, kCara), kDescubierta);
    EXPECT_EQ(estado.Mano(4, 1, 10, kAltura), kEnLinea);
    EXPECT_EQ(estado.Mano(4, 1, 10, kTapada), 0);
}

// A window of another size is painted anew between two cards.
TEST_F(Reparto, OtroTamanoEnMedioDejaCadaCartaDondeSeDio) {
    p.UsaLienzosRegistrados();
    p.traviesa = true;
    p.guion.Encola({.tipo = TipoEvento::Tamano});
    EmpiezaTraza();
    ASSERT_TRUE(Repartir());
    EXPECT_FALSE(TrazaDe("RedibujarAsiento").empty());
    EXPECT_THAT(TrazaDe("ColocarCarta"), testing::Each(testing::EndsWith(", 10)")));
    traza.clear();
    --estado.NumCartas(4, 1);
    RedibujarAsiento(4);
    EXPECT_THAT(TrazaDe("ColocarCarta"), testing::Each(testing::EndsWith(", 9)")));
}

TEST_F(Reparto, QuienNoJuegaNoRecibe) {
    estado.JuegoActivo = kBrisca;
    Desactiva({4});
    EnOrden();
    ASSERT_TRUE(Repartir());
    EXPECT_EQ(estado.NumCartas(4, 1), 0);
    EXPECT_EQ(ManoDe(3), (std::vector<Carta>{{kOros, 1}, {kOros, 5}, {kOros, 10}}));
    EXPECT_EQ(ManoDe(1), (std::vector<Carta>{{kOros, 3}, {kOros, 6}, {kOros, 11}}));
    EXPECT_EQ(estado.CartasEnMazo, 27);
}

TEST_F(Reparto, EnElPokerQuienNoTieneRestoNoRecibeYLaVueltaAcabaEnElMano) {
    Juega(kPoker);
    estado.ApuestaSalida = 0;
    for (int asiento : {1, 3, 4})
        apuestas.Fichas(asiento, 4) = 2;
    ASSERT_TRUE(Repartir());
    EXPECT_EQ(estado.NumCartas(2, 1), 0);
    for (int asiento : {1, 3, 4})
        EXPECT_EQ(estado.NumCartas(asiento, 1), 5);
    EXPECT_EQ(estado.PosicionMazo, 16);
}

TEST_F(Reparto, EnSieteYMediaLaCartaVaTapada) {
    Juega(kSieteYMedia);
    for (int asiento = 1; asiento <= 4; ++asiento)
        apuestas.Fichas(asiento, 4) = 2;
    ASSERT_TRUE(Repartir());
    EXPECT_EQ(estado.NumCartas(2, 1), 1);
    EXPECT_EQ(estado.Mano(2, 1, 1, kTapada), 1);
    EXPECT_EQ(estado.Mano(2, 1, 1, kCara), kDorso);
    EXPECT_EQ(estado.Mano(4, 1, 1, kCara), kDescubierta);
}

TEST_F(Reparto, EnElBlackJackElMazoSigueDeManoEnManoYLaBancaTieneUnaCarta) {
    Juega(kBlackJack);
    estado.JugadorBanca = 2;
    for (int asiento : {1, 3, 4})
        apuestas.Apuesta(asiento, 1, 2) = 5;
    Barajar();
    estado.CartasEnMazo = 100;
    estado.PosicionMazo = 213;
    ASSERT_TRUE(Repartir());
    EXPECT_EQ(estado.CartasEnMazo, 93);
    EXPECT_EQ(estado.PosicionMazo, 220);
    EXPECT_EQ(estado.NumCartas(2, 1), 1);
    EXPECT_EQ(estado.NumCartas(3, 1), 2);
}

TEST_F(Reparto, EnElBlackJackElMazoQueSeAcabaVuelveEnteroAMitadDelReparto) {
    Juega(kBlackJack);
    estado.JugadorBanca = 2;
    for (int asiento : {1, 3, 4})
        apuestas.Apuesta(asiento, 1, 2) = 5;
    Barajar();
    estado.CartasEnMazo = 3;
    estado.PosicionMazo = 310;
    ASSERT_TRUE(Repartir());
    EXPECT_EQ(Suma(), 7);
    EXPECT_EQ(estado.CartasEnMazo, 312 - 4);
    EXPECT_EQ(estado.PosicionMazo, 5);
}

TEST_F(Reparto, CadaCartaSaleDeLaPilaVuelaYHaceUnaPausa) {
    EmpiezaTraza();
    estado.VelocidadJuego = 100;
    ASSERT_TRUE(Repartir());
    EXPECT_EQ(TrazaDe("MoverCarta").size(), 40U);
    EXPECT_EQ(TrazaDe("DibujarMazo").size(), 41U);
    EXPECT_EQ(TrazaDe("DibujarMazo").back(), "DibujarMazo(304, 230, 0)");
    EXPECT_EQ(traza.back(), "Pausa(40)");
}

TEST_F(Reparto, LaCartaVuelaAlLugarQueTendraConLaManoEntera) {
    EnOrden();
    EmpiezaTraza();
    ASSERT_TRUE(Repartir());
    // The As de oros, for seat 3: first of ten, on its side, face down.
    EXPECT_EQ(TrazaDe("MoverCarta").front(), "MoverCarta(1, 1, 304, 230, 1, 1, 551, 178, 4, 1, 0)");
}

TEST_F(Reparto, LaPartidaQueSeDejaCortaElReparto) {
    p.traviesa = true;
    p.guion.Encola({.tipo = TipoEvento::Termina});
    EXPECT_FALSE(Repartir());
    EXPECT_EQ(Suma(), 1);
    EXPECT_EQ(sesion.peticion, Peticion::Salir);
}

TEST_F(Reparto, UnaCartaRobadaEnsenaLaCaraDeSuAsiento) {
    Juega(kBrisca);
    Barajar();
    RobarCartas(1, 1, 0);
    RobarCartas(4, 1, 0);
    EXPECT_EQ(estado.Mano(1, 1, 1, kCara), kDorso);
    EXPECT_EQ(estado.Mano(4, 1, 1, kCara), kDescubierta);
}

TEST_F(Reparto, EnSieteYMediaLoQueNoEstaTapadoSeVe) {
    Juega(kSieteYMedia);
    Barajar();
    RobarCartas(1, 1, 0);
    RobarCartas(1, 1, 1);
    EXPECT_EQ(estado.Mano(1, 1, 1, kCara), kDescubierta);
    EXPECT_EQ(estado.Mano(1, 1, 1, kTapada), 0);
    EXPECT_EQ(estado.Mano(1, 1, 2, kCara), kDorso);
    EXPECT_EQ(estado.Mano(1, 1, 2, kTapada), 1);
}

TEST_F(Reparto, LoRobadoVaAlPrimerLugarLibreDeLaSerie) {
    Juega(kSieteYMedia);
    PonMano(2, {{kOros, 3}});
    estado.CartasEnMazo = 30;
    estado.PosicionMazo = 11;
    PonEnMazo(11, {kBastos, 6});
    PonEnMazo(12, {kCopas, kSota});
    EmpiezaTraza();
    RobarCartas(2, 2, 0);
    EXPECT_EQ(ManoDe(2), (std::vector<Carta>{{kOros, 3}, {kBastos, 6}, {kCopas, kSota}}));
    EXPECT_EQ(estado.CartasEnMazo, 28);
    EXPECT_EQ(estado.PosicionMazo, 13);
    EXPECT_EQ(TrazaDe("Pausa").back(), "Pausa(60)");
}

TEST_F(Reparto, EnElBlackJackSeBarajaAntesDeRobarMasDeLoQueQueda) {
    Juega(kBlackJack);
    Barajar();
    estado.CartasEnMazo = 0;
    estado.PosicionMazo = 313;
    RobarCartas(1, 1, 0);
    EXPECT_EQ(estado.CartasEnMazo, 311);
    EXPECT_EQ(estado.PosicionMazo, 2);
    EXPECT_EQ(estado.NumCartas(1, 1), 1);
}

TEST_F(Reparto, TrasRellenarElMazoYTrasCadaCartaRobadaSePintaLoQueCambia) {
    Juega(kBlackJack);
    estado.CartasEnMazo = 0;
    EmpiezaTraza();
    RobarCartas(1, 2, 0);
    const std::string pila =
        "DibujarMazo(" + std::to_string(estado.MazoX) + ", " + std::to_string(estado.MazoY) + ", ";
    EXPECT_EQ(TrazaDe("DibujarMazo"),
              (std::vector<std::string>{pila + "312)", pila + "311)", pila + "310)"}));
    EXPECT_EQ(TrazaDe("RedibujarAsiento"),
              (std::vector<std::string>{"RedibujarAsiento(1)", "RedibujarAsiento(1)"}));
}
