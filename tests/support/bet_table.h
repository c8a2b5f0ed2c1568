#pragma once
// A table in the middle of its bets, without a screen.

#include <string>
#include <vector>

#include "betting/bet_state.h"
#include "betting/chips.h"
#include "betting/phases.h"
#include "tests/support/live_table.h"

namespace prueba {

struct MesaDeApuestas : MesaViva {
    // Seat 4, by hand, is on turn; all four have cards and 100 points, seat 2 is the bank where there is one.
    void Apuestan(Integer juego) {
        Juega(juego);
        ManoEmpezada(4);
        estado.JugadorBanca = 2;
        ColocarMazo();
        estado.EsperandoJugada = true;
        estado.ApuestaMaxima = 500;
        apuestas.ModoApuesta = true;
        apuestas.FaseApuesta = juego == kPoker ? kFasePrimeraRonda : kFaseApuestas;
        for (Integer asiento = 1; asiento <= 4; ++asiento) {
            estado.NombreJugador(asiento) = "Jugador" + std::to_string(asiento);
            estado.SeriesJugador(asiento) = 1;
            PonMano(asiento, {{kOros, asiento}, {kCopas, asiento}});
            AsignarResto(asiento, 100);
        }
    }
    static Integer EnLaRonda(Integer asiento) {
        return apuestas.Apuesta(asiento, estado.SerieActual, apuestas.FaseApuesta);
    }
    static std::vector<int> Puestas(Integer asiento) {
        std::vector<int> lista;
        for (int i = 1; i <= apuestas.NumFichasPuestas(asiento, estado.SerieActual); ++i)
            lista.push_back(apuestas.FichasPuestas(asiento, estado.SerieActual, i));
        return lista;
    }
    // What the table was asked for, but for the frames of flights, the places of cards and the plates that follow every
    // redraw of a seat.
    std::vector<std::string> Pasos() const {
        std::vector<std::string> pasos;
        for (const std::string& linea : traza) {
            if (linea != "Pausa(12)" && !linea.starts_with("ColocarCarta") &&
                !linea.starts_with("MostrarPuntos"))
                pasos.push_back(linea);
        }
        return pasos;
    }
};

} // namespace prueba
