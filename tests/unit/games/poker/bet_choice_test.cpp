// How much a seat of Póker puts in. With a limit of 100 and no ante, 50 can go in the first round, 100 in the second.

#include "games/poker/bet_choice.h"

#include <gtest/gtest.h>

#include "betting/bet_state.h"
#include "betting/chips.h"
#include "games/poker/hand_reading.h"
#include "games/poker/poker_state.h"
#include "tests/support/poker_seats.h"

using namespace prueba;

namespace {

constexpr Integer kPrimera = 3, kSegunda = 5;
constexpr const char *kTresSietes = "7o 7c 7e Kb 2o", *kDosSietes = "7o 7c Ke 9b 2o",
                     *kNada = "Ko Jc 8e 5b 2o", *kEscalera = "5o 6c 7e 8b 9o",
                     *kDoble = "7o 7c 9e 9b Ko";

class EleccionDeApuesta : public AsientosDePoker {
protected:
    static void Juega(const char* mano, Integer caracter, Integer nivel = 50) {
        Da(1, mano);
        estado.CaracterJugador(1) = caracter;
        estado.NivelJugador(1) = nivel;
    }
    static void CreeQueTienen(std::initializer_list<Integer> asientos, Integer jugada) {
        for (const Integer asiento : asientos)
            poker.JugadaCreidaMin(asiento) = poker.JugadaCreidaMax(asiento) = jugada;
    }
    // The seat has bet so much of the round already, and the highest bet stands there.
    static void Responde(Integer fase, Integer puesto, Integer maxima, double azar) {
        Apuesta(1, fase, puesto);
        Ronda(fase, maxima, azar);
    }
};

struct FilaApertura {
    Integer caracter;
    double azar;
    Integer mesa; // character of all rivals
    Integer puntos;
};

} // namespace

// --- Nobody has bet yet

TEST_F(EleccionDeApuesta, AbreConFuerzaGrande) {
    const FilaApertura filas[] = {
        {kConservador, 0.49, kMedio, 7}, // 50 of 7
        {kConservador, 0.5, kMedio, 6},  // 50 of 8
        {kMedio, 0.49, kMedio, 10},      // 50 of 5
        {kMedio, 0.5, kMedio, 8},        // 50 of 6
        {kAgresivo, 0.49, kMedio, 15},   // 50 of 3, 17, in multiples of 5
        {kAgresivo, 0.5, kAgresivo, 12}, // 50 of 4: 12.5, to the even one
        // Before a cautious table six tenths of it, before one without a character eight.
        {kConservador, 0.49, kConservador, 4},
        {kMedio, 0.49, kConservador, 6},
        {kAgresivo, 0.49, kConservador, 10},
        {kMedio, 0.49, 0, 8},
    };
    for (const FilaApertura& fila : filas) {
        SCOPED_TRACE(testing::Message() << "character " << fila.caracter << ", table " << fila.mesa
                                        << ", number " << fila.azar);
        Juega(kTresSietes, fila.caracter);
        Rivales({2, 3}, fila.mesa);
        Ronda(kPrimera, 0, fila.azar);
        EXPECT_EQ(Propuesta(), fila.puntos);
    }
}

TEST_F(EleccionDeApuesta, AbreConFuerzaMedia) {
    const FilaApertura filas[] = {
        {kConservador, 0.33, kMedio, 5},       // 50 of 10
        {kConservador, 0.34, kMedio, 5},       // 50 of 11: 4.5 and a bit
        {kConservador, 0.67, kMedio, 4},       // 50 of 12
        {kMedio, 0.33, kMedio, 7},             // 50 of 7
        {kMedio, 0.34, kMedio, 6},             // 50 of 8
        {kMedio, 0.67, kMedio, 6},             // 50 of 9
        {kAgresivo, 0.33, kMedio, 12},         // 50 of 4
        {kAgresivo, 0.34, kMedio, 10},         // 50 of 5
        {kAgresivo, 0.67, kMedio, 8},          // 50 of 6
        {kConservador, 0.33, kConservador, 0}, // two cautious ones look at each other
        {kMedio, 0.33, kConservador, 7},
        {kAgresivo, 0.33, kConservador, 12},
        {kConservador, 0.33, kAgresivo, 5},
    };
    for (const FilaApertura& fila : filas) {
        SCOPED_TRACE(testing::Message() << "character " << fila.caracter << ", table " << fila.mesa
                                        << ", number " << fila.azar);
        Juega(kDosSietes, fila.caracter);
        Rivales({2, 3}, fila.mesa);
        Ronda(kPrimera, 0, fila.azar);
        EXPECT_EQ(Propuesta(), fila.puntos);
    }
}

