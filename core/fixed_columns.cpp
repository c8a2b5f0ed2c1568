#include "core/fixed_columns.h"

#include <algorithm>
#include <charconv>
#include <optional>

#include "core/numeric.h"
#include "core/text.h"

namespace {

constexpr char kBlancoDuro = '\xA0'; // no-break space: what older files have for an empty name

bool EsControl(char byte) {
    const auto numero = static_cast<unsigned char>(byte);
    return numero < 0x20 || numero == 0x7F;
}

std::string SinBlancosAlFinal(std::string texto) {
    texto.erase(texto.find_last_not_of(' ') + 1);
    return texto;
}

std::string EscribeTexto(std::string_view texto) {
    std::string bytes = AWindows1252(texto);
    std::replace_if(bytes.begin(), bytes.end(), EsControl, ' ');
    return bytes;
}

std::string LeeTexto(std::string_view bytes) {
    std::string texto(bytes);
    std::replace_if(
        texto.begin(), texto.end(), [](char c) { return EsControl(c) || c == kBlancoDuro; }, ' ');
    return DeWindows1252(SinBlancosAlFinal(std::move(texto)));
}

std::string EscribeNumero(Integer numero, const Campo& campo) {
    const bool a_la_derecha = campo.mascara.starts_with('@');
    const std::string texto = a_la_derecha
                                  ? Formato(std::string_view(Numero(numero)), campo.mascara)
                                  : Formato(static_cast<double>(numero), campo.mascara);
    return campo.ancho == 1 && numero < 0 ? "0" : texto;
}

Integer LeeNumero(std::string_view bytes) {
    std::string texto = Recorta(bytes);
    if (texto.empty())
        return 0;
    if (texto.size() > 1 && texto[0] == '+' && texto[1] != '-')
        texto.erase(0, 1);
    double valor = 0;
    const char* const fin = texto.data() + texto.size();
    const auto leido = std::from_chars(texto.data(), fin, valor);
    // from_chars also knows words for what is no number at all.
    const bool con_palabras = texto.find_first_not_of("0123456789+-.eE") != std::string::npos;
    if (con_palabras || leido.ptr != fin || leido.ec == std::errc::invalid_argument)
        throw NoEsNumero("no es un número: " + texto);
    if (leido.ec == std::errc::result_out_of_range)
        throw Desbordamiento("número fuera de los límites: " + texto);
    return Redondea(valor);
}

// Whether there is a number that fits; one that does not leaves what was there.
bool TomaNumero(std::string_view bytes, Integer& numero) {
    try {
        numero = LeeNumero(bytes);
        return true;
    } catch (const Desbordamiento&) {
        return false;
    }
}

struct Escritor {
    const Campo& campo;
    std::string operator()(std::string_view fijo) const { return std::string(fijo); }
    std::string operator()(const std::string* texto) const { return EscribeTexto(*texto); }
    std::string operator()(const Integer* numero) const { return EscribeNumero(*numero, campo); }
    std::string operator()(const bool* bandera) const { return *bandera ? "-1" : "0"; }
};

// Takes the bytes of a field to where it stands. The answer is false for a number that does not fit.
struct Lector {
    std::string_view bytes;
    bool operator()(std::string_view) const { return true; }
    bool operator()(std::string* texto) const {
        *texto = LeeTexto(bytes);
        return true;
    }
    bool operator()(Integer* numero) const { return TomaNumero(bytes, *numero); }
    bool operator()(bool* bandera) const {
        Integer numero = 0;
        const bool cabe = TomaNumero(bytes, numero);
        if (cabe)
            *bandera = numero != 0;
        return cabe;
    }
};

std::size_t UltimaColumna(const Campos& campos) {
    int ultima = 0;
    for (const Campo& campo : campos)
        ultima = std::max(ultima, campo.columna + campo.ancho - 1);
    return static_cast<std::size_t>(ultima);
}

// A line that ends where its last field ends was written from its first column: the blanks are those of an empty name.
bool EmpiezaEnSuColumna(std::string_view linea, const Campos& campos) {
    return std::holds_alternative<std::string*>(campos.front().donde) &&
           linea.find_last_not_of(' ') + 1 == UltimaColumna(campos);
}

std::string_view SinBlancosDelante(std::string_view linea, const Campos& campos) {
    if (!EmpiezaEnSuColumna(linea, campos))
        linea.remove_prefix(std::min(linea.find_first_not_of(' '), linea.size()));
    return linea;
}

} // namespace

std::string EscribeCampos(const Campos& campos, int ancho) {
    std::string linea(static_cast<std::size_t>(ancho), ' ');
    for (const Campo& campo : campos) {
        const std::string texto = std::visit(Escritor{campo}, campo.donde);
        const auto largo = std::min(texto.size(), static_cast<std::size_t>(campo.ancho));
        linea.replace(static_cast<std::size_t>(campo.columna - 1), largo, texto, 0, largo);
    }
    return linea;
}

bool LeeCampos(std::string_view linea, const Campos& campos) {
    linea = SinBlancosDelante(linea, campos);
    linea = linea.substr(0, linea.find(','));
    bool caben = true;
    std::optional<NoEsNumero> fallo;
    for (const Campo& campo : campos) {
        const auto desde = std::min(static_cast<std::size_t>(campo.columna - 1), linea.size());
        const Lector lector{linea.substr(desde, static_cast<std::size_t>(campo.ancho))};
        try {
            caben = std::visit(lector, campo.donde) && caben;
        } catch (const NoEsNumero& este) {
            fallo = este;
        }
    }
    if (fallo)
        throw NoEsNumero(*fallo);
    return caben;
}
