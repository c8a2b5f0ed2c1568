// What is looked at in Black Jack finds what is wrong. Seat 4 has 18 in two cards and has bet 5 of its 100, the bank
// stands at 17 in two.

#include "games/blackjack/blackjack_invariants.h"

#include <gtest/gtest.h>

#include "betting/bet_state.h"
#include "betting/chips.h"
#include "core/game_state.h"
#include "core/invariant.h"
#include "tests/support/bank_table.h"

using namespace prueba;

namespace {

struct FinalDeBlackJack : testing::Test {
    FinalDeBlackJack() {
        MesaDeBanca(kBlackJack);
        estado.JuegosJugados = 1;
        estado.JugadorMano = 4;
        estado.PasoSentido = 1;
        estado.MazosBaraja = 6;
        for (bool& hay : estado.ValorEnBaraja)
            hay = true;
        for (int asiento = 1; asiento <= 4; ++asiento) {
            AsignarResto(asiento, 100);
            apuestas.RestoPrevio(asiento) = 100;
        }
        PonSerie(4, 1, {{kOros, 10}, {kCopas, 8}});
        PonSerie(2, 1, {{kBastos, 10}, {kEspadas, 7}});
        Pone(4, 1, 2, 3);
    }

    // A chip of the seat on a row of its stake.
    static void Pone(Integer asiento, Integer serie, int fila, Integer d) {
        Integer& cuantas = apuestas.NumFichasPuestas(asiento, serie);
        ++cuantas;
        apuestas.FichasPuestas(asiento, serie, cuantas) = d;
        Integer& puesto = apuestas.Apuesta(asiento, serie, fila);
        puesto = static_cast<Integer>(puesto + ValorDe(d));
        SumaAlResto(asiento, -ValorDe(d));
    }
};

} // namespace

TEST_F(FinalDeBlackJack, UnaManoBienJugadaYBienPagadaPasa) {
    EXPECT_NO_THROW(RevisaManoBlackJack());
    apuestas.Apuesta.Borra();
    AsignarResto(4, 105);
    AsignarResto(2, 95);
    EXPECT_NO_THROW(RevisaPasoBlackJack());
}

TEST_F(FinalDeBlackJack, UnaManoMalPagadaNoPasa) {
    EXPECT_NO_THROW(RevisaManoBlackJack());
    apuestas.Apuesta.Borra();
    AsignarResto(4, 100); // as if it were a tie
    EXPECT_THROW(RevisaPasoBlackJack(), InvarianteRoto);
    AsignarResto(4, 105);
    AsignarResto(2, 95);
    EXPECT_NO_THROW(RevisaPasoBlackJack());
}

TEST_F(FinalDeBlackJack, ElDineroQueFaltaNoPasa) {
    AsignarResto(1, 99);
    EXPECT_THROW(RevisaManoBlackJack(), InvarianteRoto);
}

TEST_F(FinalDeBlackJack, LaBancaNoSePlantaConMenosDeDiecisieteNiPideConDiecisiete) {
    PonSerie(2, 1, {{kBastos, 10}, {kEspadas, 6}});
    EXPECT_THROW(RevisaManoBlackJack(), InvarianteRoto);
    PonSerie(2, 1, {{kBastos, 10}, {kEspadas, 7}, {kOros, 2}});
    EXPECT_THROW(RevisaManoBlackJack(), InvarianteRoto);
}

TEST_F(FinalDeBlackJack, DoblarEsConNueveDiezUOnceYUnaCarta) {
    Pone(4, 1, 3, 3);
    PonSerie(4, 1, {{kOros, 5}, {kCopas, 6}, {kBastos, 4}});
    EXPECT_NO_THROW(RevisaManoBlackJack());
    PonSerie(4, 1, {{kOros, 5}, {kCopas, 7}, {kBastos, 4}});
    EXPECT_THROW(RevisaManoBlackJack(), InvarianteRoto);
    PonSerie(4, 1, {{kOros, 5}, {kCopas, 6}});
    EXPECT_THROW(RevisaManoBlackJack(), InvarianteRoto);
}

TEST_F(FinalDeBlackJack, ElSeguroEsContraUnAs) {
    Pone(4, 1, 5, 2);
    EXPECT_THROW(RevisaManoBlackJack(), InvarianteRoto);
    PonSerie(2, 1, {{kBastos, kAs}, {kEspadas, 7}});
    EXPECT_NO_THROW(RevisaManoBlackJack());
}

TEST_F(FinalDeBlackJack, LoApostadoPorQuienSePasaYaEsDeLaBanca) {
    PonSerie(4, 1, {{kOros, 10}, {kCopas, 8}, {kBastos, 4}});
    PonSerie(2, 1, {{kBastos, 10}});
    estado.SerieTerminada(4, 1) = true;
    EXPECT_THROW(RevisaManoBlackJack(), InvarianteRoto);
}
