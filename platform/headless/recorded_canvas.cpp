#include "platform/headless/recorded_canvas.h"

#include <fmt/format.h>

namespace {

std::string Medidas(const Rectangulo& r) {
    return fmt::format("{}, {}, {}, {}", r.x, r.y, r.ancho, r.alto);
}

std::string Naipe(const ImagenCarta& c) {
    return fmt::format("palo {} valor {} cara {} orientación {}{}", c.palo, c.valor, c.cara,
                       c.orientacion, c.tapada ? " tapada" : "");
}

constexpr const char* kAlineaciones[] = {"izquierda", "centro", "derecha"};

} // namespace

void LienzoRegistrado::Anota(std::string llamada) {
    llamadas_.push_back(std::move(llamada));
}

void LienzoRegistrado::Fieltro(const Rectangulo& donde) {
    if (graba_)
        Anota(fmt::format("Fieltro({})", Medidas(donde)));
}

void LienzoRegistrado::Caja(const Rectangulo& donde, Color color) {
    if (graba_)
        Anota(fmt::format("Caja({}; {:06X})", Medidas(donde), color));
}

void LienzoRegistrado::Borde(const Rectangulo& donde, Color color, int grueso) {
    if (graba_)
        Anota(fmt::format("Borde({}; {:06X}, {})", Medidas(donde), color, grueso));
}

void LienzoRegistrado::Linea(int x1, int y1, int x2, int y2, Color color, int grueso) {
    if (graba_)
        Anota(fmt::format("Linea({}, {}, {}, {}; {:06X}, {})", x1, y1, x2, y2, color, grueso));
}

void LienzoRegistrado::Texto(int x, int y, std::string_view texto, const Fuente& fuente,
                             Color color, Alineacion alineacion) {
    if (graba_) {
        Anota(fmt::format("Texto({}, {}, \"{}\"; {}{}{}{}, {:06X}, {})", x, y, texto, fuente.alto,
                          fuente.negrita ? " negrita" : "", fuente.fija ? " fija" : "",
                          fuente.tope > 0 ? fmt::format(" hasta {}", fuente.tope) : "", color,
                          kAlineaciones[static_cast<int>(alineacion)]));
    }
}

void LienzoRegistrado::Carta(int x, int y, const ImagenCarta& carta) {
    if (graba_)
        Anota(fmt::format("Carta({}, {}; {})", x, y, Naipe(carta)));
}

void LienzoRegistrado::MiniCarta(int x, int y, int ancho, int alto, const ImagenCarta& carta) {
    if (graba_)
        Anota(fmt::format("MiniCarta({}, {}, {}, {}; {})", x, y, ancho, alto, Naipe(carta)));
}

void LienzoRegistrado::Lamina(int x, int y, const lamina::Recorte&) {
    if (graba_)
        Anota(fmt::format("Lamina({}, {})", x, y));
}

void LienzoRegistrado::Velo(const Rectangulo& donde) {
    if (graba_)
        Anota(fmt::format("Velo({})", Medidas(donde)));
}
