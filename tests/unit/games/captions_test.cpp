// What the green button says on a seat's turn, game by game.

#include <gtest/gtest.h>

#include <string>

#include "betting/bet_state.h"
#include "core/default_settings.h"
#include "core/game_state.h"
#include "table/game_row.h"

namespace {

struct Rotulo {
    std::string primera, segunda;
    friend bool operator==(const Rotulo&, const Rotulo&) = default;
    friend std::ostream& operator<<(std::ostream& salida, const Rotulo& r) {
        return salida << r.primera << " / " << r.segunda;
    }
};

class RotulosContinuar : public testing::Test {
protected:
    void SetUp() override {
        estado = {};
        PonValoresPorDefecto();
        estado.SerieActual = 1;
        estado.JugadorActual = 2;
        estado.NombreJugador(2) = "Ana";
        estado.NombreJugador(4) = "Luis";
        for (int asiento = 1; asiento <= 4; ++asiento)
            estado.SeriesJugador(asiento) = 1;
    }
    void TearDown() override { estado = {}; }

    static Rotulo DeJuego(Integer juego, Integer fase) {
        apuestas.FaseApuesta = fase;
        Rotulo rotulo{estado.NombreJugador(estado.JugadorActual), "automático"};
        const FilaJuego& fila = *FilaDe(juego);
        if (fila.pintura.rotulo_continuar != nullptr)
            fila.pintura.rotulo_continuar(rotulo.primera, rotulo.segunda);
        return rotulo;
    }
};

} // namespace

TEST_F(RotulosContinuar, PokerAutomaticSeatBetsInBothRoundsAndDiscardsBetween) {
    EXPECT_EQ(DeJuego(kPoker, 3), (Rotulo{"Apuesta", "Ana"}));
    EXPECT_EQ(DeJuego(kPoker, 4), (Rotulo{"Descarta", "Ana"}));
    EXPECT_EQ(DeJuego(kPoker, 5), (Rotulo{"Apuesta", "Ana"}));
}

TEST_F(RotulosContinuar, PokerManualSeatDiscardsOnlyWhatItHasRaised) {
    estado.JugadorActual = 4;
    EXPECT_EQ(DeJuego(kPoker, 4), (Rotulo{"Luis", "automático"}));
    estado.NumCartas(4, 1) = 5;
    estado.Mano(4, 1, 3, kPalo) = kOros;
    estado.Mano(4, 1, 3, kAltura) = kLevantada;
    EXPECT_EQ(DeJuego(kPoker, 4), (Rotulo{"Descartar", "elegidas"}));
    EXPECT_EQ(DeJuego(kPoker, 5), (Rotulo{"Luis", "automático"}));
}

TEST_F(RotulosContinuar, BankGamesSayTheStageAndTheSerieOfSeveral) {
    for (const Integer juego : {kBlackJack, kSieteYMedia}) {
        estado.SeriesJugador(2) = 1;
        EXPECT_EQ(DeJuego(juego, 2), (Rotulo{"Apuesta", "Ana"}));
        EXPECT_EQ(DeJuego(juego, 4), (Rotulo{"Juega", "Ana"}));
        estado.SeriesJugador(2) = 3;
        estado.SerieActual = 2;
        EXPECT_EQ(DeJuego(juego, 4), (Rotulo{"Juega", "Ana (2)"}));
        estado.SerieActual = 1;
    }
}

TEST_F(RotulosContinuar, ManualSeatIsOfferedToBePlayedForInEveryGame) {
    estado.JugadorActual = 4;
    for (const FilaJuego* fila : FilasDeJuegos()) {
        for (Integer fase : {Integer{2}, Integer{4}})
            EXPECT_EQ(DeJuego(fila->id, fase), (Rotulo{"Luis", "automático"})) << fila->nombre;
    }
}

TEST_F(RotulosContinuar, CinquilloAutomaticSeatPlays) {
    EXPECT_EQ(DeJuego(kCinquillo, 0), (Rotulo{"Juega", "Ana"}));
}