TEST_F(EleccionDeApuesta, ConFuerzaFlojaSoloAbreElFarolDelAgresivo) {
    const FilaApertura filas[] = {
        {kAgresivo, 0.19, kConservador, 25}, // half of 50
        {kAgresivo, 0.2, kConservador, 0},     {kAgresivo, 0.19, kMedio, 0},
        {kAgresivo, 0.19, kAgresivo, 0},       {kMedio, 0.19, kConservador, 0},
        {kConservador, 0.19, kConservador, 0},
    };
    for (const FilaApertura& fila : filas) {
        SCOPED_TRACE(testing::Message() << "character " << fila.caracter << ", table " << fila.mesa
                                        << ", number " << fila.azar);
        Juega(kNada, fila.caracter);
        Rivales({2, 3}, fila.mesa);
        Ronda(kPrimera, 0, fila.azar);
        EXPECT_EQ(Propuesta(), fila.puntos);
    }
}

TEST_F(EleccionDeApuesta, MasDeUnaAmenazaConvierteUnaAperturaFuerteEnPase) {
    Juega(kEscalera, kMedio);
    Rivales({2, 3}, kMedio);
    Ronda(kSegunda, 0, 0.0);
    CreeQueTienen({2}, poker.Poker);
    EXPECT_EQ(Propuesta(), 20) << "one alone does not stop it: 100 of 5";
    CreeQueTienen({2, 3}, poker.Poker);
    EXPECT_EQ(Propuesta(), 0);
}

TEST_F(EleccionDeApuesta, LasAmenazasNoCallanUnaAperturaMedia) {
    Juega(kDoble, kMedio);
    Rivales({2, 3}, kMedio);
    CreeQueTienen({2, 3}, poker.Poker);
    Ronda(kSegunda, 0, 0.0);
    EXPECT_EQ(Propuesta(), 14) << "100 of 7";
}

// The mean of the characters 1..3 is never 0; a table that was given none opens to eight tenths all the same.
TEST_F(EleccionDeApuesta, LaActitudCeroTieneSuFactor) {
    Juega(kTresSietes, kMedio);
    Rivales({2}, 0);
    Ronda(kPrimera, 0, 0.0);
    EXPECT_EQ(Propuesta(), 8) << "ten, times 0.8";
}

// --- Somebody has bet: a strong hand

TEST_F(EleccionDeApuesta, UnConservadorFuerteNuncaSube) {
    Rivales({2, 3}, kAgresivo);
    for (const double azar : {0.0, 0.5, 0.99}) {
        for (const char* mano : {kTresSietes, kEscalera, "7o 7c 7e 7b 2o"}) {
            Juega(mano, kConservador);
            Responde(kPrimera, 0, 12, azar);
            EXPECT_EQ(Propuesta(), 12);
        }
    }
}

TEST_F(EleccionDeApuesta, UnMedioFuerteSubePorLaActitudDeLaMesa) {
    struct {
        Integer mesa;
        double azar;
        Integer puntos;
    } const filas[] = {
        {kConservador, 0.9, 13}, // a third of 0.9 on top of 10
        {kMedio, 0.9, 15},       // 16 in multiples of 5
        {kAgresivo, 0.4, 14},
        {kAgresivo, 0.0, 10},
    };
    Juega(kTresSietes, kMedio);
    for (const auto& fila : filas) {
        SCOPED_TRACE(fila.puntos);
        Rivales({2, 3}, fila.mesa);
        Responde(kPrimera, 0, 10, fila.azar);
        EXPECT_EQ(Propuesta(), fila.puntos);
    }
}

TEST_F(EleccionDeApuesta, UnMedioFuerteSoloIgualaAnteUnaAmenaza) {
    Juega(kEscalera, kMedio);
    Rivales({2, 3}, kAgresivo);
    Responde(kSegunda, 0, 10, 0.4);
    EXPECT_EQ(Propuesta(), 14);
    CreeQueTienen({3}, poker.Poker);
    EXPECT_EQ(Propuesta(), 10);
}

