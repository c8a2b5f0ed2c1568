#include "games/common/trick_state.h"
#include "games/trick/choice_brisca.h"

#include <gtest/gtest.h>

#include "games/trick/search_state.h"
#include "tests/support/trick_hands.h"

using namespace prueba;

namespace {

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

Carta Elige(Integer asiento) {
    TocaA(asiento);
    EligeCartaBrisca();
    return Elegida();
}

void Ponle(Integer asiento, Integer nivel, Integer caracter) {
    estado.NivelJugador(asiento) = nivel;
    estado.CaracterJugador(asiento) = caracter;
}

// Four seats, stock of 20, the 4 of Bastos turned up.
struct Brisca : testing::Test {
    void SetUp() override {
        MesaDeBazas(kBrisca, 4);
        busqueda = {};
        Pinta({kBastos, 4});
        estado.CartasEnMazo = 20;
        estado.AzarTurno = 0.25F;
    }
    static void Mesa(Carta primera, Carta segunda, Carta tercera) {
        EnMesa(1, primera);
        EnMesa(2, segunda);
        EnMesa(3, tercera);
    }
};

} // namespace

TEST_F(Brisca, TantosOrdenTriunfoYEscasezDeQuienSale) {
    PonMano(4, {{kOros, 5}, {kBastos, 6}, {kOros, kTres}});
    Elige(4);
    EXPECT_EQ(Puntos({kOros, 5}), 3 + 2);
    EXPECT_EQ(Puntos({kBastos, 6}), 4 + 6 + 4);
    EXPECT_EQ(Puntos({kOros, kTres}), 19 + 2);
    EXPECT_EQ(bazas.NumJugables, 3);
    EXPECT_EQ(Elegida(), Carta(kOros, 5));
}

TEST_F(Brisca, ElTriunfoSeGuardaMasSiguiendo) {
    EnMesa(3, {kOros, kAs});
    PonMano(4, {{kBastos, 6}});
    Elige(4);
    EXPECT_EQ(Puntos({kBastos, 6}), 4 + 10 + 4);
}

TEST_F(Brisca, ElSieteValeComoLaQuePintaMientrasPuedaCambiarse) {
    Pinta({kBastos, kRey});
    PonMano(4, {{kBastos, 7}});
    Elige(4);
    EXPECT_EQ(Puntos({kBastos, 7}), 12 + 6 + 4);
    estado.CartasEnMazo = 4;
    Elige(4);
    EXPECT_EQ(Puntos({kBastos, 7}), 5 + 6 + 4);
}

TEST_F(Brisca, ElCuatroDeLaBriscaDeTresNoValeComoLaQuePinta) {
    MesaDeBazas(kBrisca, 3);
    Pinta({kBastos, 6});
    estado.CartasEnMazo = 20;
    PonMano(2, {{kBastos, 4}});
    Elige(2);
    EXPECT_EQ(Puntos({kBastos, 4}), 2 + 6 + 4);
}

TEST_F(Brisca, LosIgualesConservanElOrdenDeLaMano) {
    PonMano(4, {{kOros, 4}, {kCopas, 4}, {kEspadas, 4}});
    EXPECT_EQ(Elige(4), Carta(kOros, 4));
}

// --- Looking ahead -------------------------------------------------------------------------------------

TEST_F(Brisca, ElNivelAltoMiraLasManosQueFaltan) {
    EnMesa(1, {kOros, 5});
    PonMano(2, {{kOros, kRey}, {kOros, kSota}, {kEspadas, 2}});
    PonMano(3, {{kOros, 7}, {kCopas, 4}, {kCopas, 5}});
    PonMano(4, {{kCopas, 2}, {kCopas, 6}, {kOros, 2}});
    Ponle(2, 96, kMedio);
    EXPECT_EQ(Elige(2), Carta(kOros, kSota));
    Ponle(2, 95, kMedio);
    EXPECT_EQ(Elige(2), Carta(kEspadas, 2));
}

