#include "games/common/trick_state.h"
#include "games/trick/choice_tute.h"

#include <gtest/gtest.h>

#include "games/trick/search_state.h"
#include "tests/support/trick_hands.h"

using namespace prueba;

namespace {

// The score of a card of the seat on turn as its place in the sorted list shows it; -9999 when the card
// may not be played.
int Puntos(Carta carta) {
    for (int puesto = 1; puesto <= bazas.NumJugables; ++puesto) {
        const Integer lugar = bazas.CartasJugables(puesto, 2);
        if (estado.Mano(estado.JugadorActual, 1, lugar, kPalo) == carta.palo &&
            estado.Mano(estado.JugadorActual, 1, lugar, kValor) == carta.valor) {
            return bazas.CartasJugables(puesto, 1);
        }
    }
    return -9999;
}

Carta Elegida() {
    return {estado.Mano(estado.JugadorActual, 1, estado.CartaElegida, kPalo),
            estado.Mano(estado.JugadorActual, 1, estado.CartaElegida, kValor)};
}

void Elige(Integer asiento) {
    TocaA(asiento);
    EligeCartaTute();
}

void Ponle(Integer asiento, Integer nivel, Integer caracter) {
    estado.NivelJugador(asiento) = nivel;
    estado.CaracterJugador(asiento) = caracter;
}

// Seats 2 and 4 with a stock of 20 and the 4 of Bastos turned up; seat 4 is looked at.
struct TuteConMazo : testing::Test {
    void SetUp() override {
        MesaDeBazas(kTute, 2);
        busqueda = {};
        Pinta({kBastos, 4});
        estado.CartasEnMazo = 20;
        estado.AzarTurno = 0.25F;
    }
};

// The same two seats when the stock has run out.
struct TuteDeDos : TuteConMazo {
    void SetUp() override {
        TuteConMazo::SetUp();
        estado.CartasEnMazo = 0;
        bazas.Arrastre = true;
    }
};

// Four seats, everything dealt.
struct TuteDeCuatro : testing::Test {
    void SetUp() override {
        MesaDeBazas(kTute, 4);
        busqueda = {};
        Pinta({kBastos, 4});
        bazas.Arrastre = true;
        estado.AzarTurno = 0.1F;
    }
};

} // namespace

// --- Scores -----------------------------------------------------------------------------------------

TEST_F(TuteConMazo, TantosOrdenTriunfoYEscasez) {
    PonMano(4, {{kOros, 5}, {kCopas, kTres}, {kBastos, 6}});
    Elige(4);
    EXPECT_EQ(Puntos({kOros, 5}), 500 + 3 + 10);
    EXPECT_EQ(Puntos({kCopas, kTres}), 500 + 19 + 10);
    EXPECT_EQ(Puntos({kBastos, 6}), 500 + 4 + 10 + 10);
    EXPECT_EQ(bazas.NumJugables, 3);
    EXPECT_EQ(Elegida(), Carta(kOros, 5));
}

TEST_F(TuteConMazo, LosMediosPuntosVanAlPar) {
    PonMano(4, {{kOros, kAs}});
    Ponle(4, 50, kConservador);
    Elige(4);
    EXPECT_EQ(Puntos({kOros, kAs}), 500 + 16 + 10); // 5.5 + 10
    Ponle(4, 50, kAgresivo);
    Elige(4);
    EXPECT_EQ(Puntos({kOros, kAs}), 500 + 26 + 10); // 16.5 + 10
}

TEST_F(TuteConMazo, ElDosDeTriunfosValeComoLaQuePintaMientrasHayMazo) {
    PonMano(4, {{kBastos, 2}});
    Elige(4);
    EXPECT_EQ(Puntos({kBastos, 2}), 500 + 2 + 10 + 10);
    estado.CartasEnMazo = 0;
    Elige(4);
    EXPECT_EQ(Puntos({kBastos, 2}), 500 + 1 + 10 + 10);
}

TEST_F(TuteConMazo, ElSieteDeTriunfosValeComoUnaQuePintaConTantos) {
    Pinta({kBastos, kRey});
    PonMano(4, {{kBastos, 7}, {kBastos, 2}});
    Elige(4);
    EXPECT_EQ(Puntos({kBastos, 7}), 500 + 12 + 10 + 8);
    EXPECT_EQ(Puntos({kBastos, 2}), 500 + 1 + 10 + 8);
}

