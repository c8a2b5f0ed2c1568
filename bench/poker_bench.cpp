// How fast hands of Póker are read and numbered: hands spread over the whole deck, one after the other.

#include <benchmark/benchmark.h>

#include <array>
#include <vector>

#include "core/game_state.h"
#include "core/random.h"
#include "games/game_rows.h"
#include "games/poker/hand_reading.h"
#include "games/poker/hand_value.h"
#include "games/poker/poker_state.h"
#include "platform/headless/headless_platform.h"
#include "table/deck.h"

namespace {

constexpr int kManos = 4096;
constexpr int kCartas = 5;

struct Carta {
    Integer palo, valor;
};
using Mano = std::array<Carta, kCartas>;

void PonBaraja(Integer cartas_baraja, Integer comodines_juego) {
    static PlataformaSinPantalla mesa;
    UsaPlataforma(mesa);
    UsaJuegos(LosJuegos());
    estado = {};
    estado.JuegoActivo = kPoker;
    estado.CartasBaraja = cartas_baraja;
    estado.ComodinesJuego = comodines_juego;
    estado.VelocidadJuego = 50;
    ConstruirBaraja();
    FijaSemilla(7);
}

// Hands as they are dealt from a shuffled deck.
std::vector<Mano> Reparte() {
    std::vector<Mano> manos;
    while (manos.size() < kManos) {
        Barajar();
        for (int primera = 1; primera + kCartas <= estado.TotalBaraja + 1; primera += kCartas) {
            Mano mano{};
            for (int i = 0; i < kCartas; ++i)
                mano[static_cast<std::size_t>(i)] = {estado.Baraja(primera + i, 1),
                                                     estado.Baraja(primera + i, 2)};
            manos.push_back(mano);
        }
    }
    return manos;
}

void PonDelante(const Mano& mano) {
    int lugar = 0;
    for (const Carta& carta : mano) {
        ++lugar;
        estado.Mano(1, 1, lugar, kPalo) = carta.palo;
        estado.Mano(1, 1, lugar, kValor) = carta.valor;
    }
}

template <class Lee>
void LeeManos(benchmark::State& banco, Lee&& lee) {
    PonBaraja(static_cast<Integer>(banco.range(0)), static_cast<Integer>(banco.range(1)));
    const std::vector<Mano> manos = Reparte();
    std::size_t i = 0;
    for ([[maybe_unused]] auto vuelta : banco) {
        PonDelante(manos[i]);
        i = i + 1 == manos.size() ? 0 : i + 1;
        lee();
    }
    banco.SetItemsProcessed(banco.iterations());
}

// CartasBaraja and ComodinesJuego: 52 cards and 32, without jokers, with one and with two.
void Barajas(benchmark::internal::Benchmark* prueba) {
    prueba->ArgsProduct({{1, 6}, {1, 2, 3}})->Unit(benchmark::kNanosecond);
}

void Analisis(benchmark::State& banco) {
    LeeManos(banco, [] { AnalizaJugada(1); });
}
BENCHMARK(Analisis)->Apply(Barajas);

void AnalisisYValor(benchmark::State& banco) {
    LeeManos(banco, [] {
        AnalizaJugada(1);
        benchmark::DoNotOptimize(ValorJugada(poker.MejorJugada(1), 1));
    });
}
BENCHMARK(AnalisisYValor)->Apply(Barajas);

} // namespace
