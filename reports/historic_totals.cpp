#include "reports/historic_totals.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <functional>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "core/text.h"

namespace {

constexpr std::size_t kAnchoNombre = 9;
constexpr double kMenorCuenta = -99999, kMayorCuenta = 999999;

// Sums by a key of one or two names, each right-aligned in its columns.
using Sumas = std::unordered_map<std::string, double>;

void PonEnColumna(std::string& clave, std::string_view nombre) {
    clave.append(kAnchoNombre - std::min(nombre.size(), kAnchoNombre), ' ');
    clave += nombre;
}

std::string Clave(std::string_view nombre) {
    std::string clave;
    PonEnColumna(clave, nombre);
    return clave;
}

std::string ClaveDePareja(const BloqueHistorico& partida) {
    std::string clave = Clave(partida.Ganador(1));
    PonEnColumna(clave, partida.Ganador(2));
    return clave;
}

std::string NombreEn(const std::string& clave, std::size_t columna) {
    return columna < clave.size()
               ? Recorta(TextoDeHistorico(std::string_view(clave).substr(columna, kAnchoNombre)))
               : "";
}

std::vector<Total> Ordena(const Sumas& sumas) {
    std::vector<std::pair<int, std::string_view>> lineas;
    for (const auto& [clave, suma] : sumas) {
        const double cabe = std::clamp(std::nearbyint(suma), kMenorCuenta, kMayorCuenta);
        lineas.emplace_back(static_cast<int>(cabe), clave);
    }
    std::ranges::sort(lineas, std::greater<>());
    std::vector<Total> totales;
    for (const auto& [cuenta, clave] : lineas) {
        const std::string nombres(clave);
        totales.push_back({NombreEn(nombres, 0), NombreEn(nombres, kAnchoNombre), cuenta});
    }
    return totales;
}

// A winner without a name counts for what the figure says, as it stands in the file.
void CuentaGanadores(const BloqueHistorico& partida, Sumas& partidas, Sumas& figuras) {
    for (int puesto = 1; puesto <= kPuestos; ++puesto) {
        const std::string_view nombre = partida.Ganador(puesto);
        const double figura = partida.FiguraGanador(puesto);
        if (nombre.empty() && figura <= 0)
            continue;
        const std::string clave = Clave(nombre);
        if (!nombre.empty())
            partidas[clave] += 1;
        figuras[clave] += figura;
    }
}

} // namespace

Totales CuentaTotales(const Historico& historico) {
    std::array<Sumas, kPestanas> sumas;
    for (int n = 1; n <= historico.Partidas(); ++n) {
        const BloqueHistorico partida = historico.Partida(n);
        CuentaGanadores(partida, sumas[kPartidasDeJugador - 1], sumas[kFigurasDeJugador - 1]);
        if (partida.PorParejas()) {
            const std::string clave = ClaveDePareja(partida);
            sumas[kPartidasDePareja - 1][clave] += 1;
            sumas[kFigurasDePareja - 1][clave] += partida.FiguraGanador(1);
        }
    }
    Totales totales;
    std::ranges::transform(sumas, totales.begin(), Ordena);
    return totales;
}
