#include "platform/platform.h"

#include <array>

namespace {

Plataforma* en_uso = nullptr;

constexpr std::array kNombres{
    "mesa",
    "Pic_Botonera",
    "Pic_Boton",
    "Pic_BotContinuar",
    "Pic_SelOpciones",
    "Pic_Sugerencia",
    "Pic_MasAyuda",
    "Bot_CerrarSuge",
    "Pic_Tantos",
    "Pic_Mover",
    "Pic_BotSuperior",
    "Pic_BotLateral",
    "Pic_BotDobSeg",
    "Pic_Apostadora",
    "Pic_APBotPasar",
    "Pic_APBotIgualar",
    "Pic_APBotApostar",
    "Pic_APBotAnular",
    "Pic_APApoJugAct",
    "Pic_APApoJugAcu",
    "Pic_NumerosCristal",
    "Pic_Tanteo",
    "Pic_Aviso",
};
static_assert(kNombres.size() == static_cast<std::size_t>(Control::Ultimo) + 1);

} // namespace

Plataforma& plataforma() {
    if (en_uso == nullptr)
        throw std::logic_error("no hay plataforma en uso");
    return *en_uso;
}

void UsaPlataforma(Plataforma& cual) {
    en_uso = &cual;
}

const char* NombreDe(Control control) {
    return kNombres[static_cast<std::size_t>(control)];
}

std::optional<Control> ControlDe(std::string_view nombre) {
    for (std::size_t i = 0; i < kNombres.size(); ++i) {
        if (nombre == kNombres[i])
            return static_cast<Control>(i);
    }
    return std::nullopt;
}

const char* NombreDe(Puntero puntero) {
    static constexpr std::array kPunteros{"Flecha",      "ManoIndice", "ManoVerde",
                                          "ManoRoja",    "Ordenar",    "Cambiar",
                                          "ManoCerrada", "Voltear",    "Abrirse"};
    if (puntero == Puntero::RelojArena)
        return "RelojArena";
    if (puntero == Puntero::Prohibido)
        return "Prohibido";
    const auto codigo = static_cast<std::size_t>(puntero);
    return kPunteros[codigo < kPunteros.size() ? codigo : 0];
}

Control PadreDe(Control control) {
    switch (control) {
    case Control::Pic_Boton:
    case Control::Pic_BotContinuar:
        return Control::Pic_Botonera;
    case Control::Pic_MasAyuda:
    case Control::Bot_CerrarSuge:
        return Control::Pic_Sugerencia;
    case Control::Pic_APBotPasar:
    case Control::Pic_APBotIgualar:
    case Control::Pic_APBotApostar:
    case Control::Pic_APBotAnular:
    case Control::Pic_APApoJugAct:
    case Control::Pic_APApoJugAcu:
        return Control::Pic_Apostadora;
    default:
        return Control::Mesa;
    }
}
