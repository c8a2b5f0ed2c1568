#include "betting/chips.h"

#include "betting/bet_state.h"
#include "betting/phases.h"
#include "core/game_state.h"
#include "core/numeric.h"

namespace {

// Takes as many chips of one denomination out of the amount as it holds.
Integer Saca(int& cantidad, int d) {
    const int fichas = cantidad / ValorDe(d);
    cantidad -= fichas * ValorDe(d);
    return static_cast<Integer>(fichas);
}

} // namespace

Integer ValorDe(int d) {
    if (d < 1 || d > kDenominaciones)
        LanzaIndiceFuera(1, d, kDenominaciones);
    return kValorFicha[static_cast<std::size_t>(d)];
}

Integer RestoDe(int asiento) {
    int resto = 0;
    for (int d = 1; d <= kDenominaciones; ++d)
        resto += apuestas.Fichas(asiento, d) * ValorDe(d);
    return EnteroDe(resto);
}

Integer ApuestaTotal(int asiento, int serie) {
    int total = 0;
    for (const Integer fase : kFasesConApuesta)
        total += apuestas.Apuesta(asiento, serie, fase);
    return EnteroDe(total);
}

void Desglosa(Integer cantidad) {
    int queda = cantidad;
    for (int d = kDenominaciones; d >= 1; --d)
        apuestas.DesgloseFichas(d) = Saca(queda, d);
}

Tabla<Integer, 6> FichasDeResto(Integer cantidad) {
    Tabla<Integer, 6> fichas;
    int queda = cantidad;
    for (int d = kDenominaciones; d >= 1; --d) {
        fichas(d) = Saca(queda, d);
        if (fichas(d) > 0 && queda < ValorDeMenores(d)) {
            --fichas(d);
            queda += ValorDe(d);
        }
    }
    return fichas;
}

void AsignarResto(int asiento, Integer cantidad) {
    const Tabla<Integer, 6> fichas = FichasDeResto(cantidad);
    for (int d = 1; d <= kDenominaciones; ++d)
        apuestas.Fichas(asiento, d) = fichas(d);
}

void SumaAlResto(int asiento, int puntos) {
    AsignarResto(asiento, EnteroDe(RestoDe(asiento) + puntos));
}
