#include "table/side_buttons.h"

#include "core/game_state.h"
#include "core/text.h"
#include "table/game_row.h"
#include "table/layout.h"
#include "table/sheet_layout.h"
#include "table/table_view.h"
#include "table/trace.h"

namespace {

constexpr int kSeparacion = 4; // between a button and its neighbours
constexpr int kBandaRotulo =
    22; // the caption's strip and the raised cards stand nearer to the zone
constexpr int kLargoZona = 250;
// Before the bank lies the pile: the buttons stand on both sides of it, 38 and more further apart.
constexpr int kMitadMazo = 56, kMitadMazoAlto = 84;
constexpr int kMitadApuesta = 49; // of the chips that lie in the middle before the seat
constexpr Fuente kLetraBoton{.alto = 12, .negrita = true, .tope = 84};
constexpr Fuente kLetraDosLineas{.alto = 9, .negrita = true, .tope = 84};

// A control of ancho by alto on the inner side of the seat's zone, a lo largo pixels along its edge.
Rectangulo JuntoAlAsiento(int asiento, int a_lo_largo, int adentro, int ancho, int alto) {
    const Rectangulo zona = ZonaDe(asiento);
    switch (asiento) {
    case 1:
        return {zona.x + zona.ancho + adentro, zona.y + a_lo_largo, ancho, alto};
    case 2:
        return {zona.x + a_lo_largo, zona.y + zona.alto + adentro, ancho, alto};
    case 3:
        return {zona.x - adentro - ancho, zona.y + a_lo_largo, ancho, alto};
    default:
        return {zona.x + a_lo_largo, zona.y - adentro - alto, ancho, alto};
    }
}

// Two words that stand apart are too long for one line.
void Rotula(Lienzo& boton, const Rectangulo& donde, const std::string& texto) {
    const auto escribe = [&](const std::string& linea, int y, const Fuente& letra) {
        boton.Texto(donde.ancho / 2, y, linea, letra, color::kBlanco, Alineacion::Centro);
    };
    const std::size_t hueco = texto.find("  ");
    if (hueco == std::string::npos) {
        escribe(texto, (donde.alto - kLetraBoton.alto) / 2 - 1, kLetraBoton);
        return;
    }
    const int medio = donde.alto / 2;
    escribe(texto.substr(0, hueco), medio - kLetraDosLineas.alto, kLetraDosLineas);
    escribe(Recorta(texto.substr(hueco)), medio, kLetraDosLineas);
}

void Pon(Control control, int indice, const Rectangulo& donde, const lamina::Recorte& recorte,
         const std::string& texto, std::string_view nombre) {
    Plataforma& p = plataforma();
    p.Coloca(control, indice, donde);
    p.Nombra(control, indice, nombre);
    p.PonPuntero(control, indice, Puntero::ManoIndice);
    p.Muestra(control, indice, true);
    if (!p.HayPantalla())
        return;
    Lienzo& lienzo = p.LienzoDe(control, indice);
    lienzo.Fieltro({0, 0, donde.ancho, donde.alto});
    lienzo.Lamina(0, 0, recorte);
    if (!texto.empty())
        Rotula(lienzo, donde, Recorta(texto));
    p.Repinta();
}

bool EsBanca(int asiento) {
    return estado.JuegoConBanca && asiento == estado.JugadorBanca;
}

bool TieneMazoDelante(int asiento) {
    return EsBanca(asiento) || (JuegoEnMesa().pintura.mazos_a_los_lados && AsientoLateral(asiento));
}

// Along the zone's edge to Pic_BotSuperior(index): the two stand on both sides of the zone's middle.
int PrincipioSuperior(int asiento, int index) {
    const bool vertical = AsientoLateral(asiento);
    const lamina::Recorte& recorte = lamina::kBotonSuperiorArriba;
    const int largo = vertical ? recorte.alto : recorte.ancho;
    const int mitad_mazo = vertical ? kMitadMazoAlto : kMitadMazo;
    const int del_medio = TieneMazoDelante(asiento) ? mitad_mazo + kSeparacion : kSeparacion / 2;
    return kLargoZona / 2 + (index == 1 ? -del_medio - largo : del_medio);
}

std::string PuntosALaVista(int asiento) {
    const FilaJuego& juego = JuegoEnMesa();
    if (juego.pintura.puntos == nullptr)
        return "";
    const double puntos = juego.pintura.puntos(asiento, SerieALaVista(asiento));
    if (puntos == 0 || (EsBanca(asiento) && asiento != estado.JugadorActual))
        return "";
    const bool medios = puntos != static_cast<int>(puntos);
    return Formato(puntos, medios ? "#0.0" : "#0");
}

} // namespace