// The Caballos score 1500, and the leader plays from place 6 - 4.
TEST_F(TuteConMazo, TuteDeCaballosSeGuarda) {
    PonMano(4, {{kOros, 5},
                {kOros, kCaballo},
                {kCopas, 4},
                {kCopas, kCaballo},
                {kEspadas, kCaballo},
                {kBastos, kCaballo}});
    Elige(4);
    EXPECT_EQ(bazas.TuteEnMano, kCaballo);
    // 10 and 8 for the card, and what its own cante may still bring: 2 / 1.8 of 6.
    EXPECT_EQ(Puntos({kCopas, kCaballo}), 500 + 10 + 8 + 1500 + 7);
    EXPECT_EQ(Puntos({kCopas, 4}), 510);
    EXPECT_EQ(Puntos({kOros, 5}), 511);
    EXPECT_EQ(Elegida(), Carta(kOros, 5));
}

TEST_F(TuteConMazo, ElPaloCantableSeGuardaYMasElDeTriunfo) {
    Ponle(4, 100, kMedio);
    PonMano(4, {{kCopas, kCaballo}, {kCopas, kRey}});
    Elige(4);
    EXPECT_EQ(Puntos({kCopas, kCaballo}), 500 + 10 + 8 + 2 + 80);
    EXPECT_EQ(Puntos({kCopas, kRey}), 500 + 12 + 8 + 2 + 80);
    Pinta({kCopas, 4});
    Elige(4);
    EXPECT_EQ(Puntos({kCopas, kCaballo}), 500 + 10 + 10 + 8 + 2 + 90);
}

// The cante counts on top of the Tute.
TEST_F(TuteConMazo, ElPaloCantableCuentaTambienConTute) {
    Ponle(4, 100, kMedio);
    PonMano(4, {{kCopas, kRey},
                {kOros, kRey},
                {kEspadas, kRey},
                {kBastos, kRey},
                {kCopas, kCaballo},
                {kOros, 4}});
    Elige(4);
    EXPECT_EQ(Puntos({kCopas, kRey}), 500 + 12 + 8 + 1500 + 80);
}

TEST_F(TuteConMazo, UnaDeLasCuatroYaJugadaQuitaLaEsperanzaDeTute) {
    Ponle(4, 100, kMedio);
    PonMano(4, {{kCopas, kRey}, {kOros, kRey}});
    bazas.PaloCantado(kCopas) = 2;
    Elige(4);
    // 100 / 33 of 2 x 2 of 21 / 28 is 9.09.
    EXPECT_EQ(Puntos({kCopas, kRey}), 500 + 12 + 10 + 9);
    YaJugadas({{kBastos, kRey}});
    Elige(4);
    EXPECT_EQ(Puntos({kCopas, kRey}), 500 + 12 + 10);
}

TEST_F(TuteConMazo, SinMazoNoSeEsperaElCante) {
    estado.CartasEnMazo = 0;
    PonMano(4, {{kCopas, kRey}});
    YaJugadas({{kBastos, kRey}});
    Elige(4);
    EXPECT_EQ(Puntos({kCopas, kRey}), 500 + 12 + 10);
}

TEST_F(TuteDeDos, ElNivelCienVeElCanteDelRival) {
    PonMano(2, {{kCopas, kCaballo}, {kCopas, kRey}, {kOros, 2}});
    PonMano(4, {{kCopas, kAs}, {kEspadas, 4}});
    Ponle(4, 100, kMedio);
    Elige(4);
    EXPECT_EQ(Puntos({kCopas, kAs}), 500 - (21 + 20) - 300);
    EXPECT_EQ(Elegida(), Carta(kCopas, kAs));
    Ponle(4, 90, kMedio);
    Elige(4);
    EXPECT_EQ(Puntos({kCopas, kAs}), 500 + 21 + 20);
    EXPECT_EQ(Elegida(), Carta(kEspadas, 4));
}

