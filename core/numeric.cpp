#include "core/numeric.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace {

// The nearest whole number to valor x escala, a power of ten. The product of two decimals may fall beside a
// half that they meet exactly, or on one that they miss, so the half is brought back to valor's own scale.
double AlPar(double valor, double escala = 1) {
    const double producto = valor * escala;
    const double suelo = std::floor(producto);
    if (suelo == producto)
        return suelo;
    const double mitad = (suelo + 0.5) / escala;
    if (valor != mitad)
        return valor > mitad ? suelo + 1 : suelo;
    return std::fmod(suelo, 2.0) == 0.0 ? suelo : suelo + 1;
}

template <class T>
T Cabe(double valor) {
    if (!(valor >= std::numeric_limits<T>::min() && valor <= std::numeric_limits<T>::max()))
        throw Desbordamiento("número fuera de los límites");
    return static_cast<T>(valor);
}

} // namespace

Integer Redondea(double valor) {
    return Cabe<Integer>(std::nearbyint(valor)); // the processor's own rounding: halves to the even
}

double EnDecimal(float valor) {
    std::array<char, 64> escrito{};
    const auto fin = std::to_chars(escrito.data(), escrito.data() + escrito.size(), valor).ptr;
    double decimal = valor;
    std::from_chars(escrito.data(), fin, decimal);
    return decimal;
}

Integer RedondeaCociente(long long dividendo, long long divisor) {
    long long suelo = dividendo / divisor;
    if (suelo * divisor > dividendo)
        --suelo;
    const long long dos_veces_resto = 2 * (dividendo - suelo * divisor);
    const bool sube = dos_veces_resto > divisor || (dos_veces_resto == divisor && suelo % 2 != 0);
    return EnteroDe(sube ? suelo + 1 : suelo);
}

Long ParteEntera(double valor) {
    return Cabe<Long>(std::floor(valor));
}

Integer EnteroDe(long long valor) {
    if (valor < std::numeric_limits<Integer>::min() ||
        valor > std::numeric_limits<Integer>::max()) {
        throw Desbordamiento("número fuera de los límites");
    }
    return static_cast<Integer>(valor);
}

double RedondeaA(double valor, int decimales) {
    const double escala = std::pow(10.0, decimales);
    return AlPar(valor, escala) / escala;
}

Currency Currency::DeReal(double valor) {
    const double escalado = AlPar(valor, static_cast<double>(kUnidad));
    if (!(std::abs(escalado) < 9.0e18))
        throw Desbordamiento("importe fuera de los límites");
    return DeDiezmilesimas(static_cast<std::int64_t>(escalado));
}
