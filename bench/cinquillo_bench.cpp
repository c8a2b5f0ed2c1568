// Cinquillo without a screen: whole matches on one core, and the choice of a card. The budget of the game is
// 40,000 hands a second.

#include <benchmark/benchmark.h>

#include "core/game_state.h"
#include "games/cinquillo/cinquillo_choice.h"
#include "games/common/trick_state.h"
#include "table/deck.h"
#include "tools/simula/match.h"

namespace {

OpcionesSimula Opciones(int limite) {
    OpcionesSimula opciones;
    opciones.juego = kCinquillo;
    opciones.limite = limite;
    opciones.azar = true;
    return opciones;
}

// What counts is "manos/s": a match of three hands won at the least, the draw and the table set up included.
void Partidas(benchmark::State& vueltas) {
    Simulacion simulacion(Opciones(static_cast<int>(vueltas.range(0))));
    std::int64_t n = 0;
    std::int64_t manos = 0;
    for (auto vuelta : vueltas)
        manos += simulacion.Juega(n++).manos;
    vueltas.counters["manos/s"] =
        benchmark::Counter(static_cast<double>(manos), benchmark::Counter::kIsRate);
}
BENCHMARK(Partidas)->Arg(3)->Arg(50)->Unit(benchmark::kMicrosecond);

void Barajado(benchmark::State& vueltas) {
    Simulacion simulacion(Opciones(1));
    simulacion.Juega(0);
    for (auto vuelta : vueltas) {
        Barajar();
        benchmark::DoNotOptimize(estado.Baraja(1, 1));
    }
}
BENCHMARK(Barajado);

void UnaEleccion(benchmark::State& vueltas) {
    Simulacion simulacion(Opciones(1));
    simulacion.Juega(0);
    bazas.CartaJugada.Borra();
    for (Integer palo = kOros; palo <= kBastos; ++palo)
        bazas.CartaJugada(palo, 5) = 1;
    Barajar();
    for (int lugar = 1; lugar <= 10; ++lugar)
        PonCarta(1, 1, lugar, estado.Baraja(lugar, 1), estado.Baraja(lugar, 2), kDorso);
    estado.NumCartas(1, 1) = 10;
    estado.JugadorActual = 1;
    for (auto vuelta : vueltas) {
        EligeCartaCinquillo();
        benchmark::DoNotOptimize(estado.CartaElegida);
    }
}
BENCHMARK(UnaEleccion);

} // namespace