TEST_F(TuteDeDos, ContraElCanteDelRivalTambienUnaCartaPerdedora) {
    PonMano(2, {{kCopas, kCaballo}, {kCopas, kRey}, {kOros, 2}});
    PonMano(4, {{kCopas, 4}, {kEspadas, 4}});
    Ponle(4, 100, kMedio);
    Elige(4);
    EXPECT_EQ(Puntos({kCopas, 4}), 500 - (2 + 20) - 2 * 2 - 250);
}

TEST_F(TuteDeDos, ElRivalConDosCartasYaNoCanta) {
    PonMano(2, {{kCopas, kCaballo}, {kCopas, kRey}});
    PonMano(4, {{kCopas, kAs}, {kEspadas, 4}});
    Ponle(4, 100, kMedio);
    Elige(4);
    EXPECT_EQ(Puntos({kCopas, kAs}), 500 + 21 + 20);
}

// Once the leader has looked at the rival, its own cante is out of sight for the cards that follow.
TEST_F(TuteDeDos, TrasMirarAlRivalElCantePropioSeOlvida) {
    PonMano(2, {{kCopas, kCaballo}, {kCopas, kRey}, {kEspadas, 2}});
    Ponle(4, 100, kMedio);
    PonMano(4, {{kOros, kCaballo}, {kOros, kRey}, {kOros, 4}});
    Elige(4);
    EXPECT_EQ(Puntos({kOros, kCaballo}), 500 + 10 + 12 + 80);
    PonMano(4, {{kOros, 4}, {kOros, kCaballo}, {kOros, kRey}});
    Elige(4);
    EXPECT_EQ(Puntos({kOros, kCaballo}), 500 + 10 + 12);
    EXPECT_TRUE(bazas.PaloCantable(kOros));
}

TEST_F(TuteDeCuatro, SeEvitaElPaloQueOtroFalla) {
    Ponle(2, 95, kMedio);
    PonMano(2, {{kOros, 4}});
    Elige(2);
    EXPECT_EQ(Puntos({kOros, 4}), 538);
    bazas.FallaPalo(kOros, 1) = true;
    Elige(2);
    EXPECT_EQ(Puntos({kOros, 4}), 558);
    bazas.FallaPalo(kBastos, 1) = true;
    Elige(2);
    EXPECT_EQ(Puntos({kOros, 4}), 538);
}

TEST_F(TuteDeCuatro, SeBuscaElPaloQueFallaLaPareja) {
    estado.ModalidadJuego = kDosParejas;
    Ponle(2, 95, kMedio);
    PonMano(2, {{kOros, 4}});
    bazas.FallaPalo(kOros, 4) = true;
    Elige(2);
    EXPECT_EQ(Puntos({kOros, 4}), 518);
}

TEST_F(TuteDeCuatro, PaloCuyoCanteEstaPorSalir) {
    Ponle(2, 50, kMedio);
    PonMano(2, {{kOros, 4}, {kOros, 5}});
    Elige(2);
    EXPECT_EQ(Puntos({kOros, 4}), 500 - 42); // -34 - 7.5
    EXPECT_EQ(Puntos({kOros, 5}), 500 - 42); // -35 - 7.5
    YaJugadas({{kOros, kRey}});
    Elige(2);
    EXPECT_EQ(Puntos({kOros, 4}), 534);
}

TEST_F(TuteDeCuatro, ElCanteQueTieneLaParejaNoEstorba) {
    Ponle(2, 50, kMedio);
    PonMano(2, {{kOros, 4}, {kOros, 5}});
    PonMano(4, {{kOros, kCaballo}, {kOros, kRey}});
    Elige(2);
    EXPECT_EQ(Puntos({kOros, 4}), 500 - 42);
    estado.ModalidadJuego = kDosParejas;
    Elige(2);
    EXPECT_EQ(Puntos({kOros, 4}), 534);
}

