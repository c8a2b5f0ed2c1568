#include "table/seat_drawing.h"

#include <algorithm>
#include <array>

#include "core/game_state.h"
#include "core/numeric.h"
#include "core/text.h"
#include "table/chips.h"
#include "table/frames.h"
#include "table/game_row.h"
#include "table/layout.h"
#include "table/messages.h"
#include "table/score_plate.h"
#include "table/sheet_layout.h"
#include "table/side_buttons.h"
#include "table/sounds.h"
#include "table/table_view.h"
#include "table/trace.h"

namespace {

constexpr int kLargoRotulo = 250;
constexpr int kPasoLetraAlLado = 11, kPasoLetraAbajo = 15;
constexpr int kAltoLetra = 14;
constexpr int kAltoRenglon = 18;

Lienzo& Mesa() {
    return plataforma().LienzoDe(Control::Mesa, 0);
}

Rectangulo BandaDelNombre(int asiento) {
    const Rectangulo zona = ZonaDe(asiento);
    switch (asiento) {
    case 1:
        return {0, zona.y, kAltoRenglon, zona.alto};
    case 2:
        return {zona.x, 0, zona.ancho, kAltoRenglon};
    case 3:
        return {estado.AnchoMesa - kAltoRenglon, zona.y, kAltoRenglon, zona.alto};
    default:
        return {zona.x, estado.AltoMesa - kAltoRenglon, zona.ancho, kAltoRenglon};
    }
}

// Captions stand on the inner side of the zone, on the strip into which raised cards reach.
Rectangulo BandaDelRotulo(int asiento) {
    const Rectangulo zona = ZonaDe(asiento);
    const Rectangulo todo = ZonaConRealce(asiento);
    switch (asiento) {
    case 1:
        return {zona.x + zona.ancho, zona.y, kAltoRenglon, zona.alto};
    case 2:
        return {zona.x, zona.y + zona.alto, zona.ancho, kAltoRenglon};
    case 3:
        return {todo.x, zona.y, kAltoRenglon, zona.alto};
    default:
        return {zona.x, todo.y, zona.ancho, kAltoRenglon};
    }
}

// Beyond the raised cards.
Rectangulo BandaDelCante(int asiento) {
    Rectangulo banda = BandaDelRotulo(asiento);
    const Rectangulo zona = ZonaDe(asiento);
    const int realce =
        ZonaConRealce(asiento).ancho - zona.ancho + ZonaConRealce(asiento).alto - zona.alto;
    const int hacia_dentro = asiento == 1 || asiento == 2 ? realce : -realce;
    (AsientoLateral(asiento) ? banda.x : banda.y) += hacia_dentro;
    return banda;
}

// One letter after the other along the band, paso pixels apart, centred on it. Where letters are closer than they
// are large, those beside each other are drawn narrower, those below each other smaller.
void LetraALetra(int asiento, const Rectangulo& banda, const std::string& texto, int paso,
                 Color color) {
    const int letras = Longitud(texto);
    const bool columna = AsientoLateral(asiento);
    const int largo = (letras - 1) * paso;
    const Fuente letra{.alto = columna ? std::min(kAltoLetra, paso * 4 / 3) : kAltoLetra,
                       .negrita = true,
                       .tope = columna ? 0 : paso};
    const int centro = columna ? banda.y + banda.alto / 2 : banda.x + banda.ancho / 2;
    for (int i = 0; i < letras; ++i) {
        const int punto = centro - largo / 2 + i * paso;
        const int x = columna ? banda.x + banda.ancho / 2 : punto;
        const int y = columna ? punto - letra.alto / 2 - 1 : banda.y + 1;
        Mesa().Texto(x, y, Medio(texto, i + 1, 1), letra, color, Alineacion::Centro);
    }
}

// The signs at both ends of a name that is lit are lines and no letters: not every font has arrows and stars.
constexpr int kGruesoSenal = 2;

// The head of an arrow around a point, towards (a_x, a_y): one of both is 1 or -1, the other one 0.
void PintaPunta(const Punto& donde, int a_x, int a_y) {
    constexpr int kMedioLargo = 4, kMedioAncho = 4;
    const Punto punta{donde.x + kMedioLargo * a_x, donde.y + kMedioLargo * a_y};
    for (int i = -kMedioAncho; i <= kMedioAncho; ++i) {
        Mesa().Linea(donde.x - kMedioLargo * a_x + i * a_y, donde.y - kMedioLargo * a_y + i * a_x,
                     punta.x, punta.y, color::kAmarillo, kGruesoSenal);
    }
    // The ends of lines that come from all sides leave notches in the base.
    const Punto base{donde.x - kMedioLargo * a_x, donde.y - kMedioLargo * a_y};
    Mesa().Linea(base.x - kMedioAncho * a_y, base.y - kMedioAncho * a_x, base.x + kMedioAncho * a_y,
                 base.y + kMedioAncho * a_x, color::kAmarillo, kGruesoSenal);
}

// A star in one stroke, and its middle filled.
void PintaEstrella(const Punto& donde) {
    constexpr std::array<Punto, 6> kPuntas{{{0, -6}, {4, 5}, {-6, -2}, {6, -2}, {-4, 5}, {0, -6}}};
    for (std::size_t i = 1; i < kPuntas.size(); ++i) {
        const Punto &de = kPuntas.at(i - 1), &a = kPuntas.at(i);
        Mesa().Linea(donde.x + de.x, donde.y + de.y, donde.x + a.x, donde.y + a.y, color::kAmarillo,
                     kGruesoSenal);
    }
    Mesa().Caja({donde.x - 1, donde.y - 1, 3, 3}, color::kAmarillo);
}

// So far before and behind the middle of a name: arrows look at it.
void PintaSenales(const Punto& centro, int lejos, bool columna) {
    for (const int lado : {-1, 1}) {
        const Punto donde{centro.x + (columna ? 0 : lado * lejos),
                          centro.y + (columna ? lado * lejos : 0)};
        if (vista.luz == Luz::Baza)
            PintaEstrella(donde);
        else
            PintaPunta(donde, columna ? 0 : -lado, columna ? -lado : 0);
    }
}

// A plate under the name, yellow letters, and the signs: not the colour alone tells it.
void PintaEncendido(int asiento, const Rectangulo& banda, int paso) {
    const bool columna = AsientoLateral(asiento);
    const std::string& nombre = estado.NombreJugador(asiento);
    const int mitad = (Longitud(nombre) + 3) * paso / 2 + 5;
    const int x = banda.x + banda.ancho / 2;
    const int y = banda.y + banda.alto / 2;
    const Rectangulo placa = columna ? Rectangulo{banda.x, y - mitad, banda.ancho, 2 * mitad}
                                     : Rectangulo{x - mitad, banda.y, 2 * mitad, banda.alto};
    Mesa().Caja(placa, color::kPlaca);
    Mesa().Borde(placa, color::kAmarillo, 1);
    LetraALetra(asiento, banda, nombre, paso, color::kAmarillo);
    PintaSenales({x, y}, (Longitud(nombre) + 1) * paso / 2 + 4, columna);
}

void PintaNombre(int asiento) {
    if (!vista.nombres || estado.EstadoJugador(asiento) != kActivado)
        return;
    const Rectangulo banda = BandaDelNombre(asiento);
    const int paso = AsientoLateral(asiento) ? kPasoLetraAbajo : kPasoLetraAlLado;
    Mesa().Fieltro(banda);
    if (asiento == vista.asiento_encendido)
        PintaEncendido(asiento, banda, paso);
    else
        LetraALetra(asiento, banda, estado.NombreJugador(asiento), paso, color::kBlanco);
}

void Enciende(int asiento, Luz luz) {
    const int antes = vista.asiento_encendido;
    if (antes == asiento && vista.luz == luz)
        return;
    vista.asiento_encendido = asiento;
    vista.luz = luz;
    if (!plataforma().HayPantalla())
        return;
    for (const int cambia : {antes, asiento}) {
        if (cambia != 0)
            PintaNombre(cambia);
    }
    plataforma().Repinta();
}

void PintaRotulo(int asiento, bool visible) {
    const Integer serie = estado.SerieActual;
    const Rectangulo banda = BandaDelRotulo(asiento);
    Mesa().Fieltro(banda);
    if (visible) {
        Mesa().Caja(banda, color::kPlaca);
        const int letras = std::max(Longitud(estado.RotuloSerie(asiento, serie)), 1);
        LetraALetra(asiento, banda, estado.RotuloSerie(asiento, serie),
                    std::min(kLargoRotulo / letras, kPasoLetraAbajo),
                    estado.ColorRotulo(asiento, serie));
    }
    plataforma().Repinta();
}

// The letters of a caption that is spread by hand ("P a s o") as a word.
std::string SinEspaciar(const std::string& rotulo) {
    std::string palabra;
    for (int i = 1; i <= Longitud(rotulo); ++i) {
        const std::string letra = Medio(rotulo, i, 1);
        if (i % 2 == 0 && letra != " ")
            return rotulo;
        palabra += i % 2 == 0 ? "" : letra;
    }
    return palabra;
}

// Tells a caption when it comes, not each time the seat is painted.
void AnunciaRotulo(int asiento) {
    const std::string& rotulo = estado.RotuloSerie(asiento, estado.SerieActual);
    if (rotulo == vista.rotulo_dicho(asiento))
        return;
    vista.rotulo_dicho(asiento) = rotulo;
    if (!rotulo.empty())
        plataforma().Anuncia(estado.NombreJugador(asiento) + ": " + RotuloDicho(asiento));
}

void ParpadeaRotulo(int asiento, Integer serie) {
    const bool verde = estado.ColorRotulo(asiento, serie) == color::kVerde;
    for (int vez = 0; vez < estado.ParpadeoRotulo(asiento, serie); ++vez) {
        PintaRotulo(asiento, true);
        Pausa(250);
        if (verde)
            Sonido(1, sonido::kParpadeo);
        Pausa(500);
        PintaRotulo(asiento, false);
    }
    estado.ParpadeoRotulo(asiento, serie) = 0;
    estado.RotuloSerie(asiento, serie).clear();
    vista.rotulo_dicho(asiento).clear();
}

// The strip into which raised cards and captions reach belongs to the centre as long as nothing of the seat
// stands there: what the game shows in the centre is painted again when it has been cleared.
bool OcupaFranja(int asiento) {
    const Integer serie = estado.SerieActual;
    bool ocupa = !estado.RotuloSerie(asiento, serie).empty();
    for (int lugar = 1; lugar <= estado.NumCartas(asiento, serie); ++lugar)
        ocupa = ocupa || estado.Mano(asiento, serie, lugar, kAltura) == kLevantada;
    return ocupa;
}

void LimpiaZona(int asiento) {
    const bool ocupada = vista.franja_ocupada(asiento);
    vista.franja_ocupada(asiento) = OcupaFranja(asiento);
    if (!ocupada) {
        Mesa().Fieltro(ZonaDe(asiento));
        return;
    }
    Mesa().Fieltro(ZonaConRealce(asiento));
    const FilaJuego& juego = JuegoEnMesa();
    if (juego.pintura.centro != nullptr)
        juego.pintura.centro();
}

void PintaCartas(int asiento) {
    const Integer serie = SerieALaVista(asiento);
    const Integer cartas = estado.NumCartas(asiento, serie);
    for (int lugar = 1; lugar <= cartas; ++lugar) {
        const bool en_el_aire = estado.ArrastraCarta && vista.asiento_arrastrado == asiento &&
                                estado.CartaMovida == lugar;
        const auto campo = [&](int cual) { return estado.Mano(asiento, serie, lugar, cual); };
        if (en_el_aire || campo(kPalo) == kSinCarta)
            continue;
        ColocarCarta(asiento, lugar, std::max<int>(cartas, vista.abanico(asiento)));
        Mesa().Carta(estado.CartaX, estado.CartaY,
                     {.palo = campo(kPalo),
                      .valor = campo(kValor),
                      .cara = campo(kCara),
                      .orientacion = OrientacionDe(asiento),
                      .tapada = campo(kTapada) == 1});
    }
}

// In the games with money: the seat's chips and what it has bet, with the mark of a serie that has gone over; before
// the bank lies no bet, and the mark is on its cards.
void PintaDinero(int asiento) {
    if (!JuegoEnMesa().dinero.hay)
        return;
    PintarFichas(asiento, kAreaRestos + asiento - 1);
    RefrescaTanteo();
    // In a manual deal the spread lies where the bets will.
    if (!estado.RepartoEnCurso)
        RedibujaApuesta(EnteroDe(asiento));
    const bool banca_pasada =
        estado.JuegoConBanca && asiento == estado.JugadorBanca && estado.SerieTerminada(asiento, 1);
    if (banca_pasada) {
        const Rectangulo zona = ZonaDe(asiento);
        const lamina::Recorte& marca = lamina::kMarcaPasado;
        Mesa().Lamina(zona.x + (zona.ancho - marca.ancho) / 2,
                      zona.y + (zona.alto - marca.alto) / 2, marca);
    }
}

void PintaGanador(int asiento) {
    const Rectangulo zona = ZonaDe(asiento);
    const lamina::Recorte& marca = lamina::kMarcaGanador;
    Mesa().Lamina(zona.x + (zona.ancho - marca.ancho) / 2, zona.y + (zona.alto - marca.alto) / 2,
                  marca);
}

} // namespace

