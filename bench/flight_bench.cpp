// A card in flight on the desktop: whether every frame stands on the screen at its time, and how long the draw for
// the first player takes where nothing is waited for. The window is 1920 by 1080, on whatever screen Qt finds.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QTemporaryDir>
#include <algorithm>
#include <chrono>
#include <cmath>
#include <memory>
#include <vector>

#include "core/default_settings.h"
#include "core/game_state.h"
#include "core/random.h"
#include "games/game_rows.h"
#include "platform/qt/platform_qt.h"
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
constexpr int kPaso = 26;      // pixels of the longer way in a frame

double Milis(Reloj::duration d) {
    return std::chrono::duration<double, std::milli>(d).count();
}

// The desktop, which notes when each frame of a flight stood on the screen.
class Escritorio : public PlataformaQt {
public:
    using PlataformaQt::PlataformaQt;
    std::vector<Reloj::time_point> cuadros;
    int posadas = 0; // cards that have come to their place

    void Vuela(int x, int y, const ImagenCarta& carta) override {
        PlataformaQt::Vuela(x, y, carta);
        en_vuelo_ = true;
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

Escritorio& Mesa() {
    static int argc = 1;
    static char nombre[] = "flight_bench";
    static char* argv[] = {nombre, nullptr};
    static QApplication programa(argc, argv);
    static QTemporaryDir carpeta;
    static const std::unique_ptr<Escritorio> mesa = [] {
        BarajaDeColores(12).save(carpeta.filePath("Baraja02.bmp"));
        auto nueva = std::make_unique<Escritorio>(carpeta.path());
        UsaPlataforma(*nueva);
        UsaJuegos(LosJuegos());
        RegistraDespacho(DespachaEvento);
        nueva->Ventana().resize(1920, 1080);
        nueva->Ventana().show();
        return nueva;
    }();
    BorraEstado();
    PonValoresPorDefecto();
    estado.JuegoActivo = kCinquillo;
    estado.CarpetaPrograma = estado.CarpetaTrabajo = carpeta.path().toStdString();
    estado.SaltoLinea = "\r\n";
    CalcularMesa();
    LimpiarMesa();
    IniciarTablas();
    PaseDeEventos(Pase::DePaso);
    return *mesa;
}

// Frames that stand later than half a frame's time count as lost.
struct Cuenta {
    double peor = 0, suma = 0;
    int cuadros = 0, perdidos = 0, faltan = 0;

    void Anade(const std::vector<Reloj::time_point>& vistos, Reloj::time_point salida,
               int debidos) {
        faltan += debidos - static_cast<int>(vistos.size());
        for (std::size_t i = 0; i < vistos.size(); ++i) {
            const double tarde =
                std::abs(Milis(vistos[i] - salida) - kCuadro * static_cast<double>(i));
            peor = std::max(peor, tarde);
            suma += tarde;
            perdidos += tarde > kCuadro / 2 ? 1 : 0;
            ++cuadros;
        }
    }
};

void Vuelo(benchmark::State& medida) {
    Escritorio& mesa = Mesa();
    estado.VelocidadJuego = 50;
    const Punto centro = CentroDelMazo();
    Cuenta cuenta;
    int asiento = 0;
    for (auto _ : medida) {
        asiento = asiento % 4 + 1;
        ColocarCarta(asiento, 1, 1);
        mesa.cuadros.clear();
        const auto salida = Reloj::now();
        MueveCarta({kOros, 7}, {centro.x, centro.y, 1, kDorso},
                   {estado.CartaX, estado.CartaY, OrientacionDe(asiento)});
        const int camino =
            std::max(std::abs(estado.CartaX - centro.x), std::abs(estado.CartaY - centro.y));
        cuenta.Anade(mesa.cuadros, salida, (camino + kPaso - 1) / kPaso);
    }
    medida.counters["worst_ms"] = cuenta.peor;
    medida.counters["mean_ms"] = cuenta.suma / std::max(cuenta.cuadros, 1);
    medida.counters["lost"] = cuenta.perdidos;
    medida.counters["missing"] = cuenta.faltan;
}
BENCHMARK(Vuelo)->Unit(benchmark::kMillisecond)->Iterations(24)->UseRealTime();

// The four Ases lie in the last places, so that 37 cards fly: the longest draw that there is, at speed 100.
void Sorteo(benchmark::State& medida) {
    Escritorio& mesa = Mesa();
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
