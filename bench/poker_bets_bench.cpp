// How long a seat of Póker thinks: a bet in each round, with three rivals at the table, and a discard.

#include <benchmark/benchmark.h>

#include "betting/bet_state.h"
#include "betting/chips.h"
#include "betting/phases.h"
#include "core/game_state.h"
#include "games/game_rows.h"
#include "games/poker/bet_choice.h"
#include "games/poker/discard_choice.h"
#include "games/poker/poker_state.h"
#include "platform/headless/headless_platform.h"
#include "table/deck.h"

namespace {

struct Carta {
    Integer palo, valor;
};

// A pair of Jotas, two pairs, a flush draw with a joker, a straight: no hand is read in a hurry.
constexpr Carta kManos[4][5] = {
    {{kOros, 11}, {kCopas, 11}, {kEspadas, 8}, {kBastos, 5}, {kOros, 2}},
    {{kOros, 9}, {kCopas, 9}, {kEspadas, 4}, {kBastos, 4}, {kCopas, 13}},
    {{kBastos, 13}, {kBastos, 9}, {kBastos, 7}, {kComodin, 91}, {kOros, 1}},
    {{kCopas, 6}, {kEspadas, 7}, {kOros, 8}, {kEspadas, 9}, {kEspadas, 10}},
};

PlataformaSinPantalla& SinPantalla() {
    static PlataformaSinPantalla plataforma;
    return plataforma;
}

void SientaACuatro(Integer fase) {
    UsaPlataforma(SinPantalla());
    UsaJuegos(LosJuegos());
    estado = {};
    apuestas = {};
    poker = {};
    estado.JuegoActivo = kPoker;
    estado.CartasBaraja = 1;
    estado.ComodinesJuego = 2;
    ConstruirBaraja();
    estado.LeyApertura = 10;
    estado.ApuestaMaxima = 100;
    for (Integer asiento = 1; asiento <= 4; ++asiento) {
        AsignarResto(asiento, 200);
        estado.NivelJugador(asiento) = 100;
        estado.CaracterJugador(asiento) = kAgresivo;
        estado.NumCartas(asiento, kSeriePoker) = 5;
        for (int lugar = 1; lugar <= 5; ++lugar) {
            const Carta& carta = kManos[asiento - 1][lugar - 1];
            estado.Mano(asiento, kSeriePoker, lugar, kPalo) = carta.palo;
            estado.Mano(asiento, kSeriePoker, lugar, kValor) = carta.valor;
        }
    }
    estado.JugadorActual = 1;
    apuestas.FaseApuesta = fase;
    estado.AzarTurno = 0.5F;
    apuestas.MaximaApuesta = 10;
}

void Apuesta(benchmark::State& banco) {
    SientaACuatro(static_cast<Integer>(banco.range(0)));
    for ([[maybe_unused]] auto vuelta : banco)
        CalculaApuesta();
}
BENCHMARK(Apuesta)
    ->Name("CalculaApuesta")
    ->Arg(kFasePrimeraRonda)
    ->Arg(kFaseSegundaRonda)
    ->Unit(benchmark::kNanosecond);

void Descarte(benchmark::State& banco) {
    SientaACuatro(kFaseDescartes);
    estado.JugadorActual = static_cast<Integer>(banco.range(0));
    for ([[maybe_unused]] auto vuelta : banco)
        DecideDescarte();
}
BENCHMARK(Descarte)->Name("DecideDescarte")->DenseRange(1, 4)->Unit(benchmark::kNanosecond);

} // namespace
