#pragma once
// A table with money and nothing else: stacks, bets and the pot.

#include <gtest/gtest.h>

#include <vector>

#include "betting/bet_state.h"
#include "betting/chips.h"
#include "betting/limits.h"
#include "betting/moves.h"
#include "betting/phases.h"
#include "core/game_state.h"

namespace prueba {

inline constexpr ReglasApuesta kComoPoker{.bote = true};
inline constexpr ReglasApuesta kComoBlackJack{.maxima_solo_al_apostar = true,
                                              .maximas_de_techo = 12};
inline constexpr ReglasApuesta kComoSieteYMedia{};

struct MesaConFichas : testing::Test {
    void SetUp() override {
        estado = {};
        apuestas = {};
        estado.PasoSentido = 1;
        estado.SerieActual = 1;
        apuestas.FaseApuesta = kFaseApuestas;
        estado.ApuestaMaxima = 995;
    }

    static void Tiene(int asiento, int puntos) {
        AsignarResto(asiento, static_cast<Integer>(puntos));
    }
    // Cards in hand, chips left and a bet of the stage.
    static void Juega(int asiento, int resto, int puesto, Integer fase = kFaseApuestas) {
        estado.NumCartas(asiento, 1) = 5;
        Tiene(asiento, resto);
        apuestas.Apuesta(asiento, 1, fase) = static_cast<Integer>(puesto);
    }
    // Has bet and thrown its cards in.
    static void SeRetira(int asiento, int resto, int puesto) {
        Juega(asiento, resto, puesto);
        estado.NumCartas(asiento, 1) = 0;
    }

    // The stacks with the pot, and what stands before the seats.
    static int EnFichas() {
        int suma = 0;
        for (int asiento = 0; asiento <= 4; ++asiento)
            suma += RestoDe(asiento);
        return suma;
    }
    static int EnApuestas() {
        int suma = 0;
        for (int asiento = 1; asiento <= 4; ++asiento) {
            for (int serie = 1; serie <= 4; ++serie)
                suma += ApuestaTotal(asiento, serie);
        }
        return suma;
    }

    static std::vector<int> FichasDe(int asiento) {
        std::vector<int> fichas;
        for (int d = 1; d <= kDenominaciones; ++d)
            fichas.push_back(apuestas.Fichas(asiento, d));
        return fichas;
    }
    static std::vector<int> Puestas(int asiento, int serie = 1) {
        std::vector<int> lista;
        for (int i = 1; i <= apuestas.NumFichasPuestas(asiento, serie); ++i)
            lista.push_back(apuestas.FichasPuestas(asiento, serie, i));
        return lista;
    }

    AlMoverFicha Anota() {
        return [this](const FichaMovida& ficha) { movidas.push_back(ficha); };
    }
    std::vector<int> DenominacionesMovidas() const {
        std::vector<int> fichas;
        for (const FichaMovida& ficha : movidas)
            fichas.push_back(ficha.d);
        return fichas;
    }

    std::vector<FichaMovida> movidas;
};

} // namespace prueba
