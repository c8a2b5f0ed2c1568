// Whole automatic matches without a screen, on one core: what counts is "manos/s". The budgets are 40,000 hands
// a second of Cinquillo, 20,000 of Brisca and 7,000 of Tute between two seats.

#include <benchmark/benchmark.h>

#include "core/game_state.h"
#include "tools/simula/match.h"

namespace {

// Match after match, with the draw for the first player and the clearing of the table that belong to each.
void Juega(benchmark::State& vueltas, OpcionesSimula opciones) {
    opciones.azar = true;
    opciones.revisa = false;
    Simulacion simulacion(opciones);
    std::int64_t n = 0;
    std::int64_t manos = 0;
    for ([[maybe_unused]] auto vuelta : vueltas)
        manos += simulacion.Juega(n++).manos;
    vueltas.counters["manos/s"] =
        benchmark::Counter(static_cast<double>(manos), benchmark::Counter::kIsRate);
}

// The games to be won for a match.
void Cinquillo(benchmark::State& vueltas) {
    OpcionesSimula opciones;
    opciones.juego = kCinquillo;
    opciones.limite = static_cast<int>(vueltas.range(0));
    Juega(vueltas, opciones);
}
BENCHMARK(Cinquillo)->Arg(3)->Arg(10)->Arg(50)->Unit(benchmark::kMicrosecond);

// The seats, and whether they play in pairs.
void DeBazas(benchmark::State& vueltas, Integer juego) {
    OpcionesSimula opciones;
    opciones.juego = juego;
    opciones.asientos = static_cast<int>(vueltas.range(0));
    opciones.parejas = vueltas.range(1) != 0;
    Juega(vueltas, opciones);
}

void Brisca(benchmark::State& vueltas) {
    DeBazas(vueltas, kBrisca);
}
void Tute(benchmark::State& vueltas) {
    DeBazas(vueltas, kTute);
}
void Variantes(benchmark::internal::Benchmark* banco) {
    banco->Args({2, 0})->Args({3, 0})->Args({4, 0})->Args({4, 1})->Unit(benchmark::kMicrosecond);
}
BENCHMARK(Brisca)->Apply(Variantes);
BENCHMARK(Tute)->Apply(Variantes);

// The seats. A match lasts until the chips of all but one have gone, some hundreds of hands.
void ConBanca(benchmark::State& vueltas, Integer juego) {
    OpcionesSimula opciones;
    opciones.juego = juego;
    opciones.asientos = static_cast<int>(vueltas.range(0));
    Juega(vueltas, opciones);
}
void BlackJack(benchmark::State& vueltas) {
    ConBanca(vueltas, kBlackJack);
}
void SieteYMedia(benchmark::State& vueltas) {
    ConBanca(vueltas, kSieteYMedia);
}
BENCHMARK(BlackJack)->Arg(2)->Arg(4)->Unit(benchmark::kMillisecond);
BENCHMARK(SieteYMedia)->Arg(2)->Arg(4)->Unit(benchmark::kMillisecond);

} // namespace
