#include "table/trace.h"

#include <fmt/format.h>

namespace {

OyenteTraza el_oyente;

} // namespace

void EscuchaTraza(OyenteTraza oyente) {
    el_oyente = std::move(oyente);
    traza_detalle::activa = static_cast<bool>(el_oyente);
}

namespace traza_detalle {

bool activa = false;

void Emite(const std::string& linea) {
    el_oyente(linea);
}

void Pon(std::string& linea, std::string_view texto) {
    linea += '"';
    for (char c : texto) {
        if (c == '\r')
            linea += "\\r";
        else if (c == '\n')
            linea += "\\n";
        else
            linea += c;
    }
    linea += '"';
}

void Pon(std::string& linea, long long numero) {
    linea += fmt::format("{}", numero);
}

} // namespace traza_detalle
