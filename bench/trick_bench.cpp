// How long a seat thinks in Tute and Brisca: the exact search at its largest and a choice without it.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <random>
#include <vector>

#include "core/game_state.h"
#include "games/common/trick_state.h"
#include "games/trick/choice_brisca.h"
#include "games/trick/choice_tute.h"
#include "games/trick/exact_search.h"

namespace {

struct Carta {
    Integer palo, valor;
};

void PonReglas(Integer juego, Integer jugadores) {
    constexpr Integer kOrden[] = {0, 10, 1, 9, 2, 3, 4, 5, 0, 0, 6, 7, 8};
    constexpr int kTantos[] = {0, 11, 0, 10, 0, 0, 0, 0, 0, 0, 2, 3, 4};
    estado = {};
    bazas = {};
    estado.JuegoActivo = juego;
    estado.NumJugadores = jugadores;
    estado.ModalidadJuego = kIndividual;
    estado.PasoSentido = 1;
    estado.CartasReparto = juego == kBrisca ? 3 : 10;
    estado.MaxCartasMano = estado.CartasReparto;
    for (Integer valor = 1; valor <= 12; ++valor) {
        estado.ValorEnBaraja(valor) = kOrden[valor] != 0;
        estado.OrdenCarta(valor) = kOrden[valor];
        estado.ValorCarta(valor) = kTantos[valor];
    }
    for (Integer asiento = 1; asiento <= 4; ++asiento) {
        estado.EstadoJugador(asiento) = asiento > 4 - jugadores ? kActivado : kDesactivado;
        estado.NivelJugador(asiento) = 100;
        estado.CaracterJugador(asiento) = kMedio;
        estado.ParejaAsiento(asiento) =
            static_cast<Integer>(asiento > 2 ? asiento - 2 : asiento + 2);
    }
    estado.JugadorSalida = 4;
    estado.JugadorActual = 4;
    estado.CartasEnBaza = 1;
    estado.AzarTurno = 0.5F;
}

// Deals from the given order of the deck; the last card turns up.
void Reparte(const std::vector<Carta>& baraja, int cartas) {
    auto carta = baraja.begin();
    for (Integer asiento = 1; asiento <= 4; ++asiento) {
        if (estado.EstadoJugador(asiento) != kActivado)
            continue;
        for (int lugar = 1; lugar <= cartas; ++lugar, ++carta) {
            estado.Mano(asiento, 1, lugar, kPalo) = carta->palo;
            estado.Mano(asiento, 1, lugar, kValor) = carta->valor;
        }
        estado.NumCartas(asiento, 1) = static_cast<Integer>(cartas);
    }
    estado.PaloTriunfo = baraja.back().palo;
    estado.ValorTriunfo = baraja.back().valor;
}

// Each seat holds one suit, so that nobody can follow and every order of every hand is legal. There is no
// larger search.
std::vector<Carta> UnPaloCadaUno(int jugadores, int cartas) {
    constexpr Integer kValores[] = {1, 3, 12, 11, 10};
    std::vector<Carta> baraja;
    for (int asiento = 0; asiento < jugadores; ++asiento) {
        for (int i = 0; i < cartas; ++i)
            baraja.push_back({static_cast<Integer>(kOros + asiento), kValores[i]});
    }
    baraja.push_back({kBastos, 4});
    return baraja;
}

void BusquedaMayor(benchmark::State& banco) {
    const int jugadores = static_cast<int>(banco.range(0));
    const int cartas = 7 - jugadores;
    PonReglas(kTute, static_cast<Integer>(jugadores));
    Reparte(UnPaloCadaUno(jugadores, cartas), cartas);
    for ([[maybe_unused]] auto vuelta : banco)
        ExploraBazas();
}
BENCHMARK(BusquedaMayor)->DenseRange(2, 4)->Unit(benchmark::kMicrosecond);

std::vector<Carta> Barajada() {
    std::vector<Carta> baraja;
    for (Integer palo = kOros; palo <= kBastos; ++palo) {
        for (const int valor : {1, 2, 3, 4, 5, 6, 7, 10, 11, 12})
            baraja.push_back({palo, static_cast<Integer>(valor)});
    }
    std::mt19937 azar(7);
    std::shuffle(baraja.begin(), baraja.end(), azar);
    return baraja;
}

void BusquedaDeCinco(benchmark::State& banco) {
    PonReglas(kTute, 2);
    Reparte(Barajada(), 5);
    for ([[maybe_unused]] auto vuelta : banco)
        ExploraBazas();
}
BENCHMARK(BusquedaDeCinco)->Unit(benchmark::kMicrosecond);

void EleccionTute(benchmark::State& banco) {
    PonReglas(kTute, 4);
    Reparte(Barajada(), 10);
    bazas.Arrastre = true;
    for ([[maybe_unused]] auto vuelta : banco)
        EligeCartaTute();
}
BENCHMARK(EleccionTute)->Unit(benchmark::kNanosecond);

void EleccionBrisca(benchmark::State& banco) {
    PonReglas(kBrisca, 4);
    Reparte(Barajada(), 3);
    estado.CartasEnMazo = 24;
    for ([[maybe_unused]] auto vuelta : banco)
        EligeCartaBrisca();
}
BENCHMARK(EleccionBrisca)->Unit(benchmark::kNanosecond);

void ValoracionDeSalida(benchmark::State& banco) {
    PonReglas(kBrisca, 4);
    Reparte(Barajada(), 3);
    estado.CartasEnMazo = 24;
    EligeCartaBrisca();
    ExploraBazas();
    for ([[maybe_unused]] auto vuelta : banco)
        ValoraExploracion();
}
BENCHMARK(ValoracionDeSalida)->Unit(benchmark::kNanosecond);

} // namespace
