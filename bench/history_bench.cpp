// A history of a hundred thousand matches: opening it (budget 0.5 s), its totals (1 s), and a plain read of the same
// bytes beside them. "memoria" is what the open history holds, in times of the file: four are allowed.

#include <benchmark/benchmark.h>
#ifdef __GLIBC__
#include <malloc.h>
#endif

#include <string>

#include "core/game_state.h"
#include "platform/headless/headless_platform.h"
#include "reports/historic_totals.h"
#include "storage/history.h"

namespace {

constexpr int kPartidas = 100000;
constexpr int kNombres = 500;

std::string Nombre(int n) {
    return "Jugad" + std::to_string(n % kNombres);
}

// Every third match is one of pairs. Out of order when asked: then opening has to sort.
std::string HazHistorico(bool ordenado) {
    std::string contenido;
    for (int i = 0; i < kPartidas; ++i) {
        const int n = ordenado ? i : (i * 7919) % kPartidas;
        const FechaHora fin{2000 + n / 4000, 1 + n / 334 % 12, 1 + n / 12 % 28, n % 24, n % 60, 0};
        contenido += EscribeBloque({.fin = fin,
                                    .ganadores = {{Nombre(i), 3}, {Nombre(i * 3), 2}},
                                    .perdedores = {{Nombre(i + 1), 1}, {Nombre(i + 2), 0}},
                                    .por_parejas = i % 3 == 0});
    }
    return contenido;
}

// The table with the history as its file.
class Mesa {
public:
    explicit Mesa(bool ordenado) {
        UsaPlataforma(plataforma_);
        estado.CarpetaTrabajo = ".";
        plataforma_.EnMemoria().contenidos["./" + NombreHistorico(kTute)] = HazHistorico(ordenado);
    }
    const std::string& Bytes() {
        return plataforma_.EnMemoria().contenidos["./" + NombreHistorico(kTute)];
    }

private:
    PlataformaSinPantalla plataforma_;
};

double Ocupado() {
#ifdef __GLIBC__
    const struct mallinfo2 uso = mallinfo2();
    return static_cast<double>(uso.uordblks + uso.hblkhd);
#else
    return 0;
#endif
}

void LecturaSimple(benchmark::State& vueltas) {
    Mesa mesa(true);
    for ([[maybe_unused]] auto vuelta : vueltas)
        benchmark::DoNotOptimize(
            plataforma().LosArchivos().Lee("./" + NombreHistorico(kTute)).contenido.size());
}
BENCHMARK(LecturaSimple)->Unit(benchmark::kMillisecond);

void Apertura(benchmark::State& vueltas) {
    Mesa mesa(vueltas.range(0) != 0);
    for ([[maybe_unused]] auto vuelta : vueltas)
        benchmark::DoNotOptimize(LeeHistorico(kTute).Partidas());
    const double antes = Ocupado();
    const Historico historico = LeeHistorico(kTute);
    vueltas.counters["memoria"] = (Ocupado() - antes) / static_cast<double>(mesa.Bytes().size());
    benchmark::DoNotOptimize(historico.Partidas());
}
BENCHMARK(Apertura)->ArgName("en_orden")->Arg(1)->Arg(0)->Unit(benchmark::kMillisecond);

void LosTotales(benchmark::State& vueltas) {
    Mesa mesa(true);
    const Historico historico = LeeHistorico(kTute);
    for ([[maybe_unused]] auto vuelta : vueltas)
        benchmark::DoNotOptimize(CuentaTotales(historico)[0].size());
}
BENCHMARK(LosTotales)->Unit(benchmark::kMillisecond);

} // namespace
