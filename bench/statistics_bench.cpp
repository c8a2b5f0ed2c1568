// The statistics of each game, opened over a hand with as much to tell as it can have: printed, and on the screen. The
// budget of the form, from the button to the painted page, is 50 milliseconds.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QTimer>
#include <QWidget>

#include "core/game_state.h"
#include "games/common/series.h"
#include "reports/estadis.h"
#include "reports/estadis_view.h"
#include "tools/simula/match.h"

namespace {

OpcionesSimula UnaPartida(Integer juego) {
    OpcionesSimula opciones;
    opciones.juego = juego;
    opciones.asientos =
        juego == kTute || juego == kBrisca ? 2 : 4; // two seats play the most tricks
    opciones.limite = 1;
    return opciones;
}

// The last hand of a match as if it were on, a person who holds cards on turn and everything on offer.
class ManoLlena {
public:
    explicit ManoLlena(Integer juego) : simulacion_(UnaPartida(juego)) {
        simulacion_.Juega(0);
        estado.ManoEnCurso = true;
        estado.SerieActual = 1;
        for (Integer asiento = 1; asiento <= 4; ++asiento) {
            if (asiento == estado.JugadorBanca || estado.NumCartas(asiento, 1) == 0)
                continue;
            estado.JugadorActual = asiento;
            estado.ControlJugador(asiento) = kManual;
        }
        series.PuedeAbrir = series.PuedeAsegurar = series.PuedeDoblar = true;
    }

private:
    Simulacion simulacion_;
};

// Closes the form as soon as it has been painted.
class CierraAlPintarse : public QObject {
public:
    bool eventFilter(QObject* quien, QEvent* evento) override {
        if (evento->type() == QEvent::Paint && quien->objectName() == QStringLiteral("Texto"))
            QTimer::singleShot(0, quien,
                               [quien] { static_cast<QWidget*>(quien)->window()->close(); });
        return QObject::eventFilter(quien, evento);
    }
};

void Impresion(benchmark::State& vueltas) {
    const ManoLlena mano(static_cast<Integer>(vueltas.range(0)));
    std::size_t impresos = 0;
    for ([[maybe_unused]] auto vuelta : vueltas)
        impresos = estadis::Pagina().Impresos().size();
    vueltas.counters["items"] = static_cast<double>(impresos);
}
BENCHMARK(Impresion)
    ->Arg(kPoker)
    ->Arg(kBlackJack)
    ->Arg(kTute)
    ->Arg(kBrisca)
    ->Arg(kSieteYMedia)
    ->Arg(kCinquillo)
    ->Unit(benchmark::kMicrosecond);

void Apertura(benchmark::State& vueltas) {
    static int argc = 1;
    static char nombre[] = "statistics_bench";
    static char* argv[] = {nombre, nullptr};
    static QApplication programa(argc, argv);
    const ManoLlena mano(static_cast<Integer>(vueltas.range(0)));
    CierraAlPintarse cierra;
    qApp->installEventFilter(&cierra);
    for ([[maybe_unused]] auto vuelta : vueltas)
        AbreVistaEstadis(nullptr);
}
BENCHMARK(Apertura)
    ->Arg(kPoker)
    ->Arg(kBlackJack)
    ->Arg(kTute)
    ->Arg(kBrisca)
    ->Arg(kSieteYMedia)
    ->Arg(kCinquillo)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

} // namespace
