#include "table/procedure_call.h"

namespace llamada_detalle {

template <>
Control Lee<Control>(const Literal& literal) {
    const std::string nombre = Convierte<std::string>(literal);
    const std::optional<Control> control = ControlDe(nombre);
    if (!control)
        throw ErrorConsola(fmt::format("el control {} no existe", nombre));
    return *control;
}

Argumentos Completa(Argumentos argumentos, const Argumentos& por_defecto, std::size_t cuantos) {
    const std::size_t faltan = cuantos - std::min(argumentos.size(), cuantos);
    if (argumentos.size() > cuantos || faltan > por_defecto.size())
        throw ErrorConsola(fmt::format("lleva {} argumentos", cuantos));
    argumentos.insert(argumentos.end(), por_defecto.end() - static_cast<std::ptrdiff_t>(faltan),
                      por_defecto.end());
    return argumentos;
}

} // namespace llamada_detalle
