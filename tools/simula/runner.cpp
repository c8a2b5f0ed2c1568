#include "tools/simula/runner.h"

#include <fmt/format.h>

#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <string>
#include <thread>
#include <vector>

#include "tools/simula/match.h"

namespace {

struct Obrero {
    pid_t proceso;
    int tubo; // its totals, and what went wrong behind them
};

int CuantosProcesos(const OpcionesSimula& opciones) {
    const int pedidos = opciones.procesos > 0
                            ? opciones.procesos
                            : static_cast<int>(std::thread::hardware_concurrency());
    return static_cast<int>(std::clamp<std::int64_t>(pedidos, 1, opciones.partidas));
}

// Every procesos-th match, from primero on.
Totales JuegaParte(const OpcionesSimula& opciones, std::int64_t primero, int procesos) {
    Simulacion simulacion(opciones);
    Totales totales;
    for (std::int64_t n = primero; n < opciones.partidas; n += procesos) {
        try {
            totales += simulacion.Juega(n);
        } catch (const std::exception& fallo) {
            throw SimulacionFallida(fmt::format("juego {}, semilla {}, partida {}: {}",
                                                opciones.juego, opciones.semilla, n, fallo.what()));
        }
    }
    return totales;
}

void EscribeTodo(int tubo, const char* bytes, std::size_t cuantos) {
    while (cuantos > 0) {
        const ssize_t escritos = write(tubo, bytes, cuantos);
        if (escritos <= 0)
            _exit(2);
        bytes += escritos;
        cuantos -= static_cast<std::size_t>(escritos);
    }
}

[[noreturn]] void Trabaja(const OpcionesSimula& opciones, int parte, int procesos, int tubo) {
    Totales totales;
    std::string fallo;
    try {
        totales = JuegaParte(opciones, parte, procesos);
    } catch (const std::exception& e) {
        fallo = e.what();
    }
    EscribeTodo(tubo, reinterpret_cast<const char*>(&totales), sizeof totales);
    EscribeTodo(tubo, fallo.data(), fallo.size());
    _exit(fallo.empty() ? 0 : 1);
}

Obrero Contrata(const OpcionesSimula& opciones, int parte, int procesos) {
    int tubo[2];
    if (pipe(tubo) != 0)
        throw SimulacionFallida("no hay tubos para los procesos");
    const pid_t proceso = fork();
    if (proceso < 0)
        throw SimulacionFallida("no se puede crear otro proceso");
    if (proceso == 0) {
        close(tubo[0]);
        Trabaja(opciones, parte, procesos, tubo[1]);
    }
    close(tubo[1]);
    return {proceso, tubo[0]};
}

std::string LeeTodo(int tubo) {
    std::string todo;
    char bloque[4096];
    for (ssize_t n = 0; (n = read(tubo, bloque, sizeof bloque)) > 0;)
        todo.append(bloque, static_cast<std::size_t>(n));
    close(tubo);
    return todo;
}

// Adds what the worker has played; the answer is what it says went wrong.
std::string Recoge(const Obrero& obrero, Totales& totales) {
    const std::string todo = LeeTodo(obrero.tubo);
    int final = 0;
    waitpid(obrero.proceso, &final, 0);
    if (todo.size() < sizeof(Totales))
        return fmt::format("un proceso acabó antes de tiempo, estado {}", final);
    Totales suyos;
    std::copy_n(todo.data(), sizeof suyos, reinterpret_cast<char*>(&suyos));
    totales += suyos;
    return todo.substr(sizeof suyos);
}

} // namespace

Totales Simula(const OpcionesSimula& opciones) {
    if (opciones.partidas < 1)
        throw std::invalid_argument("las partidas son una o más");
    const int procesos = CuantosProcesos(opciones);
    if (procesos == 1)
        return JuegaParte(opciones, 0, 1);
    std::vector<Obrero> obreros;
    obreros.reserve(static_cast<std::size_t>(procesos));
    for (int parte = 0; parte < procesos; ++parte)
        obreros.push_back(Contrata(opciones, parte, procesos));
    Totales totales;
    std::string fallos;
    for (const Obrero& obrero : obreros) {
        const std::string fallo = Recoge(obrero, totales);
        fallos += fallos.empty() || fallo.empty() ? fallo : "\n" + fallo;
    }
    if (!fallos.empty())
        throw SimulacionFallida(fallos);
    return totales;
}