TEST_F(EleccionDeApuesta, UnAgresivoFuerteSubeTambienPorSuJugada) {
    Juega(kTresSietes, kAgresivo); // category 10: the mood counts whole
    Rivales({2, 3}, kMedio);
    Responde(kPrimera, 0, 10, 0.25);
    EXPECT_EQ(Propuesta(), 15) << "half more";
    Juega("7o 7c 7e 7b 2o", kAgresivo); // 15: once and a half
    EXPECT_EQ(Propuesta(), 15) << "three quarters more, 17.5, 18 and down to 15";
    Responde(kPrimera, 0, 10, 0.5);
    EXPECT_EQ(Propuesta(), 25);
}

TEST_F(EleccionDeApuesta, UnAgresivoConPokerSubeHastaCuatroVecesYMediaLaLlamada) {
    Juega("7o 7c 7e 7b 2o", kAgresivo);
    Rivales({2, 3}, kAgresivo);
    Responde(kSegunda, 0, 10, 0.999);
    EXPECT_EQ(Propuesta(), 55);
}

TEST_F(EleccionDeApuesta, UnAgresivoFuerteSoloSeFrenaAnteDosAmenazas) {
    Juega(kEscalera, kAgresivo);
    Rivales({2, 3}, kMedio);
    Responde(kSegunda, 0, 10, 0.5);
    CreeQueTienen({2}, poker.Poker);
    EXPECT_EQ(Propuesta(), 20) << "2 x 1.2 x 0.5 on top, 22";
    CreeQueTienen({2, 3}, poker.Poker);
    EXPECT_EQ(Propuesta(), 10);
}

// Nobody else holds cards: the seat may add no more than the highest bet. What comes to 23 in all becomes 24.
TEST_F(EleccionDeApuesta, SinRivalesConCartasUnNivelAltoSube) {
    struct {
        Integer caracter, nivel, puntos;
    } const filas[] = {{kConservador, 75, 5}, {kConservador, 76, 9}, {kMedio, 60, 5},
                       {kMedio, 61, 10},      {kAgresivo, 45, 5},    {kAgresivo, 46, 12}};
    for (const auto& fila : filas) {
        SCOPED_TRACE(testing::Message() << fila.caracter << " " << fila.nivel);
        Juega(kEscalera, fila.caracter, fila.nivel);
        Responde(kSegunda, 15, 20, 0.5);
        EXPECT_EQ(Propuesta(), fila.puntos);
    }
}

TEST_F(EleccionDeApuesta, SinRivalesEnLaPrimeraRondaSoloIguala) {
    Juega(kTresSietes, kMedio, 100);
    Responde(kPrimera, 15, 20, 0.5);
    EXPECT_EQ(Propuesta(), 5);
}

// Someone really has better. The limit of the round is 100, the seat's chips are 200.
TEST_F(EleccionDeApuesta, ANivel100UnTrioSeRetiraAnteUnaLlamadaDeMasDel35PorCiento) {
    Juega(kTresSietes, kAgresivo, 100);
    Rivales({3}, kMedio);
    Da(2, "8o 8c 8e 8b 2c");
    Responde(kSegunda, 0, 36, 0.0);
    EXPECT_EQ(Propuesta(), -1);
    Responde(kSegunda, 0, 35, 0.0);
    EXPECT_EQ(Propuesta(), 35);
}

TEST_F(EleccionDeApuesta, ANivel90ElMismoTrioIguala) {
    Juega(kTresSietes, kAgresivo, 90);
    Da(2, "8o 8c 8e 8b 2c");
    Responde(kSegunda, 0, 40, 0.0);
    EXPECT_EQ(Propuesta(), 40);
    estado.NivelJugador(1) = 91;
    EXPECT_EQ(Propuesta(), -1);
}

TEST_F(EleccionDeApuesta, SinNadieMejorANivel100Iguala) {
    Juega(kTresSietes, kAgresivo, 100);
    Da(2, "9o 9c 9e Kb 3c"); // another Trio, and a higher one: the category is what counts
    Responde(kSegunda, 0, 40, 0.0);
    EXPECT_EQ(Propuesta(), 40);
}