TEST_F(TuteDeCuatro, LasGanadorasSegurasSeJueganAlFinalDeLaMano) {
    Ponle(2, 100, kMedio);
    PonMano(2, {{kOros, kAs}, {kCopas, 4}, {kBastos, kAs}});
    PonMano(1, {{kCopas, kRey}, {kOros, 2}, {kCopas, 5}});
    SoloQuedanLasManos();
    Elige(2);
    EXPECT_EQ(Puntos({kOros, kAs}), 500 + 21 + 36 + 500);
    EXPECT_EQ(Puntos({kBastos, kAs}), 500 + 21 + 10 + 36 + 500);
    EXPECT_EQ(Puntos({kCopas, 4}), 538);
    EXPECT_EQ(Elegida(), Carta(kOros, kAs));
    Ponle(2, 85, kMedio);
    Elige(2);
    EXPECT_EQ(Elegida(), Carta(kCopas, 4));
}

TEST_F(TuteDeCuatro, ConTriunfosFueraElAsNoEsSeguro) {
    Ponle(2, 100, kMedio);
    PonMano(2, {{kOros, kAs}, {kCopas, 4}});
    PonMano(1, {{kBastos, 2}, {kOros, 2}});
    SoloQuedanLasManos();
    Elige(2);
    EXPECT_EQ(Puntos({kOros, kAs}), 500 + 21 + 36);
}

TEST_F(TuteDeCuatro, UnaGanadoraMasQueDosNoSaleDelPrimerPuesto) {
    Ponle(2, 100, kMedio);
    PonMano(2, {{kOros, kAs}, {kBastos, kAs}});
    SoloQuedanLasManos();
    Elige(2);
    EXPECT_EQ(Elegida(), Carta(kOros, kAs));
}

TEST_F(TuteDeCuatro, ElTriunfoBajoSaleAPorElAlto) {
    Ponle(2, 100, kMedio);
    PonMano(2, {{kBastos, kRey}, {kBastos, 4}});
    Elige(2);
    EXPECT_EQ(Puntos({kBastos, kRey}), 500 + 12 + 10 + 32 - 20);
    EXPECT_EQ(Puntos({kBastos, 4}), 500 + 2 + 10 + 32 - 20);
}

TEST_F(TuteDeCuatro, ElAsDelCanteSaleConTresCartas) {
    Ponle(2, 81, kAgresivo);
    PonMano(2, {{kOros, kAs}, {kOros, kCaballo}, {kOros, kRey}});
    Elige(2);
    EXPECT_EQ(Puntos({kOros, kAs}), 500 + 26 + 28 - 400);
    Ponle(2, 80, kAgresivo);
    Elige(2);
    EXPECT_EQ(Puntos({kOros, kAs}), 500 + 26 + 28);
    Ponle(2, 81, kMedio);
    Elige(2);
    EXPECT_EQ(Puntos({kOros, kAs}), 500 + 21 + 28);
}

TEST_F(TuteDeCuatro, ElAsDelCanteSiguiendoConTresEnElGrupo) {
    EnMesa(1, {kOros, 7});
    Ponle(2, 81, kMedio);
    PonMano(2, {{kOros, kAs}, {kOros, kCaballo}, {kOros, kRey}});
    Elige(2);
    EXPECT_EQ(Puntos({kOros, kAs}), 500 + 21 + 28 - 400);
    Ponle(2, 81, kConservador);
    Elige(2);
    EXPECT_EQ(Puntos({kOros, kAs}), 500 + 16 + 28);
}

TEST_F(TuteDeCuatro, ElTresDelCanteEsperaAlAs) {
    EnMesa(1, {kOros, 7});
    Ponle(2, 96, kMedio);
    PonMano(2, {{kOros, kTres}, {kOros, kCaballo}, {kOros, kRey}});
    Elige(2);
    EXPECT_EQ(Puntos({kOros, kTres}), 500 + 19 + 28 + 120);
    YaJugadas({{kOros, kAs}});
    Elige(2);
    EXPECT_EQ(Puntos({kOros, kTres}), 500 + 19 + 28 - 350);
}

TEST_F(TuteDeCuatro, ElTresDelCanteDeUltimoSoloTemeAlAsDeLaMesa) {
    EnMesa(1, {kOros, 7});
    EnMesa(2, {kCopas, 2});
    EnMesa(3, {kCopas, 4});
    Ponle(4, 96, kMedio);
    PonMano(4, {{kOros, kTres}, {kOros, kCaballo}, {kOros, kRey}});
    Elige(4);
    EXPECT_EQ(Puntos({kOros, kTres}), 500 + 19 + 28 - 350);
    EnMesa(3, {kOros, kAs});
    Elige(4);
    EXPECT_EQ(Puntos({kOros, kTres}), 500 + 19 + 28 + 120);
}

