// What a seat of Póker weighs before it bets.

#include "games/poker/bet_reading.h"

#include <gtest/gtest.h>

#include "betting/bet_state.h"
#include "betting/chips.h"
#include "games/poker/hand_reading.h"
#include "games/poker/poker_state.h"
#include "tests/support/poker_seats.h"

using namespace prueba;

namespace {

constexpr Integer kPrimera = 3, kSegunda = 5;

class LecturaDeApuesta : public AsientosDePoker {
protected:
    // Nothing of the rivals but their cards has been seen yet.
    static LecturaApuesta Lee() {
        AnalizaJugada(estado.JugadorActual);
        return LeeApuesta();
    }
    static Fuerza FuerzaDe(const char* mano, Integer fase, Integer caracter, Integer nivel) {
        Da(1, mano);
        apuestas.FaseApuesta = fase;
        estado.CaracterJugador(1) = caracter;
        estado.NivelJugador(1) = nivel;
        return Lee().fuerza;
    }
    static constexpr const char* kNada = "Ko Jc 8e 5b 2o";
};

struct FilaFuerza {
    const char* mano;
    int cartas; // of the deck
    Integer caracter, nivel;
    Fuerza fuerza;
};

} // namespace

// --- The limit of the round

TEST_F(LecturaDeApuesta, EnLaPrimeraRondaVaLaMitadDelLimite) {
    Da(1, kNada);
    estado.ApuestaMaxima = 25;
    Apuesta(1, 2, 4); // 21 are left: the half is 10
    Apuesta(1, kPrimera, 3);
    Lee();
    EXPECT_EQ(poker.TopeApuesta, 7);
}

TEST_F(LecturaDeApuesta, LaMitadDeUnLimitePasadoSeRedondeaHaciaAbajo) {
    Da(1, kNada);
    estado.ApuestaMaxima = 10;
    Apuesta(1, 2, 15);
    Lee();
    EXPECT_EQ(poker.TopeApuesta, 0) << "nobody has bet: the highest bet is 0";
    apuestas.MaximaApuesta = -3;
    Lee();
    EXPECT_EQ(poker.TopeApuesta, -3) << "half of -5 is -3";
}

TEST_F(LecturaDeApuesta, EnLaPrimeraRondaElTopeAlcanzaLaMayorApuesta) {
    Da(1, kNada);
    estado.ApuestaMaxima = 25;
    Ronda(kPrimera, 13, 0.5);
    Lee();
    EXPECT_EQ(poker.TopeApuesta, 13);
    apuestas.MaximaApuesta = 11;
    Lee();
    EXPECT_EQ(poker.TopeApuesta, 12);
}

TEST_F(LecturaDeApuesta, EnLaSegundaRondaVaLoQueQuedaDelLimite) {
    Da(1, kNada);
    Apuesta(1, 2, 5);
    Apuesta(1, 3, 20);
    Apuesta(1, 5, 8);
    Ronda(kSegunda, 30, 0.5);
    Lee();
    EXPECT_EQ(poker.TopeApuesta, 67);
}

TEST_F(LecturaDeApuesta, FueraDeLasDosRondasElTopeSeQueda) {
    Da(1, "7o 7c 7e Kb 2o");
    poker.TopeApuesta = 17;
    apuestas.FaseApuesta = 2;
    EXPECT_EQ(Lee().fuerza, Fuerza::Ninguna);
    EXPECT_EQ(poker.TopeApuesta, 17);
}

// --- The call, the level, the mood

TEST_F(LecturaDeApuesta, LaLlamadaEsLoQueFaltaEnLaRonda) {
    Da(1, kNada);
    Apuesta(1, kPrimera, 6);
    Apuesta(1, 2, 5);
    Ronda(kPrimera, 20, 0.5);
    EXPECT_EQ(Lee().llamada, 14);
}

TEST_F(LecturaDeApuesta, ElTutorDecideANivel100YDejaElDelAsiento) {
    Da(1, kNada);
    estado.NivelJugador(1) = 10;
    EXPECT_EQ(Lee().nivel, 10);
    estado.TutorPulsado = true;
    EXPECT_EQ(Lee().nivel, 100);
    EXPECT_EQ(estado.NivelJugador(1), 10);
}

// --- Strength in the first round

TEST_F(LecturaDeApuesta, FuerzaEnLaPrimeraRonda) {
    const FilaFuerza filas[] = {
        {"7o 7c 7e Kb 2o", 52, kMedio, 50, Fuerza::Grande},
        {"7o 7c 9e 9b Ko", 52, kMedio, 50, Fuerza::Media},
        {"Ao Jc Qe Kb Jo", 52, kMedio, 50,
         Fuerza::Grande}, // Figuras beats the pairs in a long deck
        {"Ao Jc Qe Kb Jo", 44, kMedio, 50, Fuerza::Grande},
        {"Ao Jc Qe Kb Jo", 40, kMedio, 50, Fuerza::Media}, // and has to be passed in a short one
        {"7o 7c 7e Kb 8o", 40, kMedio, 50, Fuerza::Grande},
        {"7o 7c Ke 9b 2o", 52, kMedio, 50, Fuerza::Media},
        {kNada, 52, kMedio, 100, Fuerza::Floja},
        {kNada, 52, kAgresivo, 100, Fuerza::Floja},
    };
    for (const FilaFuerza& fila : filas) {
        SCOPED_TRACE(fila.mano);
        Baraja(fila.cartas);
        EXPECT_EQ(FuerzaDe(fila.mano, kPrimera, fila.caracter, fila.nivel), fila.fuerza);
    }
}

