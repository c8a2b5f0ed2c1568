#include "platform/headless/control_board.h"

#include <array>

namespace {

// From the top down. Pic_Mover is not among them: the pointer passes through the card that it drags.
constexpr std::array kDeArribaAbajo{
    Control::Pic_SelOpciones,  Control::Bot_CerrarSuge,   Control::Pic_MasAyuda,
    Control::Pic_Sugerencia,   Control::Pic_APBotAnular,  Control::Pic_APBotApostar,
    Control::Pic_APBotIgualar, Control::Pic_APBotPasar,   Control::Pic_Apostadora,
    Control::Pic_BotDobSeg,    Control::Pic_BotLateral,   Control::Pic_BotSuperior,
    Control::Pic_Tantos,       Control::Pic_BotContinuar, Control::Pic_Boton,
    Control::Pic_Botonera,
};

bool Contiene(const Rectangulo& r, int x, int y) {
    return x >= r.x && x < r.x + r.ancho && y >= r.y && y < r.y + r.alto;
}

} // namespace

TableroControles::TableroControles() {
    Muestra({Control::Mesa, 0}, true);
    Muestra({Control::Pic_Botonera, 0}, true);
}

const TableroControles::Estado& TableroControles::Mando(ControlMesa cual) const {
    static const Estado kNuevo;
    const auto sitio = mandos_.find(cual);
    return sitio == mandos_.end() ? kNuevo : sitio->second;
}

Rectangulo TableroControles::LugarDe(ControlMesa cual) const {
    Rectangulo lugar = Mando(cual).donde;
    const Control padre = PadreDe(cual.control);
    if (padre == Control::Mesa)
        return lugar;
    const Rectangulo base = LugarDe({padre, 0});
    lugar.x += base.x;
    lugar.y += base.y;
    return lugar;
}

bool TableroControles::EstaVisible(ControlMesa cual) const {
    const Control padre = PadreDe(cual.control);
    return Mando(cual).visible && (padre == Control::Mesa || EstaVisible({padre, 0}));
}

void TableroControles::CopiaEn(Plataforma& otra) const {
    for (const auto& [cual, mando] : mandos_) {
        otra.Coloca(cual.control, cual.indice, mando.donde);
        otra.Muestra(cual.control, cual.indice, mando.visible);
        otra.PonPuntero(cual.control, cual.indice, mando.puntero);
    }
}

ControlMesa TableroControles::BajoPunto(int x, int y) const {
    for (Control control : kDeArribaAbajo) {
        const auto desde = mandos_.lower_bound({control, 0});
        for (auto m = desde; m != mandos_.end() && m->first.control == control; ++m) {
            if (EstaVisible(m->first) && Contiene(LugarDe(m->first), x, y))
                return m->first;
        }
    }
    return {Control::Mesa, 0};
}