TEST_F(TuteDeCuatro, LaImbatibleSeGuardaSiguiendo) {
    EnMesa(1, {kOros, 7});
    PonMano(2, {{kBastos, kAs}, {kBastos, kTres}});
    Elige(2);
    EXPECT_EQ(Puntos({kBastos, kAs}), 500 + 21 + 10 + 32 + 500);
    EXPECT_EQ(Puntos({kBastos, kTres}), 500 + 19 + 10 + 32 + 500); // the As is in the same hand
    Ponle(2, 50, kConservador);
    Elige(2);
    EXPECT_EQ(Puntos({kBastos, kAs}), 500 + 16 + 5 + 32);
}

// --- The place ----------------------------------------------------------------------------------------

namespace {

void TresEnLaMesa(Carta primera, Carta segunda, Carta tercera) {
    EnMesa(1, primera);
    EnMesa(2, segunda);
    EnMesa(3, tercera);
}

} // namespace

TEST_F(TuteDeCuatro, UltimoPorEncimaElFlojoTiraLaAlta) {
    TresEnLaMesa({kOros, 7}, {kCopas, 2}, {kCopas, 4});
    PonMano(4, {{kOros, kTres}, {kOros, kSota}});
    Ponle(4, 29, kMedio);
    Elige(4);
    EXPECT_EQ(Elegida(), Carta(kOros, kTres));
    Ponle(4, 30, kMedio);
    Elige(4);
    EXPECT_EQ(Elegida(), Carta(kOros, kSota));
}

TEST_F(TuteDeCuatro, UltimoPorEncimaElConservadorGanaSiPuede) {
    TresEnLaMesa({kOros, 7}, {kOros, kRey}, {kCopas, 4});
    PonMano(4, {{kOros, kTres}, {kOros, kSota}});
    Ponle(4, 59, kConservador);
    Elige(4);
    EXPECT_EQ(Elegida(), Carta(kOros, kTres));
    EnMesa(3, {kBastos, 2});
    Elige(4);
    EXPECT_EQ(Elegida(), Carta(kOros, kSota));
}

TEST_F(TuteDeCuatro, UltimoSirviendoElFlojoTiraLaAlta) {
    TresEnLaMesa({kOros, kAs}, {kCopas, 2}, {kCopas, 4});
    PonMano(4, {{kOros, kSota}, {kOros, 4}});
    Ponle(4, 59, kMedio);
    Elige(4);
    EXPECT_EQ(Elegida(), Carta(kOros, kSota));
    Ponle(4, 60, kMedio);
    Elige(4);
    EXPECT_EQ(Elegida(), Carta(kOros, 4));
}

TEST_F(TuteDeCuatro, UltimoFallandoSalvaElTriunfoQueOtroPuedeMatar) {
    TresEnLaMesa({kOros, 7}, {kOros, kSota}, {kCopas, 4});
    PonMano(4, {{kBastos, kRey}, {kBastos, 2}});
    Ponle(4, 81, kMedio);
    Elige(4);
    EXPECT_EQ(Elegida(), Carta(kBastos, kRey));
    Ponle(4, 80, kMedio);
    Elige(4);
    EXPECT_EQ(Elegida(), Carta(kBastos, 2));
}

TEST_F(TuteDeCuatro, UltimoFallandoElTriunfoAltoDeLaParejaNoAsusta) {
    TresEnLaMesa({kOros, 7}, {kOros, kSota}, {kCopas, 4});
    PonMano(4, {{kBastos, kRey}, {kBastos, 2}});
    PonMano(2, {{kBastos, kAs}});
    YaJugadas({{kBastos, kTres}});
    Ponle(4, 81, kMedio);
    Elige(4);
    EXPECT_EQ(Elegida(), Carta(kBastos, kRey));
    estado.ModalidadJuego = kDosParejas;
    Elige(4);
    EXPECT_EQ(Elegida(), Carta(kBastos, 2));
}

