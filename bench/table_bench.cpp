// The table without a screen: what a deal, a move of the mouse and a whole repaint cost the logic.

#include <benchmark/benchmark.h>

#include "core/game_state.h"
#include "games/common/trick_state.h"
#include "platform/headless/headless_platform.h"
#include "session/main_buttons.h"
#include "table/deal.h"
#include "table/deck.h"
#include "table/table_input.h"
#include "table/waiting.h"
#include "table/whole_table.h"
#include "tools/common/fresh_table.h"

namespace {

// A canvas that takes every call and keeps nothing.
struct MesaMuda : PlataformaSinPantalla {
    bool HayPantalla() const override { return true; }
};

void PonMesa(PlataformaSinPantalla& mesa) {
    mesa.registra = false;
    UsaPlataforma(mesa);
    RegistraDespacho(DespachaEvento);
    PonMesaNueva();
    estado.JuegoActivo = kCinquillo;
    estado.VelocidadJuego = 100;
    ConstruirBaraja();
    estado.PartidaEnCurso = true;
    estado.SerieActual = 1;
    estado.JugadorMano = 1;
}

bool ReparteDeNuevo() {
    for (Integer asiento = 1; asiento <= 4; ++asiento)
        VaciaMano(asiento);
    return Repartir();
}

void RepartoDeUnaMano(benchmark::State& vueltas) {
    PlataformaSinPantalla mesa;
    PonMesa(mesa);
    for ([[maybe_unused]] auto vuelta : vueltas)
        benchmark::DoNotOptimize(ReparteDeNuevo());
}
BENCHMARK(RepartoDeUnaMano)->Unit(benchmark::kMicrosecond);

// Along the hand of seat 4, whose turn it is.
void UnMovimientoDelRaton(benchmark::State& vueltas) {
    PlataformaSinPantalla mesa;
    PonMesa(mesa);
    if (!ReparteDeNuevo()) {
        vueltas.SkipWithError("la mano no se ha repartido");
        return;
    }
    estado.ManoEnCurso = true;
    estado.JugadorActual = 4;
    int x = 0;
    for ([[maybe_unused]] auto vuelta : vueltas) {
        x = (x + 7) % estado.AnchoMesa;
        Form_MouseMove(x, 500);
    }
}
BENCHMARK(UnMovimientoDelRaton);

void LaMesaEntera(benchmark::State& vueltas) {
    MesaMuda mesa;
    PonMesa(mesa);
    if (!ReparteDeNuevo()) {
        vueltas.SkipWithError("la mano no se ha repartido");
        return;
    }
    for (Integer palo = kOros; palo <= kBastos; ++palo)
        bazas.CartaJugada(palo, 5) = 1;
    for ([[maybe_unused]] auto vuelta : vueltas)
        RedibujarMesa();
}
BENCHMARK(LaMesaEntera)->Unit(benchmark::kMicrosecond);

} // namespace