TEST_F(EleccionDeApuesta, ANivel100TambienSeRetiraPorElTreintaPorCientoDeSuResto) {
    Juega(kEscalera, kMedio, 100);
    Da(2, "8o 8c 8e 8b 2c");
    AsignarResto(1, 60);
    Responde(kSegunda, 0, 18, 0.0);
    EXPECT_EQ(Propuesta(), 15);
    Responde(kSegunda, 0, 19, 0.0);
    EXPECT_EQ(Propuesta(), -1);
}

// --- Somebody has bet: a middling hand

TEST_F(EleccionDeApuesta, EnLaPrimeraRondaUnaManoMediaIguala) {
    Juega(kDosSietes, kMedio, 80);
    Rivales({2, 3}, kMedio);
    Responde(kPrimera, 0, 35, 0.5);
    EXPECT_EQ(Propuesta(), 35);
}

// A tenth more than a fifth of the 50 that can go in, times the character: 10.1, 20.2 and 30.3.
TEST_F(EleccionDeApuesta, AnteUnaMesaCautaUnaManoMediaNoEntraCara) {
    struct {
        Integer caracter, llamada, puntos;
    } const filas[] = {{kConservador, 10, 10}, {kConservador, 11, -1}, {kMedio, 15, 15},
                       {kMedio, 21, -1},       {kAgresivo, 30, 30},    {kAgresivo, 31, -1}};
    Rivales({2, 3}, kConservador);
    for (const auto& fila : filas) {
        SCOPED_TRACE(testing::Message() << fila.caracter << " " << fila.llamada);
        Juega(kDosSietes, fila.caracter);
        Responde(kPrimera, 0, fila.llamada, 0.5);
        EXPECT_EQ(Propuesta(), fila.puntos);
    }
}

TEST_F(EleccionDeApuesta, UnaEntradaQueNoPasaDeLoJustoYaEsCara) {
    Juega(kDosSietes, kMedio);
    Rivales({2, 3}, kConservador);
    estado.ApuestaMaxima = 24; // 12 can go in: 2.5 times 2
    Responde(kPrimera, 0, 5, 0.5);
    EXPECT_EQ(Propuesta(), -1);
    Responde(kPrimera, 0, 4, 0.5);
    EXPECT_EQ(Propuesta(), 4);
}

TEST_F(EleccionDeApuesta, QuienYaHaApostadoEnLaRondaNoSeEcha) {
    Juega(kDosSietes, kConservador);
    Rivales({2, 3}, kConservador);
    Responde(kPrimera, 1, 12, 0.5);
    EXPECT_EQ(Propuesta(), 11);
}

TEST_F(EleccionDeApuesta, ANivelMayorQue80LaMitadDelTopeEsDemasiado) {
    struct {
        Integer caracter, nivel, llamada, puntos;
    } const filas[] = {{kMedio, 81, 25, -1},
                       {kMedio, 81, 24, 20},
                       {kMedio, 80, 25, 25},
                       {kConservador, 81, 25, -1},
                       {kAgresivo, 81, 25, 25}};
    Rivales({2, 3}, kMedio);
    for (const auto& fila : filas) {
        SCOPED_TRACE(testing::Message()
                     << fila.caracter << " " << fila.nivel << " " << fila.llamada);
        Juega(kDosSietes, fila.caracter, fila.nivel);
        Responde(kPrimera, 0, fila.llamada, 0.5);
        EXPECT_EQ(Propuesta(), fila.puntos);
    }
}

TEST_F(EleccionDeApuesta, EnLaSegundaRondaUnaManoMediaHuyeDeDosAmenazas) {
    Juega(kDoble, kMedio);
    Rivales({2, 3}, kMedio);
    Responde(kSegunda, 0, 12, 0.5);
    CreeQueTienen({2}, poker.Trio);
    EXPECT_EQ(Propuesta(), 12);
    CreeQueTienen({2, 3}, poker.Trio);
    EXPECT_EQ(Propuesta(), -1);
}

