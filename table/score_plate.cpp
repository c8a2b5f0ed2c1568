#include "table/score_plate.h"

#include <algorithm>
#include <array>

#include "betting/chips.h"
#include "core/game_state.h"
#include "core/session_state.h"
#include "core/text.h"
#include "table/chips.h"
#include "table/controls.h"
#include "table/messages.h"
#include "table/pile.h"
#include "table/sheet_layout.h"
#include "table/table_view.h"

namespace {

constexpr int kAncho = 144;
constexpr int kAlBorde = 4;
constexpr int kMargen = 6;
constexpr int kAltoCabeza = 18, kAltoTriunfo = 25, kAltoRenglon = 15;
constexpr Fuente kLetraCabeza{.alto = 12, .negrita = true, .tope = kAncho - 2 * kMargen};
constexpr Fuente kLetraTriunfo{.alto = 13, .negrita = true, .tope = kAncho - 2 * kMargen - 28};
constexpr Fuente kLetraQuien{.alto = 12, .tope = 80};
constexpr Fuente kLetraCuanto{.alto = 12, .negrita = true, .tope = 48};

bool HayDinero() {
    return JuegoEnMesa().dinero.hay;
}

bool SeVe() {
    return vista.nombres && estado.JuegosJugados > 0;
}

// A hand is counted when the player goes on from it; whoever bears the winner's mark has won it already.
std::string Ganadas(Integer equipo) {
    const bool sin_contar = vista.ganador(equipo) && !sesion.mano_apuntada;
    return Numero(estado.JuegosGanados(equipo) + (sin_contar ? 1 : 0)) + " de " +
           Numero(estado.LimitePartida);
}

std::vector<Tanteo::Renglon> RenglonesDeParejas() {
    std::vector<Tanteo::Renglon> renglones;
    for (Integer pareja = 1; pareja <= 2; ++pareja) {
        renglones.push_back(
            {estado.NombreJugador(pareja) + " y " + estado.NombreJugador(pareja + 2),
             Ganadas(pareja)});
    }
    return renglones;
}

std::vector<Tanteo::Renglon> RenglonesDeAsientos() {
    std::vector<Tanteo::Renglon> renglones;
    for (Integer asiento = 1; asiento <= 4; ++asiento) {
        if (estado.EstadoJugador(asiento) != kActivado)
            continue;
        const bool banca = estado.JuegoConBanca && asiento == estado.JugadorBanca;
        renglones.push_back({estado.NombreJugador(asiento) + (banca ? " (banca)" : ""),
                             HayDinero() ? Formato(RestoDe(asiento), "#,##0") : Ganadas(asiento)});
    }
    return renglones;
}

bool SeCortan(const Rectangulo& a, const Rectangulo& b) {
    return a.x < b.x + b.ancho && b.x < a.x + a.ancho && a.y < b.y + b.alto && b.y < a.y + a.alto;
}

// What the plate must not lie on, whatever is shown of it just now.
std::vector<Rectangulo> LoOcupado() {
    std::vector<Rectangulo> ocupado{LugarDeLaSugerencia(), CajaDelMazo()};
    for (int asiento = 1; asiento <= 4; ++asiento)
        ocupado.push_back(ZonaConRealce(asiento));
    if (HayDinero()) {
        for (const Rectangulo& fichas : LugaresDeFichas())
            ocupado.push_back(fichas);
        ocupado.push_back({estado.AnchoMesa - lamina::kApostadora.ancho - kAlBorde,
                           estado.AltoMesa - lamina::kApostadora.alto - kAlBorde,
                           lamina::kApostadora.ancho + kAlBorde,
                           lamina::kApostadora.alto + kAlBorde});
    }
    return ocupado;
}

int AltoDelTanteo(int renglones, bool con_triunfo) {
    return kAltoCabeza + (con_triunfo ? kAltoTriunfo : 0) + renglones * kAltoRenglon + 3;
}

void PintaCabeza(Lienzo& placa, const Tanteo& tanteo) {
    placa.Texto(kAncho / 2, 2, tanteo.mano, kLetraCabeza, color::kAmarillo, Alineacion::Centro);
    if (tanteo.triunfo.palo == kSinCarta)
        return;
    placa.Lamina(kMargen, kAltoCabeza, lamina::Palo(tanteo.triunfo.palo));
    placa.Texto(kMargen + 28, kAltoCabeza + 3, std::string("Triunfo: ") + tanteo.triunfo.nombre,
                kLetraTriunfo, color::kBlanco, Alineacion::Izquierda);
}

void PintaPlaca(const Tanteo& tanteo, const Rectangulo& donde) {
    Lienzo& placa = plataforma().LienzoDe(Control::Pic_Tanteo, 0);
    const Rectangulo todo{0, 0, donde.ancho, donde.alto};
    placa.Caja(todo, color::kPlaca);
    placa.Borde(todo, color::kBordePanelClaro, 1);
    PintaCabeza(placa, tanteo);
    int y = donde.alto - 3 - static_cast<int>(tanteo.renglones.size()) * kAltoRenglon;
    for (const Tanteo::Renglon& renglon : tanteo.renglones) {
        placa.Texto(kMargen, y, renglon.quien, kLetraQuien, color::kMarfil, Alineacion::Izquierda);
        placa.Texto(kAncho - kMargen, y, renglon.cuanto, kLetraCuanto, color::kMarfil,
                    Alineacion::Derecha);
        y += kAltoRenglon;
    }
}

} // namespace

