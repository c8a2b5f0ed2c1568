#include "core/literal.h"

#include <fmt/format.h>

#include <cmath>
#include <limits>

#include "core/numeric.h"
#include "core/text.h"

namespace {

double NumeroDe(const Literal& literal) {
    if (const bool* logico = std::get_if<bool>(&literal))
        return *logico ? -1 : 0;
    if (const double* numero = std::get_if<double>(&literal))
        return *numero;
    throw ErrorConsola("se espera un número");
}

template <class T>
T EnteroExacto(const Literal& literal) {
    const double numero = NumeroDe(literal);
    if (numero != std::floor(numero))
        throw ErrorConsola(fmt::format("{} no es un número entero", numero));
    if (numero < std::numeric_limits<T>::min() || numero > std::numeric_limits<T>::max())
        throw ErrorConsola(fmt::format("{} no cabe en {} bits", numero, 8 * sizeof(T)));
    return static_cast<T>(numero);
}

} // namespace

template <>
Integer Convierte<Integer>(const Literal& literal) {
    return EnteroExacto<Integer>(literal);
}

template <>
Long Convierte<Long>(const Literal& literal) {
    return EnteroExacto<Long>(literal);
}

template <>
double Convierte<double>(const Literal& literal) {
    return NumeroDe(literal);
}

template <>
float Convierte<float>(const Literal& literal) {
    const double numero = NumeroDe(literal);
    if (std::abs(numero) > std::numeric_limits<float>::max())
        throw ErrorConsola(fmt::format("{} es demasiado grande", numero));
    return static_cast<float>(numero);
}

template <>
Currency Convierte<Currency>(const Literal& literal) {
    return Currency::DeReal(NumeroDe(literal));
}

template <>
bool Convierte<bool>(const Literal& literal) {
    const double numero = NumeroDe(literal);
    if (numero != 0 && numero != -1)
        throw ErrorConsola("se espera true o false");
    return numero != 0;
}

template <>
std::string Convierte<std::string>(const Literal& literal) {
    if (const std::string* texto = std::get_if<std::string>(&literal))
        return *texto;
    throw ErrorConsola("se espera un texto entre comillas");
}

std::string Escrito(long long valor) {
    return Numero(valor);
}

std::string Escrito(bool valor) {
    return valor ? "-1" : "0";
}

std::string Escrito(float valor) {
    return fmt::format("{}", valor);
}

std::string Escrito(double valor) {
    return fmt::format("{}", valor);
}

std::string Escrito(Currency valor) {
    return Numero(valor);
}

std::string Escrito(std::string_view valor) {
    std::string texto = "\"";
    for (char c : valor) {
        if (c == '\r')
            texto += "\\r";
        else if (c == '\n')
            texto += "\\n";
        else if (c == '"')
            texto += "\"\"";
        else
            texto += c;
    }
    return texto + '"';
}
