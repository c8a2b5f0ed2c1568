#include "games/common/trick_state.h"
#include "tools/simula/invariants.h"

#include <gtest/gtest.h>

#include "core/invariant.h"

#include "session/state_blocks.h"

namespace {

// A hand of Cinquillo in which each seat was dealt one suit. They lay it in turn from the 5 up and then down,
// and seat 1, which leads, is out in the tenth round; the others keep their As.
struct FinalDeCinquillo : testing::Test {
    FinalDeCinquillo() {
        BorraEstado();
        estado.JuegoActivo = kCinquillo;
        estado.CartasReparto = 10;
        estado.JugadorMano = 1;
        estado.PasoSentido = 1;
        for (int valor = 1; valor <= 12; ++valor)
            estado.ValorEnBaraja(valor) = valor < 8 || valor > 9;
        constexpr Integer kOrden[] = {5, 6, 7, 10, 11, 12, 4, 3, 2};
        for (const Integer valor : kOrden) {
            ++estado.NumBaza;
            for (Integer asiento = 1; asiento <= 4; ++asiento)
                Tiende(asiento, estado.NumBaza, valor);
        }
        Tiende(1, ++estado.NumBaza, 1);
        for (Integer asiento = 2; asiento <= 4; ++asiento)
            Guarda(asiento, 1);
        estado.GanadorMano = 1;
    }

    // A card of the seat's own suit.
    static void Tiende(Integer asiento, int ronda, Integer valor) {
        bazas.RegistroBazas(asiento + 5, ronda) = asiento;
        bazas.RegistroBazas(asiento + 10, ronda) = valor;
        bazas.CartaJugada(asiento, valor) = asiento;
    }

    // ... that is in its hand, and not on the table.
    static void Guarda(Integer asiento, Integer valor) {
        bazas.CartaJugada(asiento, valor) = 0;
        const int lugar = ++estado.NumCartas(asiento, 1);
        estado.Mano(asiento, 1, lugar, kPalo) = asiento;
        estado.Mano(asiento, 1, lugar, kValor) = valor;
    }

    // The round in which the seat passes, with its card still in the hand.
    static void Pasa(Integer asiento, int ronda) {
        Guarda(asiento, bazas.RegistroBazas(asiento + 10, ronda));
        bazas.RegistroBazas(asiento + 5, ronda) = 0;
        bazas.RegistroBazas(asiento + 10, ronda) = 0;
    }
};

TEST_F(FinalDeCinquillo, UnaManoBienAcabadaPasa) {
    EXPECT_NO_THROW(RevisaFinalDeMano());
}

TEST_F(FinalDeCinquillo, UnaCartaEnDosSitiosNoPasa) {
    bazas.CartaJugada(kBastos, 1) = 4;
    EXPECT_THROW(RevisaFinalDeMano(), InvarianteRoto);
}

TEST_F(FinalDeCinquillo, UnaCartaPerdidaNoPasa) {
    bazas.CartaJugada(kEspadas, 12) = 0;
    EXPECT_THROW(RevisaFinalDeMano(), InvarianteRoto);
}

TEST_F(FinalDeCinquillo, UnaCartaTendidaAntesQueSuVecinaNoPasa) {
    Tiende(3, 2, 7);
    Tiende(3, 3, 6);
    EXPECT_THROW(RevisaFinalDeMano(), InvarianteRoto);
}

TEST_F(FinalDeCinquillo, QuienPuedeTenderNoPasa) {
    Pasa(4, 9);
    EXPECT_THROW(RevisaFinalDeMano(), InvarianteRoto);
}

TEST_F(FinalDeCinquillo, UnaCartaApuntadaAOtroNoPasa) {
    bazas.CartaJugada(kCopas, 5) = 1;
    EXPECT_THROW(RevisaFinalDeMano(), InvarianteRoto);
}

TEST_F(FinalDeCinquillo, UnRepartoDesigualNoPasa) {
    estado.Mano(2, 1, 1, kPalo) = kEspadas;
    estado.Mano(3, 1, 1, kPalo) = kBastos;
    estado.Mano(4, 1, 1, kPalo) = kCopas;
    EXPECT_NO_THROW(RevisaFinalDeMano()); // three As change hands: nobody can tell
    estado.NumCartas(3, 1) = 0;
    ++estado.NumCartas(2, 1);
    estado.Mano(2, 1, 2, kPalo) = kBastos;
    estado.Mano(2, 1, 2, kValor) = 1;
    EXPECT_THROW(RevisaFinalDeMano(), InvarianteRoto);
}

TEST_F(FinalDeCinquillo, GanarConCartasNoPasa) {
    estado.GanadorMano = 2;
    EXPECT_THROW(RevisaFinalDeMano(), InvarianteRoto);
}

TEST_F(FinalDeCinquillo, DespuesDelFinalNoSeJuega) {
    Tiende(2, estado.NumBaza, 1);
    estado.NumCartas(2, 1) = 0;
    EXPECT_THROW(RevisaFinalDeMano(), InvarianteRoto);
}

TEST_F(FinalDeCinquillo, SinQueNadieAcabeNoHayFinal) {
    Pasa(1, estado.NumBaza);
    EXPECT_THROW(RevisaFinalDeMano(), InvarianteRoto);
}

// A match to one hand, which seat 2 has won with 7 points of the others.
struct FinalDePartida : testing::Test {
    FinalDePartida() {
        BorraEstado();
        estado.JuegoActivo = kCinquillo;
        estado.JuegosJugados = 1;
        estado.LimitePartida = 1;
        estado.GanadorPartida = 2;
        estado.JuegosGanados(2) = 1;
        estado.Juegos(1).Marcas(2, 1) = 1;
        estado.Juegos(1).Texto1(1) = "1";
        estado.Juegos(1).Texto1(2) = "7";
        estado.Juegos(1).Texto1(3) = "6";
        estado.Juegos(1).Texto1(4) = "0";
    }
};

TEST_F(FinalDePartida, UnaPartidaBienAcabadaPasa) {
    EXPECT_NO_THROW(RevisaFinalDePartida(1));
}

TEST_F(FinalDePartida, LaPartidaNoSigueYTieneGanador) {
    estado.PartidaEnCurso = true;
    EXPECT_THROW(RevisaFinalDePartida(1), InvarianteRoto);
    estado.PartidaEnCurso = false;
    estado.GanadorPartida = 0;
    EXPECT_THROW(RevisaFinalDePartida(1), InvarianteRoto);
}

TEST_F(FinalDePartida, UnaManoSinGanadorNoPasa) {
    estado.JuegosGanados(2) = 0;
    EXPECT_THROW(RevisaFinalDePartida(1), InvarianteRoto);
}

TEST_F(FinalDePartida, UnaManoQueNadieApuntoNoPasa) {
    EXPECT_THROW(RevisaFinalDePartida(2), InvarianteRoto);
}

TEST_F(FinalDePartida, UnRegistroQueNoCuadraNoPasa) {
    estado.Juegos(1).Texto1(2) = "8";
    EXPECT_THROW(RevisaFinalDePartida(1), InvarianteRoto);
}

} // namespace
