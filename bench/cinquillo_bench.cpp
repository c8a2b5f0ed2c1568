// Cinquillo without a screen: the cards shuffled, and a card chosen. The budget of a choice is 10 microseconds.

#include <benchmark/benchmark.h>

#include "core/game_state.h"
#include "games/cinquillo/cinquillo_choice.h"
#include "games/common/trick_state.h"
#include "table/deck.h"
#include "tools/simula/match.h"

namespace {

OpcionesSimula UnaMano() {
    OpcionesSimula opciones;
    opciones.juego = kCinquillo;
    opciones.limite = 1;
    opciones.azar = true;
    return opciones;
}

void Barajado(benchmark::State& vueltas) {
    Simulacion simulacion(UnaMano());
    simulacion.Juega(0);
    for ([[maybe_unused]] auto vuelta : vueltas) {
        Barajar();
        benchmark::DoNotOptimize(estado.Baraja(1, 1));
    }
}
BENCHMARK(Barajado);

void UnaEleccion(benchmark::State& vueltas) {
    Simulacion simulacion(UnaMano());
    simulacion.Juega(0);
    bazas.CartaJugada.Borra();
    for (Integer palo = kOros; palo <= kBastos; ++palo)
        bazas.CartaJugada(palo, 5) = 1;
    Barajar();
    for (int lugar = 1; lugar <= 10; ++lugar)
        PonCarta(1, 1, lugar, {estado.Baraja(lugar, 1), estado.Baraja(lugar, 2)}, kDorso);
    estado.NumCartas(1, 1) = 10;
    estado.JugadorActual = 1;
    for ([[maybe_unused]] auto vuelta : vueltas) {
        EligeCartaCinquillo();
        benchmark::DoNotOptimize(estado.CartaElegida);
    }
}
BENCHMARK(UnaEleccion);

} // namespace
