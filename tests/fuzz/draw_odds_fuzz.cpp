// The file of the odds of the draw, of any bytes; the first byte says for which deck.

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "games/poker/draw_odds.h"

namespace {

void Exige(bool cumple, const char* que) {
    if (!cumple) {
        std::fprintf(stderr, "no se cumple: %s\n", que);
        std::abort();
    }
}

bool EsEntero(const RegistroDescarte& registro) {
    if (registro.JugadaMantenida < 1 || registro.JugadaMantenida > kCategorias ||
        registro.CalidadMantenida < 0 || registro.CalidadMantenida > 9 ||
        registro.CasosDescarte < 1)
        return false;
    for (int n = 1; n <= kCategorias; ++n) {
        if (registro.CasosResultado(n) < 0 || !(registro.PorcResultado(n) >= 0))
            return false;
    }
    return true;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t n) {
    constexpr int kCartas[]{52, 48, 44, 40, 36, 32};
    if (n == 0)
        return 0;
    const auto cartas = static_cast<Integer>(kCartas[datos[0] % 6]);
    const auto comodines = static_cast<Integer>(datos[0] / 6 % 3);
    const std::string_view contenido(reinterpret_cast<const char*>(datos + 1), n - 1);
    const TablaDeDescartes tabla = LeeProbabilidades(contenido, cartas, comodines);

    Exige(tabla(0) == RegistroDescarte{}, "el lugar 0 queda libre");
    std::size_t leidos = 0;
    for (int i = 1; i <= kRegistrosDescarte; ++i) {
        if (tabla(i) == RegistroDescarte{})
            continue;
        Exige(EsEntero(tabla(i)), "un registro está entero");
        ++leidos;
        Exige(leidos == static_cast<std::size_t>(i), "los registros van seguidos");
    }
    Exige(leidos * kAnchoRegistro <= contenido.size() + 2, "no hay más registros que líneas");
    return 0;
}
