#include "tools/simula/invariants.h"

#include <gtest/gtest.h>

#include "games/state_blocks.h"

namespace {

// A hand of Cinquillo that seat 2 has won: it has laid the whole deck but three cards that the others hold.
struct FinalDeCinquillo : testing::Test {
    FinalDeCinquillo() {
        BorraEstado();
        estado.JuegoActivo = kCinquillo;
        for (int valor = 1; valor <= 12; ++valor)
            estado.ValorEnBaraja(valor) = valor < 8 || valor > 9;
        for (int palo = kOros; palo <= kBastos; ++palo) {
            for (int valor = 1; valor <= 12; ++valor)
                bazas.CartaJugada(palo, valor) = estado.ValorEnBaraja(valor) ? 2 : 0;
        }
        Guarda(1, kOros, 12);
        Guarda(3, kCopas, 1);
        Guarda(4, kBastos, 12);
        estado.GanadorMano = 2;
    }

    // A card back from the table to a seat's hand.
    static void Guarda(int asiento, Integer palo, Integer valor) {
        bazas.CartaJugada(palo, valor) = 0;
        const int lugar = ++estado.NumCartas(asiento, 1);
        estado.Mano(asiento, 1, lugar, kPalo) = palo;
        estado.Mano(asiento, 1, lugar, kValor) = valor;
    }
};

TEST_F(FinalDeCinquillo, UnaManoBienAcabadaPasa) {
    EXPECT_NO_THROW(RevisaFinalDeMano());
}

TEST_F(FinalDeCinquillo, UnaCartaEnDosSitiosNoPasa) {
    bazas.CartaJugada(kOros, 12) = 4;
    EXPECT_THROW(RevisaFinalDeMano(), InvarianteRoto);
}

TEST_F(FinalDeCinquillo, UnaCartaPerdidaNoPasa) {
    bazas.CartaJugada(kEspadas, 12) = 0;
    EXPECT_THROW(RevisaFinalDeMano(), InvarianteRoto);
}

TEST_F(FinalDeCinquillo, UnHuecoEnUnPaloNoPasa) {
    Guarda(1, kCopas, 6);
    EXPECT_THROW(RevisaFinalDeMano(), InvarianteRoto);
}

TEST_F(FinalDeCinquillo, GanarConCartasNoPasa) {
    estado.GanadorMano = 1;
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
    EXPECT_NO_THROW(RevisaFinalDePartida());
}

TEST_F(FinalDePartida, LaPartidaNoSigueYTieneGanador) {
    estado.PartidaEnCurso = true;
    EXPECT_THROW(RevisaFinalDePartida(), InvarianteRoto);
    estado.PartidaEnCurso = false;
    estado.GanadorPartida = 0;
    EXPECT_THROW(RevisaFinalDePartida(), InvarianteRoto);
}

TEST_F(FinalDePartida, UnaManoSinGanadorNoPasa) {
    estado.JuegosGanados(2) = 0;
    EXPECT_THROW(RevisaFinalDePartida(), InvarianteRoto);
}

TEST_F(FinalDePartida, UnRegistroQueNoCuadraNoPasa) {
    estado.Juegos(1).Texto1(2) = "8";
    EXPECT_THROW(RevisaFinalDePartida(), InvarianteRoto);
}

} // namespace
