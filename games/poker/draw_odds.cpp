#include "games/poker/draw_odds.h"

#include <optional>
#include <string>

#include "core/game_state.h"
#include "core/numeric.h"
#include "games/poker/deck_counts.h"
#include "platform/platform.h"

namespace {

constexpr int kAnchoCuenta = 7;
constexpr int kPrimeraCategoria = 7;
constexpr int kColumnaCategoria = 4, kColumnaCalidad = 6, kColumnaCasos = 7,
              kColumnaResultados = 14;

bool EsDeLaBaraja(std::string_view linea, Integer cartas, Integer comodines) {
    return Cifras(linea, 1, 2) == cartas && Cifras(linea, 3, 1) == comodines;
}

std::optional<RegistroDescarte> LeeRegistro(std::string_view linea) {
    const Long categoria = Cifras(linea, kColumnaCategoria, 2);
    const Long calidad = Cifras(linea, kColumnaCalidad, 1);
    const Long casos = Cifras(linea, kColumnaCasos, kAnchoCuenta);
    if (categoria < 1 || categoria > kCategorias || calidad < 0 || casos < 1)
        return std::nullopt;
    RegistroDescarte registro;
    registro.JugadaMantenida = EnteroDe(categoria);
    registro.CalidadMantenida = EnteroDe(calidad);
    registro.CasosDescarte = casos;
    for (int n = kPrimeraCategoria; n <= kCategorias; ++n) {
        const Long resultado = Cifras(
            linea, kColumnaResultados + kAnchoCuenta * (n - kPrimeraCategoria), kAnchoCuenta);
        if (resultado < 0)
            return std::nullopt;
        registro.CasosResultado(n) = resultado;
        registro.PorcResultado(n) = static_cast<double>(resultado) / casos * 100;
    }
    return registro;
}

} // namespace

TablaDeDescartes LeeProbabilidades(std::string_view contenido, Integer cartas, Integer comodines) {
    TablaDeDescartes tabla;
    int leidos = 0;
    while (!contenido.empty() && leidos < kRegistrosDescarte) {
        const std::string_view linea = contenido.substr(0, kCifrasRegistro);
        if (EsDeLaBaraja(linea, cartas, comodines)) {
            if (const auto registro = LeeRegistro(linea))
                tabla(++leidos) = *registro;
        }
        contenido.remove_prefix(std::min<std::size_t>(kAnchoRegistro, contenido.size()));
    }
    return tabla;
}

void CargaProbabilidades() {
    const std::string ruta = estado.CarpetaTrabajo + "/" + kFicheroProbabilidades;
    const Lectura lectura = plataforma().LosArchivos().Lee(ruta);
    if (lectura.error != ErrorArchivo::Ninguno && plataforma().ExigeFicheros())
        throw FalloGrave("No se puede usar la tabla de probabilidades «" + ruta + "»: error " +
                         std::to_string(static_cast<int>(lectura.error)) + ".");
    poker.TablaDescartes =
        LeeProbabilidades(lectura.contenido, estado.CartasNormales, estado.ComodinesBaraja);
}

const RegistroDescarte* ProbabilidadDe(Integer categoria, Integer calidad) {
    for (int i = 1; i <= kRegistrosDescarte; ++i) {
        const RegistroDescarte& registro = poker.TablaDescartes(i);
        if (registro.CalidadMantenida == calidad && registro.JugadaMantenida == categoria)
            return &registro;
    }
    return nullptr;
}