TEST_F(EleccionDeApuesta, UnAgresivoAprietaAUnConservadorSolitarioQueCreeMejor) {
    Juega(kDosSietes, kAgresivo);
    Rivales({2}, kConservador);
    Rivales({3}, kMedio);
    CreeQueTienen({2}, poker.Trio);
    Responde(kSegunda, 0, 10, 0.19);
    EXPECT_EQ(Propuesta(), 20);
    estado.AzarTurno = 0.2F;
    EXPECT_EQ(Propuesta(), 10);
    Responde(kSegunda, 0, 10, 0.19);
    estado.CaracterJugador(1) = kMedio;
    Juega(kDoble, kMedio);
    EXPECT_EQ(Propuesta(), 10) << "not a Medio";
}

TEST_F(EleccionDeApuesta, UnAgresivoNoAprietaAQuienNoEsConservadorNiSinAmenaza) {
    Juega(kDosSietes, kAgresivo);
    Rivales({2}, kConservador);
    Rivales({3}, kMedio);
    Responde(kSegunda, 0, 10, 0.19);
    EXPECT_EQ(Propuesta(), 10) << "nobody seems better";
    CreeQueTienen({3}, poker.Trio);
    EXPECT_EQ(Propuesta(), 10) << "a Medio seems better";
}

// What comes to 22 in all becomes 24.
TEST_F(EleccionDeApuesta, SinRivalesConCartasUnaManoMediaSubeLaMitad) {
    struct {
        Integer caracter, nivel, puntos;
    } const filas[] = {{kConservador, 75, 10}, {kConservador, 76, 14}, {kMedio, 60, 10},
                       {kMedio, 61, 15},       {kAgresivo, 45, 10},    {kAgresivo, 46, 15}};
    for (const auto& fila : filas) {
        SCOPED_TRACE(testing::Message() << fila.caracter << " " << fila.nivel);
        Juega(kDoble, fila.caracter, fila.nivel);
        Responde(kSegunda, 10, 20, 0.5);
        EXPECT_EQ(Propuesta(), fila.puntos);
    }
}

TEST_F(EleccionDeApuesta, ANivelMayorQue90UnaManoMediaSeRetiraAnteQuienTieneMas) {
    Juega(kDoble, kMedio, 91);
    Da(2, "8o 8c 8e 8b 2c");
    Responde(kSegunda, 0, 15, 0.5);
    EXPECT_EQ(Propuesta(), 15);
    Responde(kSegunda, 0, 16, 0.5);
    EXPECT_EQ(Propuesta(), -1) << "more than 0.15 of 100";
    estado.NivelJugador(1) = 90;
    EXPECT_EQ(Propuesta(), 15);
}

TEST_F(EleccionDeApuesta, UnaManoMediaSeRetiraTambienPorElDiezPorCientoDeSuResto) {
    Juega(kDoble, kMedio, 91);
    Da(2, "8o 8c 8e 8b 2c");
    AsignarResto(1, 100);
    Responde(kSegunda, 0, 10, 0.5);
    EXPECT_EQ(Propuesta(), 10);
    Responde(kSegunda, 0, 11, 0.5);
    EXPECT_EQ(Propuesta(), -1);
}

// --- Somebody has bet: a weak hand

TEST_F(EleccionDeApuesta, UnaManoFlojaSeRetira) {
    Juega(kNada, kConservador, 100);
    Rivales({2, 3}, kMedio);
    Responde(kPrimera, 0, 10, 0.5);
    EXPECT_EQ(Propuesta(), -1);
    Responde(kSegunda, 0, 10, 0.0);
    EXPECT_EQ(Propuesta(), -1);
}

TEST_F(EleccionDeApuesta, ElFarolDelAgresivoDoblaLaApuesta) {
    struct {
        Integer caracter, mesa;
        double azar;
        Integer puntos;
    } const filas[] = {{kAgresivo, kMedio, 0.124, 20},
                       {kAgresivo, kMedio, 0.125, -1},
                       {kAgresivo, kConservador, 0.124, 20},
                       {kAgresivo, kAgresivo, 0.124, -1},
                       {kMedio, kMedio, 0.124, -1}};
    for (const auto& fila : filas) {
        SCOPED_TRACE(testing::Message() << fila.caracter << " " << fila.mesa << " " << fila.azar);
        Juega(kNada, fila.caracter);
        Rivales({2, 3}, fila.mesa);
        Responde(kSegunda, 0, 10, fila.azar);
        EXPECT_EQ(Propuesta(), fila.puntos);
    }
}