Tanteo ElTanteo() {
    const auto triunfo = JuegoEnMesa().pintura.triunfo;
    return {.mano = "Mano " + Numero(estado.JuegosJugados),
            .triunfo = triunfo == nullptr ? Triunfo{} : triunfo(),
            .renglones = PorParejas() ? RenglonesDeParejas() : RenglonesDeAsientos()};
}

std::string TextoDelTanteo() {
    const Tanteo tanteo = ElTanteo();
    std::string texto = tanteo.mano;
    if (tanteo.triunfo.palo != kSinCarta)
        texto += std::string(". Triunfo: ") + tanteo.triunfo.nombre;
    for (const Tanteo::Renglon& renglon : tanteo.renglones)
        texto += ". " + renglon.quien + ": " + renglon.cuanto;
    return texto;
}

Rectangulo LugarDelTanteo(int renglones, bool con_triunfo) {
    const int alto = AltoDelTanteo(renglones, con_triunfo);
    const int derecha = estado.AnchoMesa - kAncho - kAlBorde;
    const int sobre_los_consejos = LugarDeLaSugerencia().y - kAlBorde - alto;
    const std::array sitios{
        Rectangulo{kAlBorde, kAlBorde, kAncho, alto},
        Rectangulo{kAlBorde, sobre_los_consejos, kAncho, alto},
        Rectangulo{derecha, kAlBorde, kAncho, alto},
        Rectangulo{derecha, estado.AltoMesa - kAlBorde - alto, kAncho, alto},
    };
    const std::vector<Rectangulo> ocupado = LoOcupado();
    const auto libre = std::ranges::find_if(sitios, [&](const Rectangulo& sitio) {
        return std::ranges::none_of(ocupado,
                                    [&](const Rectangulo& r) { return SeCortan(sitio, r); });
    });
    return libre == sitios.end() ? sitios.front() : *libre;
}

void PintaTanteo() {
    Plataforma& p = plataforma();
    if (!SeVe()) {
        Oculta(Control::Pic_Tanteo);
        return;
    }
    const Tanteo tanteo = ElTanteo();
    // Room is kept for the trump before it is turned, so that the plate does not grow in the middle of the deal.
    const Rectangulo donde = LugarDelTanteo(static_cast<int>(tanteo.renglones.size()),
                                            JuegoEnMesa().pintura.triunfo != nullptr);
    vista.tanteo = TextoDelTanteo();
    p.Coloca(Control::Pic_Tanteo, 0, donde);
    p.Nombra(Control::Pic_Tanteo, 0, vista.tanteo);
    p.Muestra(Control::Pic_Tanteo, 0, true);
    if (!p.HayPantalla())
        return;
    PintaPlaca(tanteo, donde);
    p.Repinta();
}

void RefrescaTanteo() {
    if (plataforma().HayPantalla() && vista.tanteo != TextoDelTanteo())
        PintaTanteo();
}
