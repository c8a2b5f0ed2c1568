#include "core/numeric.h"

#include <cmath>
#include <limits>

namespace {

double AlPar(double valor) {
    const double suelo = std::floor(valor);
    const double resto = valor - suelo;
    if (resto > 0.5)
        return suelo + 1;
    if (resto < 0.5)
        return suelo;
    return std::fmod(suelo, 2.0) == 0.0 ? suelo : suelo + 1;
}

template <class T>
T Cabe(double valor) {
    if (!(valor >= std::numeric_limits<T>::min() && valor <= std::numeric_limits<T>::max())) {
        throw Desbordamiento("número fuera de los límites");
    }
    return static_cast<T>(valor);
}

} // namespace

Integer Redondea(double valor) {
    return Cabe<Integer>(AlPar(valor));
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
    return AlPar(valor * escala) / escala;
}

Currency Currency::DeReal(double valor) {
    const double escalado = AlPar(valor * static_cast<double>(kUnidad));
    if (!(std::abs(escalado) < 9.0e18))
        throw Desbordamiento("importe fuera de los límites");
    return DeDiezmilesimas(static_cast<std::int64_t>(escalado));
}
