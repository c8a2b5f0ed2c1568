#include "table/options_menu.h"

#include <algorithm>

#include "core/game_state.h"
#include "core/numeric.h"
#include "table/controls.h"
#include "table/deck.h"
#include "table/game_row.h"
#include "table/hand_order.h"
#include "table/table_view.h"

namespace {

constexpr int kAltoEntrada = 18, kMargen = 4;
constexpr int kAncho = 256; // the longer entry, in whatever letters the desktop has
// The box opens with a corner under the pointer: its words stand clear of that.
constexpr int kMarcaX = 20, kTextoX = 36, kFinalLibre = 20;
constexpr int kEntradaManual = 4, kEntradaSola = 5;

// The number of the n-th entry on show, 0 for none.
int EntradaEn(int n) {
    for (int entrada = 1; entrada <= 10; ++entrada) {
        if (estado.Opciones(entrada) && --n == 0)
            return entrada;
    }
    return 0;
}

void PintaEntrada(Lienzo& lienzo, int n) {
    const Rectangulo lugar = LugarDeOpcion(n);
    const int y = lugar.y;
    const bool resaltada = n == estado.OpcionResaltada;
    if (resaltada)
        lienzo.Caja(lugar, color::kAzulOscuro);
    const Color tinta = resaltada ? color::kBlanco : color::kNegro;
    if (OpcionMarcada(n))
        lienzo.Texto(kMarcaX, y + 2, "X", {.alto = 12, .negrita = true}, tinta,
                     Alineacion::Izquierda);
    lienzo.Texto(kTextoX, y + 2, TextoDeOpcion(n), {.alto = 12}, tinta, Alineacion::Izquierda);
}

// Where there is no room for it at the right of the click it is moved back until the pointer stands on its right end,
// clear of the words.
int IzquierdaDelMenu(int click) {
    const int tope = estado.AnchoMesa - kAncho;
    return click <= tope ? click : std::clamp(click - kAncho + kFinalLibre, 0, std::max(tope, 0));
}

void ResaltaOpcion(int n) {
    if (n == estado.OpcionResaltada)
        return;
    estado.OpcionResaltada = EnteroDe(n);
    PintaOpciones();
}

} // namespace

std::string TextoDeOpcion(int n) {
    return estado.TextoOrdenar(EntradaEn(n));
}

Rectangulo LugarDeOpcion(int n) {
    return {2, kMargen / 2 + (n - 1) * kAltoEntrada, kAncho - 4, kAltoEntrada};
}

bool OpcionMarcada(int n) {
    return EntradaEn(n) == kEntradaManual && estado.ModoOrdenar;
}

void PintaOpciones() {
    Plataforma& p = plataforma();
    if (!p.HayPantalla() || !p.EstaVisible(Control::Pic_SelOpciones, 0))
        return;
    Lienzo& lienzo = p.LienzoDe(Control::Pic_SelOpciones, 0);
    const Rectangulo todo{0, 0, kAncho, estado.NumOpciones * kAltoEntrada + kMargen};
    lienzo.Caja(todo, color::kMarfil);
    lienzo.Borde(todo, color::kBordePanel, 1);
    for (int n = 1; n <= estado.NumOpciones; ++n)
        PintaEntrada(lienzo, n);
}

void PonOpciones(bool ordenar) {
    estado.Opciones.Borra();
    estado.Opciones(kEntradaManual) = ordenar;
    estado.Opciones(kEntradaSola) = ordenar;
    estado.NumOpciones = EnteroDe(std::count(estado.Opciones.begin(), estado.Opciones.end(), true));
}

void MuestraOpciones() {
    if (estado.NumOpciones == 0)
        return;
    const int alto = estado.NumOpciones * kAltoEntrada + kMargen;
    estado.OpcionResaltada = 0;
    vista.menu_x = IzquierdaDelMenu(estado.RatonX);
    vista.menu_y = std::clamp<int>(estado.RatonY, 0, estado.AltoMesa - alto);
    plataforma().Coloca(Control::Pic_SelOpciones, 0, {vista.menu_x, vista.menu_y, kAncho, alto});
    plataforma().Nombra(Control::Pic_SelOpciones, 0, "Ordenar cartas");
    plataforma().Muestra(Control::Pic_SelOpciones, 0, true);
    PintaOpciones();
}

void ApagaOpcion() {
    if (plataforma().EstaVisible(Control::Pic_SelOpciones, 0))
        ResaltaOpcion(0);
}

void ApuntaEnOpciones(int x, int y) {
    vista.puntero_x = vista.menu_x + x;
    vista.puntero_y = vista.menu_y + y;
}

void Opciones_MouseMove(int y) {
    const int n = (y + 16) / kAltoEntrada;
    ResaltaOpcion(std::clamp<int>(n, 0, estado.NumOpciones));
}

void Opciones_MouseUp() {
    if (estado.OpcionResaltada == 0)
        return;
    Oculta(Control::Pic_SelOpciones);
    estado.OpcionElegida = EnteroDe(EntradaEn(estado.OpcionResaltada));
    if (estado.OpcionElegida == kEntradaManual) {
        PonModoOrdenar(!estado.ModoOrdenar);
        return;
    }
    const Integer asiento = estado.ZonaBajoCursor;
    OrdenarMano(asiento);
    const FilaJuego& juego = JuegoEnMesa();
    if (asiento == estado.JugadorActual && juego.entrada.tras_reordenar != nullptr)
        juego.entrada.tras_reordenar();
}
