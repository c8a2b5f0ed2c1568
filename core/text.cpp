#include "core/text.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <charconv>
#include <cmath>

#include "core/numeric.h"

namespace {

// The Windows-1252 characters of the bytes 0x80..0x9F; 0 where the code page is free.
constexpr std::array<char32_t, 32> kAltos1252{
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

// Bytes of the character that starts here: 1 for anything that is no well-formed UTF-8.
std::size_t Ancho(std::string_view texto, std::size_t i) {
    const auto cabeza = static_cast<unsigned char>(texto[i]);
    const std::size_t n = cabeza >= 0xF0 && cabeza < 0xF5   ? 4
                          : cabeza >= 0xE0 && cabeza < 0xF0 ? 3
                          : cabeza >= 0xC2 && cabeza < 0xE0 ? 2
                                                            : 1;
    if (i + n > texto.size())
        return 1;
    for (std::size_t k = 1; k < n; ++k) {
        if ((static_cast<unsigned char>(texto[i + k]) & 0xC0) != 0x80)
            return 1;
    }
    return n;
}

char32_t Codigo(std::string_view caracter) {
    const auto b = [&](std::size_t k) {
        return static_cast<char32_t>(static_cast<unsigned char>(caracter[k]));
    };
    switch (caracter.size()) {
    case 2:
        return ((b(0) & 0x1F) << 6) | (b(1) & 0x3F);
    case 3:
        return ((b(0) & 0x0F) << 12) | ((b(1) & 0x3F) << 6) | (b(2) & 0x3F);
    case 4:
        return ((b(0) & 0x07) << 18) | ((b(1) & 0x3F) << 12) | ((b(2) & 0x3F) << 6) | (b(3) & 0x3F);
    default:
        return b(0);
    }
}

void Anade(std::string& destino, char32_t c) {
    const auto octeto = [&](char32_t valor) { destino.push_back(static_cast<char>(valor)); };
    if (c < 0x80) {
        octeto(c);
    } else if (c < 0x800) {
        octeto(0xC0 | (c >> 6));
        octeto(0x80 | (c & 0x3F));
    } else {
        octeto(0xE0 | (c >> 12));
        octeto(0x80 | ((c >> 6) & 0x3F));
        octeto(0x80 | (c & 0x3F));
    }
}

template <class F>
void PorCaracter(std::string_view texto, F&& visita) {
    for (std::size_t i = 0; i < texto.size();) {
        const std::size_t n = Ancho(texto, i);
        visita(texto.substr(i, n));
        i += n;
    }
}

// Byte where the character number n (from 0) starts, or the size of the text.
std::size_t Inicio(std::string_view texto, int n) {
    std::size_t i = 0;
    for (; n > 0 && i < texto.size(); --n)
        i += Ancho(texto, i);
    return i;
}

bool EsLatinaMayuscula(char32_t c) {
    return c >= 0xC0 && c <= 0xDE && c != 0xD7;
}
bool EsLatinaMinuscula(char32_t c) {
    return c >= 0xE0 && c <= 0xFE && c != 0xF7;
}

char32_t Mayuscula(char32_t c) {
    if ((c >= U'a' && c <= U'z') || EsLatinaMinuscula(c))
        return c - 0x20;
    if (c == 0x0153 || c == 0x0161 || c == 0x017E)
        return c - 1;
    return c == 0xFF ? 0x0178 : c;
}

char32_t Minuscula(char32_t c) {
    if ((c >= U'A' && c <= U'Z') || EsLatinaMayuscula(c))
        return c + 0x20;
    if (c == 0x0152 || c == 0x0160 || c == 0x017D)
        return c + 1;
    return c == 0x0178 ? 0xFF : c;
}

struct Mascara {
    int enteros = 0;    // digits that always show before the point
    int decimales = -1; // digits behind the point, -1 without a point
    int fijos = 0;      // decimals that always show
    bool miles = false;
    std::size_t columnas = 0; // '@'
};

Mascara Lee(std::string_view texto) {
    Mascara m;
    for (char c : texto) {
        if (c == '@')
            ++m.columnas;
        if (c == ',')
            m.miles = true;
        if (c == '.')
            m.decimales = 0;
        if (c != '0' && c != '#')
            continue;
        if (m.decimales >= 0) {
            ++m.decimales;
            if (c == '0')
                m.fijos = m.decimales;
        } else if (c == '0' || m.enteros > 0) {
            ++m.enteros;
        }
    }
    return m;
}

void PonMiles(std::string& digitos) {
    for (int i = static_cast<int>(digitos.size()) - 3; i > 0; i -= 3)
        digitos.insert(static_cast<std::size_t>(i), 1, ',');
}

std::string ConMascara(double valor, const Mascara& m) {
    const int decimales = std::max(m.decimales, 0);
    const double redondo = RedondeaA(std::abs(valor), decimales);
    std::string texto = fmt::format("{:.{}f}", redondo, decimales);
    const std::size_t punto = std::min(texto.find('.'), texto.size());
    std::string enteros = texto.substr(0, punto);
    std::string fraccion = punto < texto.size() ? texto.substr(punto + 1) : "";
    while (static_cast<int>(fraccion.size()) > m.fijos && fraccion.ends_with('0'))
        fraccion.pop_back();
    if (enteros == "0")
        enteros.clear();
    while (static_cast<int>(enteros.size()) < m.enteros)
        enteros.insert(0, 1, '0');
    if (m.miles)
        PonMiles(enteros);
    const std::string signo = valor < 0 && redondo != 0 ? "-" : "";
    return signo + enteros + (m.decimales >= 0 ? "." + fraccion : "");
}

} // namespace

int Longitud(std::string_view texto) {
    int n = 0;
    PorCaracter(texto, [&](std::string_view) { ++n; });
    return n;
}

std::string Medio(std::string_view texto, int desde, int n) {
    if (n <= 0)
        return "";
    const std::size_t principio = Inicio(texto, std::max(desde, 1) - 1);
    const std::string_view resto = texto.substr(principio);
    return std::string(resto.substr(0, Inicio(resto, n)));
}

void Superpone(std::string& linea, int columna, int ancho, std::string_view texto) {
    while (Longitud(linea) < columna - 1 + ancho)
        linea.push_back(' ');
    std::string campo = Medio(texto, 1, ancho);
    campo.append(static_cast<std::size_t>(ancho - Longitud(campo)), ' ');
    const std::size_t desde = Inicio(linea, columna - 1);
    const std::size_t largo = Inicio(std::string_view(linea).substr(desde), ancho);
    linea.replace(desde, largo, campo);
}

std::string RecortaIzquierda(std::string_view texto) {
    const std::size_t primero = texto.find_first_not_of(' ');
    return primero == std::string_view::npos ? "" : std::string(texto.substr(primero));
}

std::string Recorta(std::string_view texto) {
    std::string sin = RecortaIzquierda(texto);
    sin.erase(sin.find_last_not_of(' ') + 1);
    return sin;
}

std::string NombrePropio(std::string_view texto) {
    std::string salida;
    bool principio = true;
    PorCaracter(texto, [&](std::string_view caracter) {
        if (caracter.size() == 1 && static_cast<unsigned char>(caracter[0]) >= 0x80) {
            salida += caracter;
            principio = false;
            return;
        }
        const char32_t c = Codigo(caracter);
        if (c > 0xFFFF)
            salida += caracter;
        else
            Anade(salida, principio ? Mayuscula(c) : Minuscula(c));
        principio = c == U' ';
    });
    return salida;
}

std::string Formato(double valor, std::string_view mascara) {
    const Mascara m = Lee(mascara);
    if (m.columnas > 0)
        return Formato(std::string_view(fmt::format("{}", valor)), mascara);
    return ConMascara(valor, m);
}

std::string Formato(Currency valor, std::string_view mascara) {
    return Formato(valor.Real(), mascara);
}

std::string Formato(std::string_view texto, std::string_view mascara) {
    const bool izquierda = mascara.starts_with('!');
    const auto columnas = static_cast<int>(std::count(mascara.begin(), mascara.end(), '@'));
    const std::string blancos(static_cast<std::size_t>(std::max(columnas - Longitud(texto), 0)),
                              ' ');
    return izquierda ? std::string(texto) + blancos : blancos + std::string(texto);
}

std::string Numero(long long valor) {
    return fmt::format("{}", valor);
}

std::string Numero(Currency valor) {
    const std::int64_t entero = std::abs(valor.Diezmilesimas()) / Currency::kUnidad;
    std::string fraccion =
        fmt::format("{:04}", std::abs(valor.Diezmilesimas()) % Currency::kUnidad);
    fraccion.erase(fraccion.find_last_not_of('0') + 1);
    return (valor < Currency() ? "-" : "") + Numero(entero) +
           (fraccion.empty() ? "" : "." + fraccion);
}

double Val(std::string_view texto) {
    std::string sin;
    std::copy_if(texto.begin(), texto.end(), std::back_inserter(sin),
                 [](char c) { return c != ' '; });
    // from_chars knows only the minus.
    const bool con_mas = sin.starts_with('+') && !sin.starts_with("+-");
    double valor = 0;
    const auto fin =
        std::from_chars(sin.data() + (con_mas ? 1 : 0), sin.data() + sin.size(), valor);
    return fin.ec == std::errc() && std::isfinite(valor) ? valor : 0;
}

std::string AWindows1252(std::string_view texto) {
    std::string bytes;
    PorCaracter(texto, [&](std::string_view caracter) {
        const char32_t c = Codigo(caracter);
        const auto alto = std::find(kAltos1252.begin(), kAltos1252.end(), c);
        // A control character whose number the code page gives to a letter has no place there.
        const bool tapado =
            caracter.size() > 1 && c >= 0x80 && c < 0xA0 && kAltos1252[c - 0x80] != 0;
        if (alto != kAltos1252.end() && c != 0)
            bytes.push_back(static_cast<char>(0x80 + (alto - kAltos1252.begin())));
        else
            bytes.push_back(c <= 0xFF && !tapado ? static_cast<char>(c) : '?');
    });
    return bytes;
}

std::string DeWindows1252(std::string_view bytes) {
    std::string texto;
    for (char byte : bytes) {
        char32_t c = static_cast<unsigned char>(byte);
        if (c >= 0x80 && c < 0xA0 && kAltos1252[c - 0x80] != 0)
            c = kAltos1252[c - 0x80];
        Anade(texto, c);
    }
    return texto;
}
