#pragma once
// Calls a procedure of the game with arguments read from a line: the types come from its signature.

#include <fmt/format.h>

#include <functional>
#include <optional>
#include <string>
#include <tuple>
#include <type_traits>
#include <vector>

#include "core/literal.h"
#include "platform/platform.h"

using Argumentos = std::vector<Literal>;

// Answers the value of a function, or of the argument that a procedure changes; nothing for any other.
using Llamada = std::function<std::optional<std::string>(const Argumentos&)>;

struct ProcedimientoConNombre {
    const char* nombre;
    Llamada llamada;
};
using ListaDeProcedimientos = std::vector<ProcedimientoConNombre>;

namespace llamada_detalle {

// A parameter as the console keeps it for the time of the call.
template <class A>
using Guardado = std::conditional_t<std::is_same_v<std::remove_cvref_t<A>, std::string_view>,
                                    std::string, std::remove_cvref_t<A>>;

template <class T>
T Lee(const Literal& literal) {
    return Convierte<T>(literal);
}
// A control is given by its name.
template <>
Control Lee<Control>(const Literal& literal);

template <class T>
std::string Valor(const T& valor) {
    if constexpr (std::is_integral_v<T> && !std::is_same_v<T, bool>)
        return Escrito(static_cast<long long>(valor));
    else
        return Escrito(valor);
}

template <class A>
constexpr bool kCambia =
    std::is_lvalue_reference_v<A> && !std::is_const_v<std::remove_reference_t<A>>;

// The arguments, with the last ones of por_defecto where the line leaves them out. ErrorConsola when they are
// not as many as wanted.
Argumentos Completa(Argumentos argumentos, const Argumentos& por_defecto, std::size_t cuantos);

template <class... A, std::size_t... I>
std::tuple<Guardado<A>...> LeeTodos(const Argumentos& argumentos, std::index_sequence<I...>) {
    return {Lee<Guardado<A>>(argumentos[I])...};
}

template <class... A>
auto Prepara(const Argumentos& dados, const Argumentos& por_defecto) {
    return LeeTodos<A...>(Completa(dados, por_defecto, sizeof...(A)),
                          std::index_sequence_for<A...>());
}

// Takes the value of an argument that the procedure may have changed.
template <class A, class G>
void AnotaSiCambia(const G& guardado, std::optional<std::string>& valor) {
    if constexpr (kCambia<A>)
        valor = Valor(guardado);
}

} // namespace llamada_detalle

// A function, or a procedure. por_defecto: values for the last arguments where the line leaves them out.
template <class R, class... A>
Llamada Llama(R (*f)(A...), const Argumentos& por_defecto = {}) {
    return [f, por_defecto](const Argumentos& dados) -> std::optional<std::string> {
        auto guardados = llamada_detalle::Prepara<A...>(dados, por_defecto);
        if constexpr (!std::is_void_v<R>) {
            return llamada_detalle::Valor(std::apply(f, guardados));
        } else {
            std::apply(f, guardados);
            std::optional<std::string> valor;
            std::apply(
                [&](const auto&... g) { (llamada_detalle::AnotaSiCambia<A>(g, valor), ...); },
                guardados);
            return valor;
        }
    };
}

// A procedure of the game whose result only says whether it came to its end.
template <class R, class... A>
Llamada LlamaPasos(R (*f)(A...)) {
    return [f](const Argumentos& dados) {
        auto guardados = llamada_detalle::Prepara<A...>(dados, {});
        (void)std::apply(f, guardados);
        return std::optional<std::string>();
    };
}
