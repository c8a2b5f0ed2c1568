#include "core/tabla.h"

#include <fmt/format.h>

void LanzaIndiceFuera(std::size_t dimension, long long indice, int tope) {
    throw IndiceFuera(
        fmt::format("índice {} fuera de 0..{} en la dimensión {}", indice, tope, dimension));
}