TEST_F(Brisca, ElTriunfoDelQueFaltaNoSeGana) {
    EnMesa(1, {kOros, 5});
    PonMano(2, {{kOros, kRey}, {kOros, kSota}, {kEspadas, 2}});
    PonMano(3, {{kOros, 7}, {kCopas, 4}, {kCopas, 5}});
    PonMano(4, {{kCopas, 2}, {kBastos, 2}, {kOros, 2}});
    Ponle(2, 100, kMedio);
    EXPECT_EQ(Elige(2), Carta(kEspadas, 2));
}

TEST_F(Brisca, UnaVezDeCadaDiezNoSeMira) {
    EnMesa(1, {kOros, 5});
    PonMano(2, {{kOros, kSota}, {kEspadas, 2}});
    Ponle(2, 100, kMedio);
    estado.AzarTurno = 0.0625F;
    EXPECT_EQ(Elige(2), Carta(kEspadas, 2));
    estado.AzarTurno = 0.125F;
    EXPECT_EQ(Elige(2), Carta(kOros, kSota));
}

TEST_F(Brisca, ElConservadorSoloMiraSinMazo) {
    EnMesa(1, {kOros, 5});
    PonMano(2, {{kOros, kSota}, {kEspadas, 2}});
    Ponle(2, 100, kConservador);
    EXPECT_EQ(Elige(2), Carta(kEspadas, 2));
    estado.CartasEnMazo = 0;
    EXPECT_EQ(Elige(2), Carta(kOros, kSota));
}

// Seat 2 sits opposite seat 4; outside pairs that still lets the last seat look.
TEST_F(Brisca, DeUltimoSoloMiraSiGanaElDeEnfrenteTambienSinParejas) {
    PonMano(4, {{kOros, kTres}, {kOros, kAs}, {kEspadas, 2}});
    Ponle(4, 100, kMedio);
    Mesa({kOros, 5}, {kOros, kRey}, {kCopas, 2});
    EXPECT_EQ(Elige(4), Carta(kOros, kTres));
    Mesa({kOros, kRey}, {kOros, 5}, {kCopas, 2});
    EXPECT_EQ(Elige(4), Carta(kOros, kAs));
}

// --- The last seat -------------------------------------------------------------------------------------

TEST_F(Brisca, DeUltimoElFlojoTiraLaAlta) {
    Mesa({kOros, 5}, {kCopas, 2}, {kCopas, 4});
    PonMano(4, {{kEspadas, kTres}, {kOros, 7}, {kEspadas, 2}});
    Ponle(4, 29, kMedio);
    EXPECT_EQ(Elige(4), Carta(kEspadas, kTres));
    Ponle(4, 30, kMedio);
    EXPECT_EQ(Elige(4), Carta(kOros, 7));
}

TEST_F(Brisca, DeUltimoElConservadorFlojoGanaConLaMasCara) {
    Mesa({kOros, 5}, {kCopas, kRey}, {kCopas, 4});
    PonMano(4, {{kOros, 7}, {kOros, kTres}, {kEspadas, kAs}});
    Ponle(4, 59, kConservador);
    EXPECT_EQ(Elige(4), Carta(kOros, kTres));
    Ponle(4, 29, kConservador);
    EXPECT_EQ(Elige(4), Carta(kOros, kTres)); // the second rule has the last word
}

TEST_F(Brisca, DeUltimoSinMazoSalvaElTriunfoQueOtroPuedeMatar) {
    Mesa({kOros, 5}, {kCopas, kRey}, {kCopas, 4});
    PonMano(4, {{kOros, 7}, {kBastos, kRey}});
    Ponle(4, 81, kConservador);
    estado.CartasEnMazo = 0;
    EXPECT_EQ(Elige(4), Carta(kBastos, kRey));
    YaJugadas({{kBastos, kAs}, {kBastos, kTres}});
    EXPECT_EQ(Elige(4), Carta(kOros, 7));
}

TEST_F(Brisca, DeUltimoElAgresivoTomaConLaPrimera) {
    Mesa({kOros, kSota}, {kCopas, 2}, {kCopas, 4});
    PonMano(4, {{kEspadas, 2}, {kOros, kCaballo}, {kOros, kTres}});
    Ponle(4, 50, kAgresivo);
    EXPECT_EQ(Elige(4), Carta(kOros, kCaballo));
}

