#include "games/common/trick_state.h"
#include "games/trick/stock.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "games/common/hands.h"
#include "games/trick/trick.h"
#include "tests/support/trick_table.h"

using namespace prueba;

namespace {

// Deals a hand with these cards at the top of the deck.
void Reparte(const std::vector<Carta>& primeras) {
    ApilaBaraja(primeras);
    ASSERT_TRUE(IniciarJuego());
}

Carta EnMano(Integer asiento, int lugar) {
    return {estado.Mano(asiento, 1, lugar, kPalo), estado.Mano(asiento, 1, lugar, kValor)};
}

Carta LaQuePinta() {
    return {estado.PaloTriunfo, estado.ValorTriunfo};
}

// A pile of the given cards, the first one on top.
void PonMazo(const std::vector<Carta>& cartas) {
    estado.PosicionMazo = 20;
    estado.CartasEnMazo = static_cast<Integer>(cartas.size());
    int lugar = 20;
    for (const Carta& carta : cartas) {
        estado.Baraja(lugar, 1) = carta.palo;
        estado.Baraja(lugar, 2) = carta.valor;
        ++lugar;
    }
}

} // namespace

TEST(Mazo, EnBriscaSeVuelveLaCartaSiguienteAlReparto) {
    MesaDeTrick mesa(kBrisca, 2);
    Reparte({{kOros, 2},
             {kOros, 4},
             {kOros, 5},
             {kOros, 6},
             {kOros, 7},
             {kCopas, 2},
             {kEspadas, kSota}});
    EXPECT_EQ(LaQuePinta(), Carta(kEspadas, kSota));
    EXPECT_EQ(estado.CartasEnMazo, 33);
    EXPECT_EQ(estado.PosicionMazo, 8);
    EXPECT_EQ(EnMano(2, 1), Carta(kOros, 2));
    EXPECT_EQ(EnMano(4, 1), Carta(kOros, 4));
    EXPECT_EQ(estado.NumCartas(4, 1), 3);
    EXPECT_TRUE(estado.ManoEnCurso);
}

TEST(Mazo, LaQuePintaSuenaYSeQuedaALaVista) {
    MesaDeTrick mesa(kBrisca, 2);
    PonMazo({{kEspadas, kSota}, {kOros, 4}});
    mesa.Escucha({"Sonido", "Pausa"});
    DescubreTriunfo();
    EXPECT_EQ(mesa.traza, (std::vector<std::string>{"Sonido(1, 24)", "Pausa(500)"}));
}

TEST(Mazo, LaBriscaDeTresDejaVeintisiete) {
    MesaDeTrick mesa(kBrisca, 3);
    Reparte({});
    EXPECT_EQ(estado.CartasEnMazo, 27 - 1);
}

TEST(Mazo, LaBriscaDeCuatroDejaVeintiocho) {
    MesaDeTrick mesa(kBrisca, 4);
    Reparte({});
    EXPECT_EQ(estado.CartasEnMazo, 28 - 1);
}

TEST(Mazo, ElTuteDeDosDejaVeintiochoConLaQuePinta) {
    MesaDeTrick mesa(kTute, 2);
    Reparte({});
    EXPECT_EQ(estado.NumCartas(2, 1), 6);
    EXPECT_EQ(estado.NumCartas(4, 1), 6);
    EXPECT_EQ(estado.CartasEnMazo, 28 - 1);
}

// After each of the first 14 tricks both draw, the loser of the 14th takes the turned card, and only the last
// six tricks bind.
TEST(Mazo, ElTuteDeDosRobaCatorceVecesYLigaSeisBazas) {
    MesaDeTrick mesa(kTute, 2);
    Reparte({});
    const Carta pinta = LaQuePinta();
    estado.JugadorSalida = 2;
    PonAntesDelMano();
    for (int baza = 1; baza <= 20; ++baza) {
        ASSERT_TRUE(JuegaBaza());
        EXPECT_EQ(bazas.Arrastre, baza > 14) << baza;
        const Integer perdedor = estado.GanadorBaza == 2 ? 4 : 2;
        const Integer tenia = estado.NumCartas(perdedor, 1);
        RobaCartas();
        EXPECT_EQ(estado.NumCartas(perdedor, 1), tenia + (baza <= 14 ? 1 : 0)) << baza;
        if (baza == 14) {
            EXPECT_EQ(EnMano(perdedor, 6), Carta(pinta.palo, estado.ValorTriunfo));
        }
    }
    EXPECT_EQ(estado.NumCartas(2, 1), 0);
    EXPECT_EQ(estado.CartasEnMazo, 0);
    EXPECT_EQ(estado.PaloTriunfo, pinta.palo);
}

TEST(Mazo, ElTuteDeTresReparteTodoYLigaDesdeLaPrimeraBaza) {
    MesaDeTrick mesa(kTute, 3);
    Reparte({});
    EXPECT_EQ(estado.TotalBaraja, 36);
    for (Integer asiento = 1; asiento <= 3; ++asiento)
        EXPECT_EQ(estado.NumCartas(asiento, 1), 12);
    EXPECT_EQ(estado.CartasEnMazo, 0);
    estado.JugadorSalida = 2;
    PonAntesDelMano();
    ASSERT_TRUE(JuegaBaza());
    EXPECT_TRUE(bazas.Arrastre);
}

