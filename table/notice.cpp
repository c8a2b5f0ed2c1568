#include "table/notice.h"

#include <string>
#include <vector>

#include "core/game_state.h"
#include "platform/platform.h"
#include "table/controls.h"
#include "table/spread_layout.h"
#include "table/table_view.h"

namespace {

constexpr int kAltoRenglon = 14, kMargen = 2;
constexpr int kAlBorde = 4;
constexpr int kAnchoEsquina = 218, kAnchoReparto = 348;
constexpr int kLados = 12;

struct Aviso {
    std::vector<std::string> renglones;
    Rectangulo donde;
};

int AltoDe(std::size_t renglones) {
    return static_cast<int>(renglones) * kAltoRenglon + 2 * kMargen;
}

// In the upper right corner, where nothing of any game stands.
Aviso AvisoEnLaEsquina(const std::vector<std::string>& renglones) {
    return {renglones,
            {estado.AnchoMesa - kAnchoEsquina - kAlBorde, kAlBorde, kAnchoEsquina,
             AltoDe(renglones.size())}};
}

// Between the spread and the cards of seat 4.
Aviso AvisoDeReparto() {
    const std::vector<std::string> renglones{"Arrastre cada carta hasta el jugador que la recibe."};
    return {renglones,
            {estado.CentroX - kAnchoReparto / 2, estado.ReparteY + PasoFila() * estado.FilasReparto,
             kAnchoReparto, AltoDe(renglones.size())}};
}

Aviso ElAviso() {
    if (estado.RepartoEnCurso)
        return AvisoDeReparto();
    if (estado.ModoOrdenar)
        return AvisoEnLaEsquina(
            {"Ordenando a mano: arrastre las cartas.", "Clic en el tapete para terminar."});
    const bool acabada = !estado.PartidaEnCurso && estado.GanadorPartida != 0 && vista.nombres;
    if (acabada)
        return AvisoEnLaEsquina(
            {"Para empezar otra partida, pulse el", "primer botón o la barra espaciadora."});
    return {};
}

void Pinta(const Aviso& aviso) {
    constexpr Fuente kLetraAviso{.alto = 11, .negrita = true};
    Lienzo& placa = plataforma().LienzoDe(Control::Pic_Aviso, 0);
    const Rectangulo todo{0, 0, aviso.donde.ancho, aviso.donde.alto};
    Fuente letra = kLetraAviso;
    letra.tope = todo.ancho - kLados;
    placa.Caja(todo, color::kPlaca);
    placa.Borde(todo, color::kAmarillo, 1);
    int y = kMargen;
    for (const std::string& renglon : aviso.renglones) {
        placa.Texto(todo.ancho / 2, y, renglon, letra, color::kBlanco, Alineacion::Centro);
        y += kAltoRenglon;
    }
}

} // namespace

void RefrescaAviso() {
    const Aviso aviso = ElAviso();
    Plataforma& p = plataforma();
    if (aviso.renglones.empty()) {
        Oculta(Control::Pic_Aviso);
        return;
    }
    std::string texto;
    for (const std::string& renglon : aviso.renglones)
        texto += (texto.empty() ? "" : " ") + renglon;
    p.Coloca(Control::Pic_Aviso, 0, aviso.donde);
    p.Nombra(Control::Pic_Aviso, 0, texto);
    p.Muestra(Control::Pic_Aviso, 0, true);
    if (!p.HayPantalla())
        return;
    Pinta(aviso);
    p.Repinta();
}
