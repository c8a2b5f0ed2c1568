#include "table/score_plate.h"

#include <algorithm>

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
constexpr int kAltoCabeza = 18, kAltoTriunfo = 25, kAltoLinea = 15, kAlPie = 3;
constexpr Fuente kLetraCabeza{.alto = 12, .negrita = true, .tope = kAncho - 2 * kMargen};
constexpr Fuente kLetraTriunfo{.alto = 13, .negrita = true, .tope = kAncho - 2 * kMargen - 28};
constexpr Fuente kLetraQuien{.alto = 12, .tope = 80};
constexpr Fuente kLetraPrimero{.alto = 12, .tope = kAncho - 2 * kMargen};
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

// A seat may be called "Banca": that says it already.
std::string NombreConBanca(Integer asiento) {
    const std::string& nombre = estado.NombreJugador(asiento);
    const bool falta = estado.JuegoConBanca && asiento == estado.JugadorBanca && nombre != "Banca";
    return falta ? nombre + " (banca)" : nombre;
}

std::vector<Tanteo::Renglon> RenglonesDeParejas() {
    std::vector<Tanteo::Renglon> renglones;
    for (Integer pareja = 1; pareja <= 2; ++pareja) {
        renglones.push_back({.quien = estado.NombreJugador(pareja),
                             .con_quien = estado.NombreJugador(pareja + 2),
                             .cuanto = Ganadas(pareja)});
    }
    return renglones;
}

std::vector<Tanteo::Renglon> RenglonesDeAsientos() {
    std::vector<Tanteo::Renglon> renglones;
    for (Integer asiento = 1; asiento <= 4; ++asiento) {
        if (estado.EstadoJugador(asiento) != kActivado)
            continue;
        renglones.push_back(
            {.quien = NombreConBanca(asiento),
             .con_quien = "",
             .cuanto = HayDinero() ? Formato(RestoDe(asiento), "#,##0") : Ganadas(asiento)});
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

int AltoDelTanteo(int lineas, bool con_triunfo) {
    return kAltoCabeza + (con_triunfo ? kAltoTriunfo : 0) + lineas * kAltoLinea + kAlPie;
}

// Each of a pair has a line of its own: both names on one would be squeezed beyond reading.
int LineasDe(const Tanteo::Renglon& renglon) {
    return renglon.con_quien.empty() ? 1 : 2;
}

int LineasDe(const Tanteo& tanteo) {
    int lineas = 0;
    for (const Tanteo::Renglon& renglon : tanteo.renglones)
        lineas += LineasDe(renglon);
    return lineas;
}

void PintaCabeza(Lienzo& placa, const Tanteo& tanteo) {
    placa.Texto(kAncho / 2, 2, tanteo.mano, kLetraCabeza, color::kAmarillo, Alineacion::Centro);
    if (tanteo.triunfo.palo == kSinCarta)
        return;
    placa.Lamina(kMargen, kAltoCabeza, lamina::Palo(tanteo.triunfo.palo));
    placa.Texto(kMargen + 28, kAltoCabeza + 3, std::string("Triunfo: ") + tanteo.triunfo.nombre,
                kLetraTriunfo, color::kBlanco, Alineacion::Izquierda);
}

// What it has stands on the last of its lines.
void PintaRenglon(Lienzo& placa, int y, const Tanteo::Renglon& renglon) {
    const auto escribe = [&](const std::string& quien, const Fuente& letra) {
        placa.Texto(kMargen, y, quien, letra, color::kMarfil, Alineacion::Izquierda);
    };
    const bool pareja = !renglon.con_quien.empty();
    if (pareja) {
        escribe(renglon.quien + " y", kLetraPrimero);
        y += kAltoLinea;
    }
    escribe(pareja ? renglon.con_quien : renglon.quien, kLetraQuien);
    placa.Texto(kAncho - kMargen, y, renglon.cuanto, kLetraCuanto, color::kMarfil,
                Alineacion::Derecha);
}

void PintaPlaca(const Tanteo& tanteo, const Rectangulo& donde) {
    Lienzo& placa = plataforma().LienzoDe(Control::Pic_Tanteo, 0);
    const Rectangulo todo{0, 0, donde.ancho, donde.alto};
    placa.Caja(todo, color::kPlaca);
    placa.Borde(todo, color::kBordePanelClaro, 1);
    PintaCabeza(placa, tanteo);
    int y = donde.alto - kAlPie - LineasDe(tanteo) * kAltoLinea;
    for (const Tanteo::Renglon& renglon : tanteo.renglones) {
        PintaRenglon(placa, y, renglon);
        y += LineasDe(renglon) * kAltoLinea;
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
        texto += ". " + renglon.quien +
                 (renglon.con_quien.empty() ? "" : " y " + renglon.con_quien) + ": " +
                 renglon.cuanto;
    return texto;
}

Rectangulo LugarDelTanteo(int lineas, bool con_triunfo) {
    const int alto = AltoDelTanteo(lineas, con_triunfo);
    const Rectangulo en_la_esquina{kAlBorde, kAlBorde, kAncho, alto};
    const Rectangulo sobre_los_consejos{kAlBorde, LugarDeLaSugerencia().y - kAlBorde - alto, kAncho,
                                        alto};
    const bool libre = std::ranges::none_of(
        LoOcupado(), [&](const Rectangulo& r) { return SeCortan(en_la_esquina, r); });
    return libre ? en_la_esquina : sobre_los_consejos;
}

void PintaTanteo() {
    Plataforma& p = plataforma();
    if (!SeVe()) {
        Oculta(Control::Pic_Tanteo);
        return;
    }
    const Tanteo tanteo = ElTanteo();
    // Room is kept for the trump before it is turned, so that the plate does not grow in the middle of the deal.
    const Rectangulo donde =
        LugarDelTanteo(LineasDe(tanteo), JuegoEnMesa().pintura.triunfo != nullptr);
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