TEST(Mazo, EnTuteDeCuatroPintaLaUltimaDelQueReparte) {
    MesaDeTrick mesa(kTute, 4);
    mesa.Escucha({"Sonido"});
    Reparte({});
    EXPECT_EQ(LaQuePinta(), EnMano(1, 10)); // seat 1 sits before JugadorMano, seat 2
    EXPECT_EQ(estado.NumCartas(1, 1), 10);
    EXPECT_EQ(estado.Mano(1, 1, 10, kCara), kDorso);
    EXPECT_EQ(estado.Mano(1, 1, 10, kAltura), kEnLinea);
    EXPECT_EQ(std::count(mesa.traza.begin(), mesa.traza.end(), "Sonido(1, 26)"), 3);
}

TEST(Mazo, EnSentidoInversoReparteElDelOtroLado) {
    MesaDeTrick mesa(kTute, 4);
    estado.PasoSentido = -1;
    Reparte({});
    EXPECT_EQ(LaQuePinta(), EnMano(3, 10));
}

TEST(Mazo, TrasRepartirAManoPintaElUltimoServido) {
    MesaDeTrick mesa(kTute, 4);
    PonMano(3, {{kOros, 4}, {kCopas, kAs}});
    estado.SistemaReparto = 2;
    estado.UltimoRecibe = 3;
    estado.CartasEnMazo = 0;
    DescubreTriunfo();
    EXPECT_EQ(LaQuePinta(), Carta(kCopas, kAs));
}

TEST(Mazo, LaCartaQuePintaSuenaAlDestaparse) {
    MesaDeTrick mesa(kBrisca, 4);
    PonMazo({{kOros, 2}, {kOros, 4}});
    mesa.Escucha({"Sonido", "Pausa"});
    DescubreTriunfo();
    EXPECT_EQ(mesa.traza, (std::vector<std::string>{"Sonido(1, 24)", "Pausa(500)"}));
}

// --- The draw --------------------------------------------------------------------------------------------

TEST(Robo, EmpiezaElGanadorYSigueElSentido) {
    MesaDeTrick mesa(kBrisca, 4);
    PonMazo({{kOros, 2}, {kOros, 4}, {kOros, 5}, {kOros, 6}, {kOros, 7}});
    estado.GanadorBaza = 3;
    RobaCartas();
    EXPECT_EQ(EnMano(3, 1), Carta(kOros, 2));
    EXPECT_EQ(EnMano(4, 1), Carta(kOros, 4));
    EXPECT_EQ(EnMano(1, 1), Carta(kOros, 5));
    EXPECT_EQ(EnMano(2, 1), Carta(kOros, 6));
    EXPECT_EQ(estado.CartasEnMazo, 1);
    EXPECT_EQ(estado.JugadorSalida, 3);
    EXPECT_EQ(estado.JugadorActual, 2);
}

TEST(Robo, EntreCartaYCartaHayUnaPausa) {
    MesaDeTrick mesa(kBrisca, 3);
    PonMazo({{kOros, 4}, {kOros, 5}, {kOros, 6}, {kOros, 7}});
    estado.GanadorBaza = 3;
    mesa.Escucha({"Pausa", "MoverCarta"});
    RobaCartas();
    std::erase(mesa.traza, "Pausa(12)");
    ASSERT_EQ(mesa.traza.size(), 5U);
    for (const std::size_t vuelo : {0U, 2U, 4U})
        EXPECT_TRUE(mesa.traza[vuelo].starts_with("MoverCarta(1, ")) << mesa.traza[vuelo];
    EXPECT_EQ(mesa.traza[1], "Pausa(80)");
    EXPECT_EQ(mesa.traza[3], "Pausa(80)");
}

TEST(Robo, QuienNoEncuentraMazoTomaLaQuePinta) {
    MesaDeTrick mesa(kBrisca, 4);
    Pinta({kBastos, kRey});
    PonMazo({{kOros, 2}, {kOros, 4}, {kOros, 5}});
    estado.GanadorBaza = 3;
    RobaCartas();
    EXPECT_EQ(EnMano(2, 1), Carta(kBastos, kRey));
    EXPECT_EQ(estado.CartasEnMazo, 0);
    EXPECT_EQ(LaQuePinta(), Carta(kBastos, kRey));
}

TEST(Robo, LasVisiblesLleganDescubiertas) {
    MesaDeTrick mesa(kBrisca, 2);
    estado.CartasJugador(4) = kVisibles;
    PonMazo({{kOros, 2}, {kOros, 4}, {kOros, 5}});
    estado.GanadorBaza = 2;
    RobaCartas();
    EXPECT_EQ(estado.Mano(2, 1, 1, kCara), kDorso);
    EXPECT_EQ(estado.Mano(4, 1, 1, kCara), kDescubierta);
}

TEST(Robo, SinMazoSoloCambiaLaSalida) {
    MesaDeTrick mesa(kTute, 4);
    PonMano(1, {{kOros, 2}});
    estado.GanadorBaza = 1;
    RobaCartas();
    EXPECT_EQ(estado.NumCartas(1, 1), 1);
    EXPECT_EQ(estado.JugadorSalida, 1);
    EXPECT_EQ(estado.JugadorActual, 4);
}
