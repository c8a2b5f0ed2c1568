#include "tools/sonda/line_reader.h"

#include <fmt/format.h>

#include <charconv>
#include <cmath>
#include <limits>
#include <utility>

namespace {

bool EsBlanco(char c) {
    return c == ' ' || c == '\t' || c == '\r';
}

bool EsDeNombre(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
}

} // namespace

void Lector::SaltaBlancos() {
    while (!resto_.empty() && EsBlanco(resto_.front()))
        resto_.remove_prefix(1);
}

bool Lector::Fin() {
    SaltaBlancos();
    return resto_.empty();
}

void Lector::ExigeFin() {
    if (!Fin())
        throw ErrorConsola(fmt::format("sobra «{}»", resto_));
}

bool Lector::Acepta(char c) {
    SaltaBlancos();
    if (resto_.empty() || resto_.front() != c)
        return false;
    resto_.remove_prefix(1);
    return true;
}

void Lector::Exige(char c) {
    if (!Acepta(c))
        throw ErrorConsola(fmt::format("falta «{}»", c));
}

std::string Lector::Palabra() {
    SaltaBlancos();
    std::size_t n = 0;
    while (n < resto_.size() && !EsBlanco(resto_[n]))
        ++n;
    std::string palabra(resto_.substr(0, n));
    resto_.remove_prefix(n);
    return palabra;
}

std::string Lector::Identificador() {
    SaltaBlancos();
    std::size_t n = 0;
    while (n < resto_.size() && EsDeNombre(resto_[n]))
        ++n;
    if (n == 0 || (resto_.front() >= '0' && resto_.front() <= '9'))
        throw ErrorConsola("falta un nombre");
    std::string nombre(resto_.substr(0, n));
    resto_.remove_prefix(n);
    return nombre;
}

double Lector::Numero() {
    SaltaBlancos();
    double numero = 0;
    const char* const fin = resto_.data() + resto_.size();
    const auto leido = std::from_chars(resto_.data(), fin, numero);
    const bool suelto = leido.ptr == fin || !EsDeNombre(*leido.ptr);
    if (leido.ec != std::errc() || !std::isfinite(numero) || !suelto)
        throw ErrorConsola("falta un número");
    resto_.remove_prefix(static_cast<std::size_t>(leido.ptr - resto_.data()));
    return numero;
}

int Lector::Entero() {
    return Convierte<Long>(Numero());
}

std::string Lector::Texto() {
    Exige('"');
    std::string texto;
    while (!resto_.empty()) {
        const bool comilla = resto_.front() == '"';
        if (comilla && !resto_.starts_with("\"\"")) {
            resto_.remove_prefix(1);
            return texto;
        }
        const bool salto = resto_.starts_with("\\r") || resto_.starts_with("\\n");
        texto += !salto ? resto_.front() : resto_[1] == 'r' ? '\r' : '\n';
        resto_.remove_prefix(comilla || salto ? 2 : 1);
    }
    throw ErrorConsola("faltan las comillas que cierran el texto");
}

Literal Lector::Valor() {
    SaltaBlancos();
    if (resto_.starts_with('"'))
        return Texto();
    for (const bool logico : {true, false}) {
        const std::string_view palabra = logico ? "true" : "false";
        const bool esta = resto_.starts_with(palabra);
        if (esta && (resto_.size() == palabra.size() || !EsDeNombre(resto_[palabra.size()]))) {
            resto_.remove_prefix(palabra.size());
            return logico;
        }
    }
    return Numero();
}

std::string Lector::Resto() {
    if (!resto_.empty() && EsBlanco(resto_.front()))
        resto_.remove_prefix(1);
    return std::string(std::exchange(resto_, {}));
}

Ruta Lector::RutaDeCampo() {
    Ruta ruta;
    do {
        Tramo tramo{Identificador(), {}};
        if (Acepta('(')) {
            do
                tramo.indices.push_back(Entero());
            while (Acepta(','));
            Exige(')');
        }
        ruta.push_back(std::move(tramo));
    } while (Acepta('.'));
    return ruta;
}

std::vector<Literal> Lector::Argumentos() {
    std::vector<Literal> argumentos;
    if (!Acepta('(') || Acepta(')'))
        return argumentos;
    do
        argumentos.push_back(Valor());
    while (Acepta(','));
    Exige(')');
    return argumentos;
}