std::string RotuloDicho(int asiento) {
    return SinEspaciar(estado.RotuloSerie(asiento, estado.SerieActual));
}

void RedibujarAsiento(int asiento) {
    Traza("RedibujarAsiento", asiento);
    const Integer serie = estado.SerieActual;
    const bool parpadea = estado.ParpadeoRotulo(asiento, serie) > 0;
    AnunciaRotulo(asiento);
    if (plataforma().HayPantalla()) {
        LimpiaZona(asiento);
        PintaNombre(asiento);
        PintaCartas(asiento);
    }
    if (parpadea)
        ParpadeaRotulo(asiento, serie);
    else if (!estado.RotuloSerie(asiento, serie).empty())
        MostrarRotulo(asiento);
    if (plataforma().HayPantalla()) {
        PintaDinero(asiento);
        if (vista.ganador(asiento))
            PintaGanador(asiento);
    }
    const FilaJuego& juego = JuegoEnMesa();
    if (juego.pintura.puntos != nullptr)
        MostrarPuntos(asiento);
    if (juego.pintura.botones_asiento != nullptr)
        juego.pintura.botones_asiento(asiento);
    RevisaMarcos();
    if (plataforma().HayPantalla())
        plataforma().Repinta();
}

void ResaltarAsiento() {
    Traza("ResaltarAsiento");
    EnciendeTurno();
    for (int vez = 0; vez < 2; ++vez) {
        if (plataforma().HayPantalla()) {
            LimpiaZona(estado.JugadorActual);
            plataforma().Repinta();
        }
        Pausa(140);
        RedibujarAsiento(estado.JugadorActual);
        Pausa(340);
    }
}