TEST_F(TuteConMazo, UltimoConMazoNoGastaUnTresEnUnRey) {
    EnMesa(2, {kOros, kRey});
    PonMano(4, {{kOros, 2}, {kOros, kTres}, {kCopas, 5}});
    Elige(4);
    EXPECT_EQ(Elegida(), Carta(kOros, 2));
    Ponle(4, 50, kAgresivo);
    Elige(4);
    EXPECT_EQ(Elegida(), Carta(kOros, kTres));
}

TEST_F(TuteConMazo, UltimoConMazoTriunfaUnAs) {
    EnMesa(2, {kOros, kAs});
    PonMano(4, {{kOros, 2}, {kBastos, 5}, {kCopas, 5}});
    Elige(4);
    EXPECT_EQ(Elegida(), Carta(kBastos, 5));
}

// The conservative seat wants 4 points more, or a card of 4 points itself.
TEST_F(TuteConMazo, UltimoConMazoElConservadorPideMas) {
    EnMesa(2, {kOros, kCaballo});
    PonMano(4, {{kOros, 2}, {kBastos, 5}});
    Ponle(4, 60, kMedio);
    Elige(4);
    EXPECT_EQ(Elegida(), Carta(kOros, 2)); // wanted, but 3 is too little for a trump
    Ponle(4, 60, kConservador);
    EnMesa(2, {kOros, kRey});
    Elige(4);
    EXPECT_EQ(Elegida(), Carta(kBastos, 5));
    EnMesa(2, {kOros, kCaballo});
    Elige(4);
    EXPECT_EQ(Elegida(), Carta(kOros, 2));
}

TEST_F(TuteConMazo, TriunfoDesperdiciadoDejaSitioAlDescarte) {
    EnMesa(2, {kOros, 5});
    PonMano(4, {{kCopas, kSota},
                {kCopas, kAs},
                {kCopas, kTres},
                {kCopas, kRey},
                {kEspadas, 7},
                {kBastos, 5}});
    Ponle(4, 60, kAgresivo);
    Elige(4);
    EXPECT_EQ(Elegida(), Carta(kEspadas, 7));
    Ponle(4, 50, kAgresivo);
    Elige(4);
    EXPECT_EQ(Elegida(), Carta(kCopas, kSota));
}

TEST_F(TuteConMazo, ConCanteEnManoNoSeSueltanSusCartas) {
    EnMesa(2, {kOros, 5});
    PonMano(4, {{kCopas, 4}, {kOros, kCaballo}, {kOros, kRey}});
    Ponle(4, 40, kMedio);
    Elige(4);
    EXPECT_EQ(Elegida(), Carta(kCopas, 4));
    Ponle(4, 39, kMedio);
    Elige(4);
    EXPECT_EQ(Elegida(), Carta(kOros, kCaballo));
}

TEST_F(TuteConMazo, ConTuteEnManoSoloGanaOtraCarta) {
    EnMesa(2, {kOros, 5});
    PonMano(4, {{kOros, kRey},
                {kCopas, kRey},
                {kEspadas, kRey},
                {kBastos, kRey},
                {kCopas, 4},
                {kOros, 7}});
    Elige(4);
    EXPECT_EQ(Elegida(), Carta(kOros, 7));
    estado.Mano(4, 1, 6, kPalo) = kEspadas;
    Elige(4);
    EXPECT_EQ(Elegida(), Carta(kCopas, 4));
}

// The Tute's place 6 - 4 passes the two legal cards.
TEST_F(TuteDeDos, ElPuestoNoPasaDeLasJugables) {
    estado.NumJugadores = 3;
    EnMesa(2, {kOros, kAs});
    PonMano(4, {{kOros, kRey},
                {kCopas, kRey},
                {kEspadas, kRey},
                {kBastos, kRey},
                {kCopas, 4},
                {kCopas, 7}});
    Elige(4);
    EXPECT_EQ(bazas.NumJugables, 1);
    EXPECT_EQ(Elegida(), Carta(kOros, kRey));
}

// --- Search, noise, tutor -----------------------------------------------------------------------------

