// How long a seat thinks in the games with a bank.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <initializer_list>

#include "betting/bet_state.h"
#include "betting/chips.h"
#include "betting/phases.h"
#include "core/game_state.h"
#include "games/blackjack/blackjack_decision.h"
#include "games/common/series.h"
#include "games/sieteymedia/sieteymedia_decision.h"

namespace {

constexpr int kMejorNivel = 100;

void PonMesa(Integer juego) {
    estado = {};
    series = {};
    estado.JuegoActivo = juego;
    estado.TotalBaraja = 40;
    estado.PosicionMazo = 30;
    estado.Baraja(30, 2) = 6;
    estado.JugadorBanca = 2;
    apuestas.FaseApuesta = kFaseJuego;
    estado.RestoInicial = 200;
    estado.ApuestaMaxima = 25;
    estado.SerieActual = 1;
    estado.AzarTurno = 0.9F;
    for (Integer valor = 1; valor <= 13; ++valor)
        estado.ValorCarta(valor) = std::min<int>(valor, 10);
    for (Integer asiento = 1; asiento <= 4; ++asiento) {
        estado.NivelJugador(asiento) = kMejorNivel;
        estado.CaracterJugador(asiento) = kMedio;
        AsignarResto(asiento, 200);
    }
}

void PonSerie(Integer asiento, Integer serie, std::initializer_list<Integer> valores) {
    estado.SeriesJugador(asiento) = serie;
    for (const Integer valor : valores) {
        const Integer lugar = ++estado.NumCartas(asiento, serie);
        estado.Mano(asiento, serie, lugar, kPalo) = asiento;
        estado.Mano(asiento, serie, lugar, kValor) = valor;
        estado.Mano(asiento, serie, lugar, kCara) = kDescubierta;
    }
    apuestas.Apuesta(asiento, serie, 2) = 10;
}

// A pair of five cards' weight, with everything on offer.
void EleccionBlackJack(benchmark::State& banco) {
    PonMesa(kBlackJack);
    PonSerie(2, 1, {6});
    PonSerie(4, 1, {2, 2, 3, 1, 3});
    estado.JugadorActual = 4;
    series.PuedeAsegurar = series.PuedeAbrir = series.PuedeDoblar = true;
    for ([[maybe_unused]] auto vuelta : banco)
        DecideBlackJack();
}
BENCHMARK(EleccionBlackJack)->Unit(benchmark::kNanosecond);

// Three seats with four series of four cards each, and the bank: all that the table can hold.
void MesaLlenaDeSiete(Integer asiento) {
    PonMesa(kSieteYMedia);
    for (Integer otro : {Integer{1}, Integer{3}, Integer{4}}) {
        for (Integer serie = 1; serie <= kMaximoSeries; ++serie)
            PonSerie(otro, serie, {1, 2, 3, 1});
    }
    PonSerie(2, 1, {2, 3});
    estado.JugadorActual = asiento;
}

void EleccionSiete(benchmark::State& banco) {
    MesaLlenaDeSiete(4);
    for ([[maybe_unused]] auto vuelta : banco)
        DecideSiete();
}
BENCHMARK(EleccionSiete)->Unit(benchmark::kNanosecond);

void EleccionDeLaBancaSiete(benchmark::State& banco) {
    MesaLlenaDeSiete(2);
    for ([[maybe_unused]] auto vuelta : banco)
        DecideSiete();
}
BENCHMARK(EleccionDeLaBancaSiete)->Unit(benchmark::kNanosecond);

} // namespace
