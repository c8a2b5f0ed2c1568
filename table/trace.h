#pragma once
// The record of calls: every table operation, Mensaje, Sonido, Pausa and MostrarSugerencia says its name and
// arguments here. Costs one test while nobody listens.

#include <concepts>
#include <functional>
#include <string>
#include <string_view>

using OyenteTraza = std::function<void(const std::string& linea)>;

// Who listens; an empty function ends it.
void EscuchaTraza(OyenteTraza oyente);

namespace traza_detalle {
bool Activa();
void Emite(const std::string& linea);
void Pon(std::string& linea, std::string_view texto);
void Pon(std::string& linea, long long numero);
inline void Pon(std::string& linea, const char* texto) {
    Pon(linea, std::string_view(texto));
}
inline void Pon(std::string& linea, std::integral auto numero) {
    Pon(linea, static_cast<long long>(numero));
}
} // namespace traza_detalle

// Traza("Pausa", 400) says `Pausa(400)`; texts come in double quotes with CR LF written \r\n.
template <class... A>
void Traza(std::string_view nombre, const A&... argumentos) {
    if (!traza_detalle::Activa())
        return;
    std::string linea(nombre);
    linea += '(';
    bool primero = true;
    [[maybe_unused]] auto uno = [&](const auto& valor) {
        if (!primero)
            linea += ", ";
        primero = false;
        traza_detalle::Pon(linea, valor);
    };
    (uno(argumentos), ...);
    traza_detalle::Emite(linea + ")");
}