TEST_F(TuteDeDos, LaBusquedaManda) {
    Ponle(2, 100, kMedio);
    PonMano(2, {{kOros, kAs}, {kCopas, 2}});
    busqueda.ConteoBusqueda(ClaveBusqueda(1)) = 1;
    busqueda.ConteoBusqueda(ClaveBusqueda(2)) = 1;
    busqueda.ConteoBusqueda(ClaveBusqueda(2, 1)) = 1;
    Elige(2);
    EXPECT_EQ(Elegida(), Carta(kCopas, 2));
    EXPECT_EQ(bazas.CartaBusqueda, 0);
    bazas.BusquedaActiva = true;
    Elige(2);
    EXPECT_EQ(bazas.CartaBusqueda, 1);
    EXPECT_EQ(Elegida(), Carta(kOros, kAs));
}

TEST_F(TuteDeDos, ConCanteEnManoNoSeMiraLaBusqueda) {
    Ponle(2, 100, kMedio);
    PonMano(2, {{kOros, kCaballo}, {kOros, kRey}});
    busqueda.ConteoBusqueda(ClaveBusqueda(1)) = 1;
    busqueda.ConteoBusqueda(ClaveBusqueda(2)) = 1;
    bazas.BusquedaActiva = true;
    Elige(2);
    EXPECT_EQ(bazas.CartaBusqueda, 0);
}

TEST_F(TuteDeDos, ConUnaSolaJugableAunPuedeProponerLaBusqueda) {
    EnMesa(2, {kOros, kRey});
    bazas.JugadaBaza(1) = 1;
    Ponle(4, 100, kMedio);
    PonMano(4, {{kOros, 4}, {kCopas, 5}});
    busqueda.ConteoBusqueda(ClaveBusqueda(1, 1)) = 1;
    busqueda.ConteoBusqueda(ClaveBusqueda(1, 2)) = 3;
    bazas.BusquedaActiva = true;
    Elige(4);
    EXPECT_EQ(bazas.NumJugables, 1);
    EXPECT_EQ(bazas.CartaBusqueda, 2);
    EXPECT_EQ(estado.CartaElegida, 2);
}

TEST_F(TuteDeCuatro, ElRuidoBajaDelPuestoElegido) {
    TresEnLaMesa({kOros, 7}, {kCopas, 2}, {kCopas, 4});
    PonMano(4, {{kOros, kTres}, {kOros, kSota}, {kOros, kRey}});
    Ponle(4, 10, kMedio); // the third place, then Int(0.5 x 3 + 1)
    estado.AzarTurno = 0.5F;
    Elige(4);
    EXPECT_EQ(Elegida(), Carta(kOros, kRey));
}

TEST_F(TuteDeCuatro, ElTutorJuegaANivelCienYLoDevuelve) {
    TresEnLaMesa({kOros, 7}, {kCopas, 2}, {kCopas, 4});
    PonMano(4, {{kOros, kTres}, {kOros, kSota}});
    Ponle(4, 20, kMedio);
    estado.TutorPulsado = true;
    Elige(4);
    EXPECT_EQ(Elegida(), Carta(kOros, kSota));
    EXPECT_EQ(estado.NivelJugador(4), 20);
    estado.TutorPulsado = false;
    Elige(4);
    EXPECT_EQ(Elegida(), Carta(kOros, kTres));
}

TEST_F(TuteDeCuatro, ANivelCienElProgramaJuegaLoQueDiceElTutor) {
    TresEnLaMesa({kOros, 7}, {kOros, kSota}, {kCopas, 4});
    PonMano(4, {{kBastos, kRey}, {kBastos, 2}, {kBastos, 7}});
    Ponle(4, 100, kMedio);
    estado.AzarTurno = 0.93F;
    estado.TutorPulsado = true;
    Elige(4);
    const Carta consejo = Elegida();
    estado.TutorPulsado = false;
    Elige(4);
    EXPECT_EQ(Elegida(), consejo);
}

TEST_F(TuteDeCuatro, UnaManoVaciaNoEligeNada) {
    estado.CartaElegida = 3;
    Elige(2);
    EXPECT_EQ(bazas.NumJugables, 0);
    EXPECT_EQ(estado.CartaElegida, 0);
}
