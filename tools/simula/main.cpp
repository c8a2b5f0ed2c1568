// simula: plays matches without a screen, by the thousand, and tells what came of them.

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <chrono>
#include <cstdio>

#include "games/game_rows.h"
#include "tools/simula/runner.h"

namespace {

void PonOpciones(CLI::App& app, OpcionesSimula& opciones) {
    std::vector<int> juegos;
    for (const FilaJuego* fila : FilasDeJuegos()) {
        if (SePuedeJugar(*fila))
            juegos.push_back(fila->id);
    }
    app.add_option("--juego", opciones.juego, "número del juego")
        ->required()
        ->check(CLI::IsMember(juegos));
    app.add_option("--partidas", opciones.partidas, "cuántas partidas")->capture_default_str();
    app.add_option("--semilla", opciones.semilla, "semilla de todo")->capture_default_str();
    app.add_option("--asientos", opciones.asientos, "asientos activos, de 2 a 4")
        ->capture_default_str();
    app.add_flag("--parejas", opciones.parejas, "dos parejas");
    app.add_option("--limite", opciones.limite, "límite de la partida")->capture_default_str();
    app.add_option("--niveles", opciones.niveles, "niveles de los asientos 1 a 4: a,b,c,d")
        ->delimiter(',');
    app.add_option("--caracteres", opciones.caracteres, "caracteres de los asientos: a,b,c,d")
        ->delimiter(',');
    app.add_option("--sentido", opciones.sentido, "1 directo, 2 inverso")->capture_default_str();
    app.add_flag("--azar", opciones.azar,
                 "niveles, caracteres, nombres y sentido de cada partida al azar");
    app.add_flag("--personas", opciones.personas,
                 "asientos manuales al azar, que siguen el consejo");
    app.add_flag("--caprichos", opciones.caprichos,
                 "los asientos manuales pulsan antes lo que sea");
    app.add_option("--resto", opciones.resto, "resto inicial en los juegos con dinero");
    app.add_option("--maxima", opciones.maxima, "apuesta máxima en los juegos con dinero");
    app.add_option("--baraja", opciones.baraja, "Póker: 1 completa, 2 a 6 desde el 3 al 7")
        ->check(CLI::Range(1, 6));
    app.add_option("--comodines", opciones.comodines, "Póker: 1 ninguno, 2 uno, 3 dos")
        ->check(CLI::Range(1, 3));
    app.add_option("--ley", opciones.ley, "Póker: ley de apertura, 14 ninguna")
        ->check(CLI::Range(1, 14));
    app.add_option("--salida", opciones.salida, "Póker: apuesta de salida")
        ->check(CLI::Range(1, 999));
    app.add_option("--procesos", opciones.procesos, "procesos a la vez; 0, uno por núcleo")
        ->capture_default_str();
    app.add_flag("--firma", opciones.firma, "un número sobre todo lo decidido");
}

void Cuenta(const OpcionesSimula& opciones, const Totales& totales, double segundos) {
    fmt::print("juego {}, semilla {}\n", FilaDe(static_cast<Integer>(opciones.juego))->nombre,
               opciones.semilla);
    fmt::print("partidas {}\n", totales.partidas);
    fmt::print("manos {}\n", totales.manos);
    for (std::size_t asiento = 1; asiento <= 4; ++asiento)
        fmt::print("ganadas por {}: {}\n", asiento, totales.ganadas[asiento]);
    if (opciones.firma)
        fmt::print("firma {:016x}\n", totales.firma);
    fmt::print("manos por segundo {:.0f}\n", static_cast<double>(totales.manos) / segundos);
}

} // namespace

// What nobody catches ends the tool with its words, as it should.
int main(int argc, char** argv) { // NOLINT(bugprone-exception-escape)
    UsaJuegos(LosJuegos());
    OpcionesSimula opciones;
    CLI::App app{"Partidas automáticas sin pantalla"};
    PonOpciones(app, opciones);
    CLI11_PARSE(app, argc, argv);
    try {
        const auto antes = std::chrono::steady_clock::now();
        const Totales totales = Simula(opciones);
        const std::chrono::duration<double> gastado = std::chrono::steady_clock::now() - antes;
        Cuenta(opciones, totales, gastado.count());
        return 0;
    } catch (const std::exception& fallo) {
        fmt::print(stderr, "simula: {}\n", fallo.what());
        return 1;
    }
}
