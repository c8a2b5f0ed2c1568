#include "core/random.h"

#include <algorithm>
#include <deque>
#include <random>
#include <stdexcept>

namespace {

struct Generador {
    std::mt19937_64 motor;
    std::deque<double> cola;
    bool fijo = false;
};

Generador& ElGenerador() {
    static Generador generador;
    return generador;
}

} // namespace

double Azar() {
    Generador& g = ElGenerador();
    if (!g.cola.empty()) {
        const double primero = g.cola.front();
        g.cola.pop_front();
        return primero;
    }
    return static_cast<double>(g.motor() >> 11) * 0x1.0p-53;
}

float AzarDeTurno() {
    constexpr float kCasiUno = 0x1.fffffep-1F;
    return std::min(static_cast<float>(Azar()), kCasiUno);
}

int AzarEntre(int n) {
    // Adding before cutting would round the last number below 1 up to n + 1.
    return static_cast<int>(n * Azar()) + 1;
}

void SiembraDelReloj(std::int64_t milisegundos) {
    if (!ElGenerador().fijo)
        ElGenerador().motor.seed(static_cast<std::uint64_t>(milisegundos));
}

void FijaSemilla(std::uint64_t semilla) {
    ElGenerador().motor.seed(semilla);
    ElGenerador().fijo = true;
}

void EncolaAzar(const std::vector<double>& numeros) {
    for (double r : numeros) {
        if (!(r >= 0 && r < 1))
            throw std::invalid_argument("número de azar fuera de [0, 1)");
    }
    auto& cola = ElGenerador().cola;
    cola.insert(cola.end(), numeros.begin(), numeros.end());
}

void VaciaColaAzar() {
    ElGenerador().cola.clear();
}
