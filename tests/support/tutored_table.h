#pragma once
// A person's turn in one of the two games with a bank, at a table without a screen, and the tutor's button.

#include "betting/bet_state.h"
#include "betting/chips.h"
#include "betting/phases.h"
#include "table/button_column.h"
#include "tests/support/bank_table.h"
#include "tests/support/live_table.h"

namespace prueba {

struct MesaConTutor : MesaViva {
    // Seat 4, by hand and of a low level, is waited for in the stage of play; seat 2 is the bank. All have 200 points.
    void TocaA4(Integer juego, double azar) {
        Juega(juego);
        estado.JugadorBanca = 2;
        estado.RestoInicial = 200;
        estado.ApuestaMaxima = 25;
        for (Integer asiento = 1; asiento <= 4; ++asiento) {
            estado.SeriesJugador(asiento) = 1;
            AsignarResto(asiento, 200);
        }
        TocaJugar(4);
        estado.NivelJugador(4) = 10;
        estado.CaracterJugador(4) = kMedio;
        apuestas.FaseApuesta = kFaseJuego;
        estado.EsperandoJugada = true;
        Azar(azar);
    }
    void Aconseja() {
        HabilitaBoton(kBotonTutor, true);
        EmpiezaTraza();
        PulsaBoton(kBotonTutor);
    }
};

} // namespace prueba