// What the rivals have laid must exceed the card by 1; otherwise a later winner takes the place.
TEST_F(Brisca, DeUltimoElMedioSigueBuscandoHastaQueCompensa) {
    Mesa({kOros, kSota}, {kCopas, kSota}, {kCopas, 4});
    PonMano(4, {{kEspadas, 2}, {kOros, kCaballo}, {kOros, kTres}});
    Ponle(4, 50, kMedio);
    EXPECT_EQ(Elige(4), Carta(kOros, kCaballo)); // 4 against 3 and 1
    Mesa({kOros, kSota}, {kCopas, 2}, {kCopas, 4});
    EXPECT_EQ(Elige(4), Carta(kOros, kTres)); // 2 is not enough for either: the last one stays
}

TEST_F(Brisca, DeUltimoElConservadorTomaConCartaDeTantos) {
    Mesa({kOros, 5}, {kCopas, 2}, {kCopas, 4});
    PonMano(4, {{kOros, kRey}, {kOros, kTres}, {kEspadas, kTres}});
    Ponle(4, 60, kConservador);
    EXPECT_EQ(Elige(4), Carta(kOros, kRey));
}

TEST_F(Brisca, SeDanTantosALaParejaQueGana) {
    estado.ModalidadJuego = kDosParejas;
    Mesa({kOros, 5}, {kOros, kAs}, {kCopas, 4});
    PonMano(4, {{kEspadas, 2}, {kEspadas, kSota}, {kCopas, kRey}});
    Ponle(4, 50, kAgresivo);
    EXPECT_EQ(Elige(4), Carta(kEspadas, 2));
    Ponle(4, 50, kMedio);
    EXPECT_EQ(Elige(4), Carta(kEspadas, kSota));
    Ponle(4, 60, kConservador);
    EXPECT_EQ(Elige(4), Carta(kCopas, kRey));
    estado.ModalidadJuego = kIndividual;
    EXPECT_EQ(Elige(4), Carta(kEspadas, 2));
}

// --- Trumps that are not spent -------------------------------------------------------------------------

TEST_F(Brisca, UnTriunfoNoSeGastaEnPoco) {
    Mesa({kOros, kSota}, {kCopas, 2}, {kEspadas, 4});
    PonMano(4, {{kCopas, kTres}, {kBastos, 5}, {kEspadas, 7}});
    Ponle(4, 60, kMedio);
    EXPECT_EQ(Elige(4), Carta(kEspadas, 7)); // 2 points, and the least is 4
    Mesa({kOros, kRey}, {kCopas, 2}, {kEspadas, 4});
    EXPECT_EQ(Elige(4), Carta(kBastos, 5));
    estado.AzarTurno = 0.5F; // the least is 5 now
    EXPECT_EQ(Elige(4), Carta(kEspadas, 7));
}

// Nothing has been thrown away before the trump, so that it takes the place itself: a seat above level
// 50 then spends it after all.
TEST_F(Brisca, ElDescartePuedeSerElMismoTriunfo) {
    Mesa({kOros, 5}, {kCopas, 2}, {kEspadas, 4});
    PonMano(4, {{kCopas, kRey}, {kBastos, 6}});
    Ponle(4, 51, kMedio);
    EXPECT_EQ(Elige(4), Carta(kBastos, 6));
    Ponle(4, 50, kMedio);
    EXPECT_EQ(Elige(4), Carta(kCopas, kRey));
}

TEST_F(Brisca, ElAsDeTriunfosNoCaeEnUnaBazaVacia) {
    Mesa({kOros, 5}, {kCopas, 2}, {kEspadas, 4});
    PonMano(4, {{kCopas, 7}, {kBastos, kAs}});
    Ponle(4, 61, kMedio);
    EXPECT_EQ(Elige(4), Carta(kCopas, 7));
    Ponle(4, 60, kMedio);
    EXPECT_EQ(Elige(4), Carta(kBastos, kAs));
}