TEST_F(LecturaDeApuesta, ConNivelAltoUnProyectoValeFuerza) {
    const char* color = "Ko 9o 7o 3o 2c";      // four of a suit
    const char* escalcolor = "6o 7o 8o 9o 2c"; // open at both ends: Calidad 1
    const char* escalcolor_con_hueco = "5o 6o 8o 9o Kc";
    const char* escalera = "6o 7c 8e 9b 2o";
    const char* escalera_con_hueco = "5o 6c 8e 9b Ko";
    const FilaFuerza filas[] = {
        {color, 52, kMedio, 81, Fuerza::Media},
        {color, 52, kMedio, 80, Fuerza::Floja},
        {color, 52, kConservador, 81, Fuerza::Floja},
        {color, 52, kAgresivo, 81, Fuerza::Media},
        {color, 52, kAgresivo, 80, Fuerza::Floja},
        {escalcolor, 52, kMedio, 81, Fuerza::Media},
        {escalcolor, 52, kAgresivo, 81, Fuerza::Media},
        {escalcolor, 52, kConservador, 100, Fuerza::Floja},
        {escalcolor_con_hueco, 52, kMedio, 81, Fuerza::Floja},
        {escalcolor_con_hueco, 52, kAgresivo, 81, Fuerza::Media},
        {escalera, 52, kMedio, 81, Fuerza::Floja},
        {escalera, 52, kAgresivo, 81, Fuerza::Media},
        {escalera, 52, kAgresivo, 80, Fuerza::Floja},
        {escalera_con_hueco, 52, kAgresivo, 81, Fuerza::Floja},
        // With 40 cards the straight with a gap is enough; 10 J Q A, an As at the end.
        {"10o Jc Qe Ab 7o", 44, kAgresivo, 81, Fuerza::Floja},
        {"10o Jc Qe Ab 7o", 40, kAgresivo, 81, Fuerza::Media},
    };
    for (const FilaFuerza& fila : filas) {
        SCOPED_TRACE(testing::Message() << fila.mano << ", " << fila.cartas << " cards, character "
                                        << fila.caracter << ", level " << fila.nivel);
        Baraja(fila.cartas);
        EXPECT_EQ(FuerzaDe(fila.mano, kPrimera, fila.caracter, fila.nivel), fila.fuerza);
    }
}

// --- Strength in the second round

TEST_F(LecturaDeApuesta, FuerzaEnLaSegundaRonda) {
    const FilaFuerza filas[] = {
        {"Ao Jc Qe Kb Jo", 52, kMedio, 50, Fuerza::Grande}, // Figuras
        {"Ao Jc Qe Kb Jo", 40, kMedio, 50, Fuerza::Media},
        {"5o 6c 7e 8b 9o", 52, kMedio, 50, Fuerza::Grande}, // Escalera
        {"7o 7c 7e Kb 2o", 52, kMedio, 50, Fuerza::Media},  // Trio
        {"7o 7c 7e Kb 2o", 52, kConservador, 50, Fuerza::Media},
        {"7o 7c 7e Kb 2o", 52, kAgresivo, 50, Fuerza::Grande},
        {"7o 7c 7e Kb 8o", 40, kAgresivo, 50, Fuerza::Grande},
        {"7o 7c 9e 9b Ko", 52, kAgresivo, 50, Fuerza::Media}, // two pairs
        {"7o 7c Ke 9b 2o", 52, kMedio, 50, Fuerza::Floja},
        {"7o 7c Ke 9b 2o", 52, kConservador, 50, Fuerza::Floja},
        {"7o 7c Ke 9b 2o", 52, kAgresivo, 50, Fuerza::Media},
        {kNada, 52, kAgresivo, 100, Fuerza::Floja},
    };
    for (const FilaFuerza& fila : filas) {
        SCOPED_TRACE(testing::Message()
                     << fila.mano << ", " << fila.cartas << " cards, character " << fila.caracter);
        Baraja(fila.cartas);
        EXPECT_EQ(FuerzaDe(fila.mano, kSegunda, fila.caracter, fila.nivel), fila.fuerza);
    }
}

// --- The rivals

TEST_F(LecturaDeApuesta, EnLaSegundaRondaCuentaLasManosQueSuperanLaSuya) {
    Da(1, "7o 7c Ke 9b 2o");
    Da(2, "5o 6c 7e 8b 9o");
    Da(3, "9o 9c Qe 6b 2c"); // also a Pareja: no better
    Da(4, "9o 9c 9e 6b 2c");
    apuestas.FaseApuesta = kSegunda;
    const LecturaApuesta lectura = Lee();
    EXPECT_EQ(lectura.por_encima, 2);
    EXPECT_EQ(lectura.mejor_rival, poker.Escalera);
}