void BotonLateral(int asiento, int state, int index) {
    Traza("BotonLateral", asiento, state, index);
    const bool vertical = AsientoLateral(asiento);
    const lamina::Recorte recorte = lamina::BotonLateral(index, vertical, state == 2);
    // One off each inner corner of the zone, clear of the caption, the score plates and the bank's other buttons.
    const int fuera = vertical ? recorte.alto / 2 + 2 : recorte.ancho + kSeparacion + kBandaRotulo;
    const int adentro = vertical ? kBandaRotulo : kSeparacion;
    const int a_lo_largo = index == 1 ? -fuera : kLargoZona + fuera - recorte.ancho;
    Pon(Control::Pic_BotLateral, index,
        JuntoAlAsiento(asiento, a_lo_largo, adentro, recorte.ancho, recorte.alto), recorte, "",
        index == 1 ? "Serie anterior" : "Serie siguiente");
}

void BotonSuperior(int asiento, int state, int index) {
    Traza("BotonSuperior", asiento, state, index);
    const lamina::Recorte& recorte =
        state == 2 ? lamina::kBotonSuperiorPulsado : lamina::kBotonSuperiorArriba;
    const RotuloBoton& suyo = JuegoEnMesa().pintura.superiores.at(index == 1 ? 0 : 1);
    Pon(Control::Pic_BotSuperior, index,
        JuntoAlAsiento(asiento, PrincipioSuperior(asiento, index), kBandaRotulo, recorte.ancho,
                       recorte.alto),
        recorte, suyo.rotulo, suyo.nombre);
}

void BotonDobSeg(int asiento, int state, const std::string& texto) {
    Traza("BotonDobSeg", asiento, state, texto);
    const lamina::Recorte& recorte =
        state == 2 ? lamina::kBotonDobSegPulsado : lamina::kBotonDobSegArriba;
    // Below the other two, or beyond them and beside what is bet.
    const bool vertical = AsientoLateral(asiento);
    const int bajo_los_otros = lamina::kBotonSuperiorArriba.alto + kSeparacion;
    const int a_lo_largo = vertical ? PrincipioSuperior(asiento, 2) + bajo_los_otros
                                    : kLargoZona / 2 - kMitadApuesta - kSeparacion - recorte.ancho;
    const int adentro = kBandaRotulo + (vertical ? 0 : bajo_los_otros);
    Pon(Control::Pic_BotDobSeg, 0,
        JuntoAlAsiento(asiento, a_lo_largo, adentro, recorte.ancho, recorte.alto), recorte, texto,
        texto == "D o b l a r" ? "Doblar" : "Seguro");
}

Integer SerieALaVista(int asiento) {
    const Integer ultima = estado.SeriesJugador(asiento);
    const bool es_de_otro = estado.JuegoConBanca && asiento != estado.JugadorActual;
    return es_de_otro && ultima > 0 ? ultima : estado.SerieActual;
}

void MostrarPuntos(int asiento) {
    Traza("MostrarPuntos", asiento);
    constexpr int kPlaca = 4, kDeLaEsquina = 8;
    const lamina::Recorte& placa = lamina::kPlacaTantos;
    if (JuegoEnMesa().pintura.puntos == nullptr)
        return;
    const std::string cifra = PuntosALaVista(asiento);
    vista.tantos(asiento) = cifra;
    if (cifra.empty()) {
        plataforma().Muestra(Control::Pic_Tantos, asiento, false);
        return;
    }
    // Above the zone at the sides, where the bet board leaves it to see.
    const bool vertical = AsientoLateral(asiento);
    const int a_lo_largo = vertical ? -kSeparacion - placa.alto : kLargoZona + kSeparacion;
    Pon(Control::Pic_Tantos, asiento,
        JuntoAlAsiento(asiento, a_lo_largo, vertical ? -placa.ancho - kDeLaEsquina : -placa.alto,
                       placa.ancho, placa.alto),
        placa, "", "Puntos de " + estado.NombreJugador(asiento) + ": " + cifra);
    if (plataforma().HayPantalla()) {
        plataforma()
            .LienzoDe(Control::Pic_Tantos, asiento)
            .Texto(placa.ancho / 2, kPlaca, cifra, {.alto = 16, .negrita = true}, color::kNegro,
                   Alineacion::Centro);
    }
}