TEST_F(EleccionDeApuesta, EnLaPrimeraRondaUnaManoFlojaIgualaAVecesPorSuCaracter) {
    struct {
        Integer caracter, mesa;
        double azar;
        Integer puntos;
    } const filas[] = {{kConservador, kMedio, 0.11, 10},   {kConservador, kMedio, 0.12, -1},
                       {kMedio, kMedio, 0.22, 10},         {kMedio, kMedio, 0.23, -1},
                       {kAgresivo, kMedio, 0.33, 10},      {kAgresivo, kMedio, 0.34, -1},
                       {kConservador, kAgresivo, 0.0, 10}, {kConservador, kConservador, 0.0, -1}};
    for (const auto& fila : filas) {
        SCOPED_TRACE(testing::Message() << fila.caracter << " " << fila.mesa << " " << fila.azar);
        Juega(kNada, fila.caracter);
        Rivales({2, 3}, fila.mesa);
        Responde(kPrimera, 0, 10, fila.azar);
        EXPECT_EQ(Propuesta(), fila.puntos);
    }
}

TEST_F(EleccionDeApuesta, CuandoValenLosDosIgualarPasaAntesQueElFarol) {
    Juega(kNada, kAgresivo);
    Rivales({2, 3}, kMedio);
    Responde(kPrimera, 0, 10, 0.05);
    EXPECT_EQ(Propuesta(), 10);
    Rivales({2, 3}, kConservador);
    EXPECT_EQ(Propuesta(), 20) << "at a cautious table there is only the bluff";
}

// --- The shape of the proposal

TEST_F(EleccionDeApuesta, UnaSubidaDeMenosDeUnCuartoSeQuedaEnUnQuinto) {
    Juega(kTresSietes, kMedio);
    Rivales({2, 3}, kMedio);
    Responde(kPrimera, 0, 10, 0.1); // 10.67, 11
    EXPECT_EQ(Propuesta(), 12);
    Responde(kPrimera, 0, 10, 0.33); // 12.2: the same one of a fifth
    EXPECT_EQ(Propuesta(), 12);
    Responde(kPrimera, 0, 12, 0.375); // exactly a quarter
    EXPECT_EQ(Propuesta(), 15);
}

TEST_F(EleccionDeApuesta, LaSubidaEscasaCuentaLoYaPuestoEnLaRonda) {
    Juega(kTresSietes, kMedio);
    Rivales({2, 3}, kMedio);
    Responde(kPrimera, 8, 20, 0.3); // 12 and 2 of the mood: 22 in all
    EXPECT_EQ(Propuesta(), 15) << "24 in all would be 16: a multiple of 5";
}

TEST_F(EleccionDeApuesta, PorEncimaDe15BajaAMultiplosDe5) {
    Juega(kTresSietes, kConservador);
    Rivales({2, 3}, kMedio);
    for (const auto& [llamada, puntos] :
         {std::pair<Integer, Integer>{14, 14}, {15, 15}, {16, 15}, {19, 15}, {20, 20}, {24, 20}}) {
        Responde(kPrimera, 0, llamada, 0.5);
        EXPECT_EQ(Propuesta(), puntos) << llamada;
    }
}

TEST_F(EleccionDeApuesta, NoPasaDelTopeDeLaRonda) {
    Juega("7o 7c 7e 7b 2o", kAgresivo);
    Rivales({2, 3}, kAgresivo);
    estado.ApuestaMaxima = 24;
    Responde(kPrimera, 0, 10, 0.9);
    EXPECT_EQ(Propuesta(), 12);
}

TEST_F(EleccionDeApuesta, ConLoApostadoEnLaManoNoPasaDelLimite) {
    Juega(kTresSietes, kConservador);
    Rivales({2, 3}, kMedio);
    Apuesta(1, 2, 70);
    Apuesta(1, kSegunda, 20); // of another serie of rounds: it counts towards the limit
    Responde(kPrimera, 0, 30, 0.5);
    EXPECT_EQ(Propuesta(), 10);
    EXPECT_EQ(poker.TopeApuesta, 30);
}

TEST_F(EleccionDeApuesta, NoPasaDeSuResto) {
    Juega(kTresSietes, kConservador);
    Rivales({2, 3}, kMedio);
    AsignarResto(1, 7);
    Responde(kPrimera, 0, 12, 0.5);
    EXPECT_EQ(Propuesta(), 7);
}

