// A card in flight on the desktop: whether every frame stands on the screen at its time, and how long the draw for
// the first player takes where nothing is waited for. At two sizes of the
// window, on whatever screen Qt finds.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QTemporaryDir>
#include <algorithm>
#include <chrono>
#include <cmath>
#include <string>
#include <thread>
#include <vector>

#include "core/default_settings.h"
#include "core/game_state.h"
#include "core/random.h"
#include "games/game_rows.h"
#include "platform/qt/platform_qt.h"
#include "platform/qt/scale.h"
#include "session/initial_draw.h"
#include "session/main_buttons.h"
#include "session/match_driver.h"
#include "session/state_blocks.h"
#include "table/flight.h"
#include "table/layout.h"
#include "table/waiting.h"
#include "table/whole_table.h"
#include "tests/gui/deck_images.h"

namespace {

using Reloj = std::chrono::steady_clock;

constexpr double kCuadro = 12; // milliseconds from frame to frame at speed 50
constexpr int kCuadrosDeReposo = 800;

double Milis(Reloj::duration d) {
    return std::chrono::duration<double, std::milli>(d).count();
}

// The desktop, which notes when each frame of a flight stood on the screen.
class Escritorio : public PlataformaQt {
public:
    using PlataformaQt::PlataformaQt;
    std::vector<Reloj::time_point> cuadros;
    int pasos = 0;   // places to which flights have moved their card
    int posadas = 0; // cards that have come to their place

    void Vuela(int x, int y, const ImagenCarta& carta) override {
        PlataformaQt::Vuela(x, y, carta);
        en_vuelo_ = true;
        ++pasos;
    }
    void Posa() override {
        PlataformaQt::Posa();
        ++posadas;
        en_vuelo_ = false;
    }
    void Repinta() override {
        PlataformaQt::Repinta();
        if (en_vuelo_)
            cuadros.push_back(Reloj::now());
    }
    Boton Pregunta(const CajaMensaje&) override { return Boton::Salir; }

private:
    bool en_vuelo_ = false;
};

struct Programa {
    Escritorio& mesa;
    std::string carpeta;
};
const Programa* el_programa = nullptr; // stands as long as main does

// The empty table of a window of that size.
Escritorio& Mesa(int ancho, int alto) {
    Escritorio& mesa = el_programa->mesa;
    mesa.Ventana().resize(ancho, alto);
    mesa.Ventana().show();
    BorraEstado();
    PonValoresPorDefecto();
    estado.JuegoActivo = kCinquillo;
    estado.CarpetaPrograma = estado.CarpetaTrabajo = el_programa->carpeta;
    estado.SaltoLinea = "\r\n";
    PaseDeEventos(Pase::DePaso);
    CalcularMesa();
    LimpiarMesa();
    IniciarTablas();
    PaseDeEventos(Pase::DePaso);
    return mesa;
}

// Frames that stand earlier or later than half a frame's time count as lost.
struct Cuenta {
    double peor = 0, suma = 0;
    int cuadros = 0, perdidos = 0;

    void Anade(double tarde) {
        peor = std::max(peor, tarde);
        suma += tarde;
        perdidos += tarde > kCuadro / 2 ? 1 : 0;
        ++cuadros;
    }
    void Anade(const std::vector<Reloj::time_point>& vistos, Reloj::time_point salida) {
        for (std::size_t i = 0; i < vistos.size(); ++i)
            Anade(std::abs(Milis(vistos[i] - salida) - kCuadro * static_cast<double>(i)));
    }
    void Cuentalo(benchmark::State& medida) const {
        medida.counters["worst_ms"] = peor;
        medida.counters["mean_ms"] = suma / std::max(cuadros, 1);
        medida.counters["lost"] = perdidos;
        medida.counters["frames"] = cuadros;
    }
};

// What the machine itself is late with: nothing is drawn, the thread sleeps to the same times. A flight can be no
// better than this.
void Reposo(benchmark::State& medida) {
    Cuenta cuenta;
    for (auto _ : medida) {
        const auto salida = Reloj::now();
        for (int i = 1; i <= kCuadrosDeReposo; ++i) {
            const auto debido = salida + i * std::chrono::milliseconds(static_cast<int>(kCuadro));
            std::this_thread::sleep_until(debido);
            cuenta.Anade(Milis(Reloj::now() - debido));
        }
    }
    cuenta.Cuentalo(medida);
}
BENCHMARK(Reposo)->Unit(benchmark::kMillisecond)->Iterations(1)->UseRealTime();

// missing: places of the card that no frame has shown.
void Vuelo(benchmark::State& medida) {
    Escritorio& mesa = Mesa(static_cast<int>(medida.range(0)), static_cast<int>(medida.range(1)));
    estado.VelocidadJuego = 50;
    const Punto centro = CentroDelMazo();
    Cuenta cuenta;
    mesa.pasos = 0;
    int asiento = 0;
    for (auto _ : medida) {
        asiento = asiento % 4 + 1;
        ColocarCarta(asiento, 1, 1);
        mesa.cuadros.clear();
        const auto salida = Reloj::now();
        MueveCarta({kOros, 7}, {centro.x, centro.y, 1, kDorso},
                   {estado.CartaX, estado.CartaY, OrientacionDe(asiento)});
        cuenta.Anade(mesa.cuadros, salida);
    }
    cuenta.Cuentalo(medida);
    medida.counters["missing"] = mesa.pasos - cuenta.cuadros;
    medida.counters["factor"] = FactorDeMesa();
}
BENCHMARK(Vuelo)
    ->Args({1920, 1080})
    ->Args({2560, 1440})
    ->Unit(benchmark::kMillisecond)
    ->Iterations(24)
    ->UseRealTime();

// The four Ases lie in the last places, so that 37 cards fly: the longest draw that there is, at speed 100.
void Sorteo(benchmark::State& medida) {
    Escritorio& mesa = Mesa(1920, 1080);
    estado.VelocidadJuego = 100;
    mesa.posadas = 0;
    for (auto _ : medida) {
        LimpiarMesa();
        estado.PartidaEnCurso = true;
        EncolaAzar({36.5 / 40, 37.5 / 40, 38.5 / 40, 39.5 / 40});
        benchmark::DoNotOptimize(SorteoInicial());
    }
    medida.counters["cards"] = benchmark::Counter(mesa.posadas, benchmark::Counter::kAvgIterations);
}
BENCHMARK(Sorteo)->Unit(benchmark::kMillisecond)->Iterations(20)->UseRealTime();

} // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    const QApplication programa(argc, argv);
    const QTemporaryDir carpeta;
    BarajaDeColores(12).save(carpeta.filePath("Baraja02.bmp"));
    Escritorio mesa(carpeta.path());
    UsaPlataforma(mesa);
    UsaJuegos(LosJuegos());
    RegistraDespacho(DespachaEvento);
    const Programa este{mesa, carpeta.path().toStdString()};
    el_programa = &este;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
}