TEST_F(LecturaDeApuesta, UnaManoSinCartasNoCuentaEntreLosRivales) {
    Da(1, "7o 7c Ke 9b 2o");
    poker.MejorJugada(2) = poker.Poker; // of an earlier hand
    apuestas.FaseApuesta = kSegunda;
    EXPECT_EQ(Lee().mejor_rival, 0);
    EXPECT_EQ(Lee().por_encima, 0);
}

TEST_F(LecturaDeApuesta, MejorRivalSoloEsCeroSinRivalesConCartas) {
    Da(1, "7o 7c Ke 9b 2o");
    Rivales({3}, kMedio);
    apuestas.FaseApuesta = kSegunda;
    EXPECT_EQ(Lee().mejor_rival, poker.CartaMayor);
    Da(3, "");
    EXPECT_EQ(Lee().mejor_rival, 0);
}

TEST_F(LecturaDeApuesta, SuPropiaManoEsLaDeLaUltimaVezQueLaMiro) {
    Da(1, "7o 7c Ke 9b 2o");
    Da(2, "9o 9c Qe 6b 2c");
    apuestas.FaseApuesta = kSegunda;
    poker.MejorJugada(1) = poker.CartaMayor; // before the discard
    EXPECT_EQ(LeeApuesta().por_encima, 1);
    EXPECT_EQ(LeeApuesta().por_encima, 0) << "by now it has looked at its hand";
}

TEST_F(LecturaDeApuesta, EnLaPrimeraRondaNoMiraLasManosDeLosDemas) {
    Da(1, "7o 7c Ke 9b 2o");
    Da(2, "5o 6c 7e 8b 9o");
    const LecturaApuesta lectura = Lee();
    EXPECT_EQ(lectura.por_encima, 0);
    EXPECT_EQ(lectura.mejor_rival, 0);
    EXPECT_EQ(poker.MejorJugada(2), 0);
}

// --- What it believes of them

TEST_F(LecturaDeApuesta, AmenazaQuienCreeMejorPorSuDescarte) {
    Da(1, "7o 7c 9e 9b Ko");
    Rivales({2, 3, 4}, kMedio);
    poker.JugadaCreidaMin(2) = poker.Trio;
    poker.JugadaCreidaMin(3) = poker.DoblePareja; // as good as its own: no threat
    poker.JugadaCreidaMin(4) = poker.Figuras;
    apuestas.FaseApuesta = kSegunda;
    const LecturaApuesta lectura = Lee();
    EXPECT_EQ(lectura.amenazas, 2);
    EXPECT_EQ(lectura.ultima_amenaza, 4);
}

TEST_F(LecturaDeApuesta, QuienTiroSusCartasNoAmenaza) {
    Da(1, "7o 7c 9e 9b Ko");
    poker.JugadaCreidaMin(2) = poker.Figuras;
    apuestas.FaseApuesta = kSegunda;
    EXPECT_EQ(Lee().amenazas, 0);
}

TEST_F(LecturaDeApuesta, EnLaPrimeraRondaNadieAmenaza) {
    Da(1, "7o 7c 9e 9b Ko");
    Rivales({2}, kMedio);
    poker.JugadaCreidaMin(2) = poker.JugadaCreidaMax(2) = poker.Figuras;
    EXPECT_EQ(Lee().amenazas, 0);
}

// One row a character: the bet that is not heavy yet and the one that is, of a limit of 100.
TEST_F(LecturaDeApuesta, UnaApuestaFuerteParaSuCaracterHaceCreerLoMas) {
    struct {
        Integer caracter, corriente, fuerte;
    } const filas[] = {{kConservador, 5, 6}, {kMedio, 14, 15}, {kAgresivo, 29, 30}};
    Da(1, "7o 7c 9e 9b Ko");
    apuestas.FaseApuesta = kSegunda;
    for (const auto& fila : filas) {
        SCOPED_TRACE(fila.caracter);
        Rivales({3}, fila.caracter);
        poker.JugadaCreidaMin(3) = poker.Pareja;
        poker.JugadaCreidaMax(3) = poker.Trio;
        Apuesta(3, kSegunda, fila.corriente);
        EXPECT_EQ(Lee().amenazas, 0);
        Apuesta(3, kSegunda, fila.fuerte);
        EXPECT_EQ(Lee().amenazas, 1);
        EXPECT_EQ(Lee().ultima_amenaza, 3);
    }
}

TEST_F(LecturaDeApuesta, LaApuestaFuerteSeMideConElTopeDeQuienDecide) {
    Da(1, "7o 7c 9e 9b Ko");
    Rivales({3}, kMedio);
    poker.JugadaCreidaMax(3) = poker.Trio;
    apuestas.FaseApuesta = kSegunda;
    Apuesta(3, kSegunda, 9); // of 100 it is little, of the 60 that are left to seat 1 it is not
    EXPECT_EQ(Lee().amenazas, 0);
    Apuesta(1, 3, 40);
    EXPECT_EQ(Lee().amenazas, 1);
}