TEST_F(EleccionDeApuesta, NoPasaDeLoQuePuedeVerElRivalMasRico) {
    Juega("7o 7c 7e 7b 2o", kAgresivo);
    Rivales({2, 3}, kAgresivo);
    AsignarResto(2, 9);
    AsignarResto(3, 3);
    Apuesta(1, 2, 5);
    Apuesta(2, 2, 5);
    Apuesta(2, kPrimera, 12);
    Apuesta(3, 2, 5);
    Apuesta(3, kPrimera, 12);
    Apuesta(4, 2, 5); // without cards: its 200 do not count
    Responde(kPrimera, 0, 12, 0.5);
    EXPECT_EQ(Propuesta(), 21) << "seat 2 has put in 17 and has 9 left: 26, and 5 are there";
}

TEST_F(EleccionDeApuesta, ConTodosLosDemasSinRestoNadieSube) {
    Juega("7o 7c 7e 7b 2o", kAgresivo);
    Rivales({2, 3}, kAgresivo);
    Apuesta(2, kPrimera, 10);
    Apuesta(3, kPrimera, 40);
    AsignarResto(2, 0);
    AsignarResto(3, 0);
    Responde(kPrimera, 0, 10, 0.5);
    EXPECT_EQ(Propuesta(), 10);
    AsignarResto(3, 1);
    EXPECT_EQ(Propuesta(), 30) << "10 times 3.25: 32";
}

// Six points short of ten, the seat may add ten of its own.
TEST_F(EleccionDeApuesta, SinRestoEnfrenteSeMideLoQueAnadeYNoSuTotal) {
    Juega("7o 7c 7e 7b 2o", kAgresivo);
    Rivales({2}, kAgresivo);
    Apuesta(2, kPrimera, 40);
    AsignarResto(2, 0);
    Responde(kPrimera, 4, 10, 0.5);
    EXPECT_EQ(Propuesta(), 10);
}

TEST_F(EleccionDeApuesta, SinLaParejaDeAperturaSePasaAunqueTengaFarol) {
    Juega(kNada, kAgresivo);
    Rivales({2, 3}, kConservador);
    estado.LeyApertura = 10;
    Ronda(kPrimera, 0, 0.1);
    EXPECT_EQ(Propuesta(), 0);
    estado.LeyApertura = 14;
    EXPECT_EQ(Propuesta(), 25);
}

TEST_F(EleccionDeApuesta, CuandoAlguienHaAbiertoSinParejaSePuedeIgualarYSubir) {
    Juega(kNada, kAgresivo);
    Rivales({2, 3}, kMedio);
    estado.LeyApertura = 10;
    Responde(kPrimera, 0, 10, 0.3);
    EXPECT_EQ(Propuesta(), 10);
    Rivales({2, 3}, kConservador);
    Responde(kPrimera, 0, 10, 0.1);
    EXPECT_EQ(Propuesta(), 20);
}

// --- Without rivals

TEST_F(EleccionDeApuesta, SinRivalesLaActitudNoPesaYNoHayMasRico) {
    Juega(kTresSietes, kAgresivo);
    Apuesta(1, 2, 5);
    Responde(kPrimera, 12, 20, 0.9);
    EXPECT_EQ(Propuesta(), 8) << "it calls";
    Juega(kTresSietes, kMedio);
    EXPECT_EQ(Propuesta(), 8);
}

// --- Tutor

TEST_F(EleccionDeApuesta, ElTutorAconsejaANivel100YDevuelveElDelAsiento) {
    Juega(kTresSietes, kAgresivo, 10);
    Da(2, "8o 8c 8e 8b 2c");
    Responde(kSegunda, 0, 40, 0.0);
    EXPECT_EQ(Propuesta(), 40);
    estado.TutorPulsado = true;
    EXPECT_EQ(Propuesta(), -1);
    EXPECT_EQ(estado.NivelJugador(1), 10);
}

TEST_F(EleccionDeApuesta, FueraDeLasRondasNoProponeNada) {
    Juega(kTresSietes, kAgresivo);
    Rivales({2}, kMedio);
    Ronda(2, 0, 0.5);
    apuestas.ApuestaPropuesta = 9;
    EXPECT_EQ(Propuesta(), 0);
}
