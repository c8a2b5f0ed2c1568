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

// True while somebody listens.
inline bool HayTraza();

namespace traza_detalle {
extern bool activa;
// Hands a finished line to who listens.
void Emite(const std::string& linea);
// Adds an argument as it is told: a text in quotes, a number bare.
void Pon(std::string& linea, std::string_view texto);
void Pon(std::string& linea, long long numero);
inline void Pon(std::string& linea, const char* texto) {
    Pon(linea, std::string_view(texto));
}
inline void Pon(std::string& linea, std::integral auto numero) {
    Pon(linea, static_cast<long long>(numero));
}

template <class... A>
void Escribe(std::string_view nombre, const A&... argumentos) {
    std::string linea(nombre);
    linea += '(';
    bool primero = true;
    [[maybe_unused]] auto uno = [&](const auto& valor) {
        if (!primero)
            linea += ", ";
        primero = false;
        Pon(linea, valor);
    };
    (uno(argumentos), ...);
    Emite(linea + ")");
}
} // namespace traza_detalle

inline bool HayTraza() {
    return traza_detalle::activa;
}

// While it lives nothing is recorded: what the program looks up again of itself is no call of the game's.
class SinTraza {
public:
    SinTraza() : antes_(traza_detalle::activa) { traza_detalle::activa = false; }
    ~SinTraza() { traza_detalle::activa = antes_; }
    SinTraza(const SinTraza&) = delete;
    SinTraza& operator=(const SinTraza&) = delete;

private:
    bool antes_;
};

// Traza("Pausa", 400) says `Pausa(400)`; texts come in double quotes with CR LF written \r\n.
template <class... A>
inline void Traza(std::string_view nombre, const A&... argumentos) {
    if (HayTraza())
        traza_detalle::Escribe(nombre, argumentos...);
}
