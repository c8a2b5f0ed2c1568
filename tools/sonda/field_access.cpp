#include "tools/sonda/field_access.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <array>
#include <span>
#include <unordered_map>
#include <vector>

#include "session/state_blocks.h"

namespace {

using Resto = std::span<const Tramo>;

template <class T>
struct Forma {
    static constexpr bool kTabla = false;
};
template <class T, int... Topes>
struct Forma<Tabla<T, Topes...>> {
    static constexpr bool kTabla = true;
};

// The place of an element in the row of all elements of a table.
template <class T>
std::size_t Celda(const std::vector<int>& indices) {
    if (indices.size() != T::kDimensiones)
        throw ErrorConsola(fmt::format("lleva {} índices", T::kDimensiones));
    std::size_t celda = 0;
    for (std::size_t d = 0; d < T::kDimensiones; ++d) {
        const int tope = T::kTopes[d];
        if (indices[d] < 0 || indices[d] > tope)
            LanzaIndiceFuera(d + 1, indices[d], tope);
        celda = celda * static_cast<std::size_t>(tope + 1) + static_cast<std::size_t>(indices[d]);
    }
    return celda;
}

template <class T>
std::array<int, T::kDimensiones> IndicesDe(std::size_t celda) {
    std::array<int, T::kDimensiones> indices{};
    for (std::size_t d = T::kDimensiones; d-- > 0;) {
        const auto cuantos = static_cast<std::size_t>(T::kTopes[d]) + 1;
        indices[d] = static_cast<int>(celda % cuantos);
        celda /= cuantos;
    }
    return indices;
}

template <class Indices>
std::string ConIndices(const std::string& nombre, const Indices& indices) {
    return fmt::format("{}({})", nombre, fmt::join(indices, ","));
}

template <class T>
bool BajaPorCampo(T& campo, Tramo const* tramo, Resto resto, const std::string& nombre,
                  const VisitaHoja& visita);

template <class T>
bool BajaPorRegistro(T& registro, Resto resto, const std::string& nombre,
                     const VisitaHoja& visita) {
    bool unica = false;
    bool hallado = resto.empty();
    RecorreCampos(registro, [&](const char* suyo, auto& campo) {
        const std::string completo = nombre + '.' + suyo;
        if (resto.empty()) {
            BajaPorCampo(campo, nullptr, {}, completo, visita);
        } else if (resto.front().nombre == suyo) {
            hallado = true;
            unica = BajaPorCampo(campo, &resto.front(), resto.subspan(1), completo, visita);
        }
    });
    if (!hallado)
        throw ErrorConsola(fmt::format("{} no tiene el campo {}", nombre, resto.front().nombre));
    return unica;
}

template <class T>
bool BajaPorElemento(T& elemento, Resto resto, const std::string& nombre,
                     const VisitaHoja& visita) {
    if constexpr (TieneCampos<T>) {
        return BajaPorRegistro(elemento, resto, nombre, visita);
    } else {
        if (!resto.empty())
            throw ErrorConsola(fmt::format("{} no tiene campos", nombre));
        visita(nombre, &elemento);
        return true;
    }
}

// tramo: the part of the path that names this field, none where a walk passes by: it skips what is empty.
template <class T>
bool BajaPorCampo(T& campo, Tramo const* tramo, Resto resto, const std::string& nombre,
                  const VisitaHoja& visita) {
    const bool con_indices = tramo != nullptr && !tramo->indices.empty();
    if constexpr (!Forma<T>::kTabla) {
        if (con_indices)
            throw ErrorConsola(fmt::format("{} no lleva índices", nombre));
        if (tramo == nullptr && campo == T{})
            return false;
        return BajaPorElemento(campo, resto, nombre, visita);
    } else {
        if (con_indices) {
            return BajaPorElemento(
                campo.begin()[static_cast<std::ptrdiff_t>(Celda<T>(tramo->indices))], resto,
                ConIndices(nombre, tramo->indices), visita);
        }
        if (!resto.empty())
            throw ErrorConsola(fmt::format("{} necesita sus índices", nombre));
        std::size_t celda = 0;
        for (auto& elemento : campo) {
            if (!(elemento == typename T::Valor{}))
                BajaPorElemento(elemento, {}, ConIndices(nombre, IndicesDe<T>(celda)), visita);
            ++celda;
        }
        return false;
    }
}

using Bajada = std::function<bool(const Ruta& ruta, const VisitaHoja& visita)>;

// The fields by name, and the second names that some go by.
std::unordered_map<std::string, Bajada> HazIndice() {
    std::unordered_map<std::string, Bajada> indice;
    RecorreEstado([&](const char* nombre, auto& campo) {
        indice[nombre] = [&campo](const Ruta& ruta, const VisitaHoja& visita) {
            return BajaPorCampo(campo, &ruta.front(), Resto(ruta).subspan(1), ruta.front().nombre,
                                visita);
        };
    });
    indice["FuerzaValor"] = indice["OrdenCarta"];
    return indice;
}

} // namespace

std::string Escrito(Hoja hoja) {
    return std::visit(
        [](const auto* valor) {
            using T = std::remove_cvref_t<decltype(*valor)>;
            if constexpr (std::is_same_v<T, Integer> || std::is_same_v<T, Long>)
                return Escrito(static_cast<long long>(*valor));
            else
                return Escrito(*valor);
        },
        hoja);
}

bool VisitaCampo(const Ruta& ruta, const VisitaHoja& visita) {
    static const auto kIndice = HazIndice();
    const auto sitio = kIndice.find(ruta.front().nombre);
    if (sitio == kIndice.end())
        throw ErrorConsola(fmt::format("el campo {} no existe", ruta.front().nombre));
    return sitio->second(ruta, visita);
}

void VisitaEstado(const VisitaHoja& visita) {
    RecorreEstado(
        [&](const char* nombre, auto& campo) { BajaPorCampo(campo, nullptr, {}, nombre, visita); });
}

void PonCampo(const Ruta& ruta, const Literal& valor) {
    const bool unica = VisitaCampo(ruta, [](const std::string&, Hoja) {});
    if (!unica)
        throw ErrorConsola(fmt::format("{} no es un solo elemento", ruta.front().nombre));
    VisitaCampo(ruta, [&](const std::string&, Hoja hoja) {
        std::visit(
            [&](auto* elemento) {
                *elemento = Convierte<std::remove_cvref_t<decltype(*elemento)>>(valor);
            },
            hoja);
    });
}