void MostrarRotulo(int asiento) {
    Traza("MostrarRotulo", asiento);
    AnunciaRotulo(asiento);
    if (plataforma().HayPantalla())
        PintaRotulo(asiento, true);
}

void MostrarNombres() {
    Traza("MostrarNombres");
    vista.nombres = true;
    if (!plataforma().HayPantalla())
        return;
    for (int asiento = 1; asiento <= 4; ++asiento)
        PintaNombre(asiento);
    plataforma().Repinta();
}

void MarcaGanador(int asiento, bool visible) {
    Traza("MarcaGanador", asiento, visible ? 1 : 0);
    vista.ganador(asiento) = visible;
    if (!plataforma().HayPantalla())
        return;
    if (visible) {
        PintaGanador(asiento);
        plataforma().Repinta();
    } else {
        RedibujarAsiento(asiento);
    }
}

void DejaMarcaGanador(int asiento) {
    vista.ganador(asiento) = true;
    if (!plataforma().HayPantalla())
        return;
    PintaGanador(asiento);
    RefrescaTanteo();
    plataforma().Repinta();
}

void EnciendeTurno() {
    Enciende(estado.JugadorActual, Luz::Turno);
}

void EnciendeBaza(int asiento) {
    Enciende(asiento, Luz::Baza);
}

void ApagaNombre() {
    Enciende(0, Luz::Ninguna);
}

void MuestraCante(int asiento, const std::string& texto) {
    if (!plataforma().HayPantalla())
        return;
    const Rectangulo banda = BandaDelCante(asiento);
    Mesa().Caja(banda, color::kPlaca);
    Mesa().Borde(banda, color::kAmarillo, 1);
    LetraALetra(asiento, banda, texto, kPasoLetraAlLado + (AsientoLateral(asiento) ? 2 : 0),
                color::kAmarillo);
    plataforma().Repinta();
}

void QuitaCante(int asiento) {
    if (!plataforma().HayPantalla())
        return;
    Mesa().Fieltro(BandaDelCante(asiento));
    const FilaJuego& juego = JuegoEnMesa();
    if (juego.pintura.centro != nullptr)
        juego.pintura.centro();
    plataforma().Repinta();
}