// The aggressive seat keeps it from a trick with points, too, as long as it has thrown nothing away.
TEST_F(Brisca, ElAgresivoGuardaElAsDeTriunfosAntesDelFinal) {
    EnMesa(1, {kOros, kRey});
    PonMano(2, {{kCopas, 7}, {kBastos, kAs}});
    Ponle(2, 100, kAgresivo);
    EXPECT_EQ(Elige(2), Carta(kCopas, 7));
    Ponle(2, 100, kMedio);
    EXPECT_EQ(Elige(2), Carta(kBastos, kAs));
}

// --- Search, noise, tutor ------------------------------------------------------------------------------

namespace {

// Seat 2 leads; the search prefers the card at the place.
void Prefiere(int lugar) {
    bazas.BusquedaActiva = true;
    for (int otro = 1; otro <= 3; ++otro) {
        busqueda.ConteoBusqueda(ClaveBusqueda(otro)) = 1;
        busqueda.ConteoBusqueda(ClaveBusqueda(otro, 1)) = otro == lugar ? 0 : 1;
    }
}

} // namespace

TEST_F(Brisca, LaBusquedaManda) {
    PonMano(2, {{kOros, kSota}, {kCopas, kRey}, {kOros, kCaballo}});
    Ponle(2, 100, kMedio);
    Prefiere(3);
    EXPECT_EQ(Elige(2), Carta(kOros, kCaballo));
    EXPECT_EQ(bazas.CartaBusqueda, 3);
}

TEST_F(Brisca, ConMazoLaBusquedaNoSueltaTantos) {
    PonMano(2, {{kOros, kSota}, {kCopas, kTres}, {kOros, kCaballo}});
    Ponle(2, 100, kMedio);
    Prefiere(2);
    EXPECT_EQ(Elige(2), Carta(kOros, kSota)); // 10 against 2
    EXPECT_EQ(bazas.CartaBusqueda, 0);
    estado.CartasEnMazo = 0;
    EXPECT_EQ(Elige(2), Carta(kCopas, kTres));
}

TEST_F(Brisca, ConMazoUnaCartaSinTantosNoSeCambia) {
    PonMano(2, {{kOros, 7}, {kCopas, 6}, {kCopas, 5}});
    Ponle(2, 100, kMedio);
    Prefiere(1);
    EXPECT_EQ(Elige(2), Carta(kCopas, 5));
    EXPECT_EQ(bazas.CartaBusqueda, 0);
}

TEST_F(Brisca, ElRuidoBajaDelPuestoElegido) {
    Mesa({kOros, 5}, {kCopas, 2}, {kCopas, 4});
    PonMano(4, {{kEspadas, kTres}, {kOros, 7}, {kEspadas, 2}});
    Ponle(4, 10, kMedio);
    estado.AzarTurno = 0.5F; // the third place, then Int(0.5 x 3 + 1)
    EXPECT_EQ(Elige(4), Carta(kOros, 7));
}

TEST_F(Brisca, ElTutorDejaElNivelEnCien) {
    PonMano(4, {{kOros, 5}, {kBastos, 6}, {kOros, kTres}});
    Ponle(4, 20, kMedio);
    estado.TutorPulsado = true;
    Elige(4);
    EXPECT_EQ(estado.NivelJugador(4), 100);
}

TEST_F(Brisca, ANivelCienElProgramaJuegaLoQueDiceElTutor) {
    Mesa({kOros, kSota}, {kCopas, kSota}, {kCopas, 4});
    PonMano(4, {{kEspadas, 2}, {kOros, kCaballo}, {kOros, kTres}});
    Ponle(4, 100, kMedio);
    estado.AzarTurno = 0.93F;
    estado.TutorPulsado = true;
    const Carta consejo = Elige(4);
    estado.TutorPulsado = false;
    EXPECT_EQ(Elige(4), consejo);
}

TEST_F(Brisca, UnaManoVaciaNoEligeNada) {
    estado.CartaElegida = 2;
    TocaA(4);
    EligeCartaBrisca();
    EXPECT_EQ(bazas.NumJugables, 0);
    EXPECT_EQ(estado.CartaElegida, 0);
}
