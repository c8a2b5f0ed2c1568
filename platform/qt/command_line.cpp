#include "platform/qt/command_line.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace {

struct Opcion {
    std::string_view corta, larga;
    Orden orden;
    const char* dice;
};

// In the order in which the first of several wins.
constexpr std::array kOpciones{
    Opcion{"-h", "--help", Orden::Ayuda, "Muestra esta ayuda y termina."},
    Opcion{"-v", "--version", Orden::Version, "Muestra la versión y termina."},
    Opcion{"", "--demo", Orden::Demo,
           "Juega sin ventana una partida de muestra de cada juego,\n"
           "                 cuenta las manos y deja la mesa pintada en partida.png."},
};

// The toolkit's own, with one dash or two; with a value behind them, or alone.
constexpr std::array<std::string_view, 14> kDeQtConValor{"platform",        "platformpluginpath",
                                                         "platformtheme",   "plugin",
                                                         "style",           "stylesheet",
                                                         "session",         "display",
                                                         "qwindowgeometry", "geometry",
                                                         "qwindowtitle",    "title",
                                                         "qwindowicon",     "icon"};
constexpr std::array<std::string_view, 2> kDeQtSueltas{"reverse", "widgetcount"};

std::string_view SinGuiones(std::string_view palabra) {
    const std::size_t guiones = palabra.starts_with("--") ? 2 : 1;
    return palabra.substr(guiones, palabra.find('=') - guiones);
}

bool Esta(const auto& lista, std::string_view palabra) {
    return palabra.starts_with('-') && std::ranges::find(lista, SinGuiones(palabra)) != lista.end();
}

const Opcion* OpcionDe(std::string_view palabra) {
    const auto opcion = std::ranges::find_if(kOpciones, [palabra](const Opcion& una) {
        return !palabra.empty() && (palabra == una.corta || palabra == una.larga);
    });
    return opcion == kOpciones.end() ? nullptr : &*opcion;
}

LineaDeOrdenes Error(std::string_view que, std::string_view palabra) {
    return {Orden::Error, std::string(que) + " «" + std::string(palabra) +
                              "»; con --help se ve lo que se puede pedir."};
}

} // namespace

LineaDeOrdenes LeeOrdenes(std::span<char* const> palabras) {
    const Opcion* pedida = nullptr;
    for (std::size_t i = 0; i < palabras.size(); ++i) {
        const std::string_view palabra = palabras[i];
        if (const Opcion* esta = OpcionDe(palabra); esta != nullptr) {
            pedida = pedida == nullptr ? esta : std::min(pedida, esta);
        } else if (Esta(kDeQtConValor, palabra)) {
            if (palabra.find('=') == std::string_view::npos && ++i == palabras.size())
                return Error("falta el valor de la opción", palabra);
        } else if (!Esta(kDeQtSueltas, palabra)) {
            return Error(palabra.starts_with('-') ? "no se conoce la opción" : "sobra la palabra",
                         palabra);
        }
    }
    return {pedida == nullptr ? Orden::Juega : pedida->orden, ""};
}

std::string TextoDeUso() {
    std::string texto = "Uso: zovin [opciones]\n\n"
                        "Seis juegos de cartas en una mesa: Póker, Black Jack, Tute, Brisca,\n"
                        "Siete y media y Cinquillo.\n\n"
                        "Opciones:\n";
    for (const Opcion& opcion : kOpciones) {
        std::string nombres = opcion.corta.empty() ? "" : std::string(opcion.corta) + ", ";
        nombres += opcion.larga;
        nombres.resize(15, ' ');
        texto += "  " + nombres + opcion.dice + "\n";
    }
    return texto + "\nTambién se entienden las opciones de Qt, como -platform y -style.\n"
                   "Termina con 0 si todo ha ido bien, con 1 si no se puede jugar y con 2 si no\n"
                   "se entiende lo que se pide.\n";
}
