#pragma once
// A hand of Black Jack or Siete y media whose statistics are read.

#include <gtest/gtest.h>

#include "betting/bet_state.h"
#include "betting/phases.h"
#include "games/common/series.h"
#include "platform/headless/headless_platform.h"
#include "table/deck.h"
#include "tests/support/bank_table.h"
#include "tests/support/printed_text.h"
#include "tools/common/fresh_table.h"

namespace prueba {

// Ana, Luis, Eva and Iñigo with one empty serie each; Luis holds the bank, the hand is on, Iñigo is on turn and plays by
// hand. Seats go 2, 3, 4, 1.
class ManoConBanca : public testing::Test {
protected:
    explicit ManoConBanca(Integer juego) {
        UsaPlataforma(p);
        PonMesaNueva();
        const char* const nombres[] = {"", "Ana", "Luis", "Eva", "Iñigo"};
        for (int asiento = 1; asiento <= 4; ++asiento) {
            estado.NombreJugador(asiento) = nombres[asiento];
            estado.SeriesJugador(asiento) = 1;
        }
        estado.JuegoActivo = juego;
        ConstruirBaraja();
        estado.JugadorBanca = 2;
        estado.ManoEnCurso = true;
        apuestas.FaseApuesta = kFaseJuego;
        TocaJugar(4);
    }

    PlataformaSinPantalla p;
};

} // namespace prueba
