#include "table/table_input.h"

#include <algorithm>

#include "betting/bet_state.h"
#include "core/game_state.h"
#include "core/numeric.h"
#include "table/bet_board.h"
#include "table/controls.h"
#include "table/frames.h"
#include "table/game_row.h"
#include "table/hand_order.h"
#include "table/hit_tests.h"
#include "table/layout.h"
#include "table/manual_spread.h"
#include "table/messages.h"
#include "table/options_menu.h"
#include "table/seat_drawing.h"
#include "table/sounds.h"
#include "table/table_view.h"
#include "table/trace.h"

namespace {

constexpr int kBotonIzquierdo = 1, kBotonDerecho = 2;
constexpr int kMargenCambio =
    18; // the pile's box reaches so much further left while a change is on offer

bool Dentro(int v, int desde, int hasta) {
    return v >= desde && v <= hasta;
}

bool TurnoManual() {
    return estado.JugadorActual != 0 && estado.ControlJugador(estado.JugadorActual) == kManual;
}

bool ManoJugable() {
    return TurnoManual() && estado.PartidaEnCurso && estado.ManoEnCurso && !estado.ModoOrdenar &&
           !estado.RepartoEnCurso;
}

Integer Codigo(Puntero puntero) {
    return static_cast<Integer>(puntero);
}

bool EsLegal(int lugar) {
    const auto carta_legal = JuegoEnMesa().entrada.carta_legal;
    return carta_legal == nullptr || carta_legal(lugar);
}

Puntero PunteroEnCarta(int lugar) {
    const FilaJuego& juego = JuegoEnMesa();
    if (juego.entrada.puntero != nullptr)
        return juego.entrada.puntero(lugar);
    if (apuestas.ModoApuesta)
        return Puntero::Flecha;
    return EsLegal(lugar) ? Puntero::ManoVerde : Puntero::ManoRoja;
}

// The pile is offered at all, whatever it looks like.
bool HayCambioEnElMazo() {
    const FilaJuego& juego = JuegoEnMesa();
    return juego.entrada.cambio_en_mazo != nullptr && juego.entrada.cambio_en_mazo();
}

bool EnElMazo(int x, int y) {
    return Dentro(x, estado.MazoX - kMargenCambio, estado.MazoX + kAnchoCarta - 1) &&
           Dentro(y, estado.MazoY, estado.MazoY + kAltoCarta - 1);
}

bool CambioEnMazo(int x, int y) {
    return HayCambioEnElMazo() && EnElMazo(x, y);
}

Integer PunteroDeMano(int x, int y) {
    DetectaJdorYCar(x, y);
    Integer codigo = 0;
    if (estado.AsientoBajoCursor == estado.JugadorActual && estado.CartaBajoCursor != 0)
        codigo = Codigo(PunteroEnCarta(estado.CartaBajoCursor));
    return CambioEnMazo(x, y) ? Codigo(Puntero::Cambiar) : codigo;
}

Integer PunteroDeOrdenar(int x, int y) {
    if (estado.ArrastraCarta)
        return Codigo(Puntero::ManoCerrada);
    DetectaJdorYCar(x, y);
    const bool movible =
        estado.CartaBajoCursor != 0 && estado.CartasJugador(estado.AsientoBajoCursor) == kVisibles;
    return movible ? Codigo(Puntero::Ordenar) : Integer{0};
}

Integer PunteroDeReparto(int x, int y) {
    if (estado.ArrastraReparto)
        return Codigo(Puntero::ManoCerrada);
    if (EnElReparto(x, y)) {
        HallaFilyCol(x, y);
        const bool queda = estado.FilaReparto != 0 && estado.ColumnaReparto != 0 &&
                           estado.CartaEnReparto(estado.FilaReparto, estado.ColumnaReparto);
        return queda ? Codigo(Puntero::Ordenar) : Integer{0};
    }
    DetectaJdorYCar(x, y);
    return estado.CartaBajoCursor != 0 ? Codigo(Puntero::ManoVerde) : Integer{0};
}

// The outlined card, asiento 0 for none.
struct Contorno {
    Integer asiento = 0, lugar = 0;
    Rectangulo donde;
};
Contorno contorno;

bool SeMueveCarta(Integer asiento) {
    return estado.ModoOrdenar && !estado.ArrastraCarta &&
           estado.CartasJugador(asiento) == kVisibles;
}

// A press on the card does something, and the pointer is still over what is to be seen of it.
bool SeContornea(Integer asiento, Integer lugar) {
    const Integer cartas = estado.NumCartas(asiento, estado.SerieActual);
    if (lugar == 0 || lugar > cartas || HayMarcoDeTeclas())
        return false;
    // The pop-up lies over the card, and the pointer is on that.
    if (plataforma().EstaVisible(Control::Pic_SelOpciones, 0))
        return false;
    const Rectangulo carta = CajaDeCarta(asiento, lugar, cartas);
    return (SeTocaCarta(asiento, lugar) || SeMueveCarta(asiento)) &&
           Dentro(vista.puntero_x, carta.x, carta.x + carta.ancho - 1) &&
           Dentro(vista.puntero_y, carta.y, carta.y + carta.alto - 1);
}

void RevisaContorno();

void Contornea(const Contorno& nuevo) {
    contorno = nuevo;
    const bool hay = nuevo.asiento != 0;
    PonMarco(Marco::DePuntero, hay ? std::optional(nuevo.donde) : std::nullopt, RevisaContorno);
}

void ContorneaCarta(Integer asiento, Integer lugar) {
    if (asiento == 0 || !SeContornea(asiento, lugar))
        return Contornea({});
    const Integer cartas = estado.NumCartas(asiento, estado.SerieActual);
    Contornea({asiento, lugar, CartaALaVista(asiento, lugar, cartas)});
}

void RevisaContorno() {
    ContorneaCarta(contorno.asiento, contorno.lugar);
}

// Over the spread and the pile the card found last is not under the pointer.
void ContorneaBajoElPuntero() {
    switch (static_cast<Puntero>(estado.CursorNuevo)) {
    case Puntero::ManoVerde:
    case Puntero::Voltear:
    case Puntero::Cambiar:
    case Puntero::Abrirse:
    case Puntero::Ordenar:
        return ContorneaCarta(estado.AsientoBajoCursor, estado.CartaBajoCursor);
    default:
        return Contornea({});
    }
}

void PonCursorNuevo() {
    if (estado.CursorNuevo != estado.CursorTabla) {
        CambiarCursor(Control::Mesa, 0, static_cast<Puntero>(estado.CursorNuevo));
        estado.CursorTabla = estado.CursorNuevo;
    }
    ContorneaBajoElPuntero();
}

// The card has gone out of the hand that held it: until the pointer moves again it offers nothing.
void SueltaElPuntero() {
    estado.CursorNuevo = 0;
    PonCursorNuevo();
}

void BuscaPuntero(int x, int y) {
    vista.puntero_x = x;
    vista.puntero_y = y;
    estado.CursorNuevo = 0;
    if (ManoJugable())
        estado.CursorNuevo = PunteroDeMano(x, y);
    DetectaFicha(x, y);
    if (estado.FichaBajoCursor != 0)
        estado.CursorNuevo = Codigo(Puntero::ManoIndice);
    if (estado.ModoOrdenar)
        estado.CursorNuevo = PunteroDeOrdenar(x, y);
    if (estado.RepartoEnCurso)
        estado.CursorNuevo = PunteroDeReparto(x, y);
}

void CalculaPuntero(int x, int y) {
    BuscaPuntero(x, y);
    PonCursorNuevo();
}

void MueveColgada(int x, int y) {
    const Carta carta = LaCartaColgada();
    PonMover(carta.palo, carta.valor, x - 12, y - 12);
    DetectaZonaCartas(x, y);
    if (estado.ZonaBajoCursor != 0 && DaCartaA(estado.ZonaBajoCursor))
        SueltaElPuntero();
}

bool LaTomaElJuego(Puntero puntero) {
    const auto clic = JuegoEnMesa().entrada.clic;
    return clic != nullptr && clic(puntero, estado.CartaBajoCursor);
}

void EligeLaCarta(Puntero puntero) {
    if (estado.AsientoBajoCursor != estado.JugadorActual || estado.CartaBajoCursor == 0)
        return;
    if (!LaTomaElJuego(puntero) && CartaLegal()) {
        estado.JugadaHecha = true;
        estado.CartaElegida = estado.CartaBajoCursor;
        estado.EsperandoJugada = false;
    }
    RedibujarAsiento(estado.JugadorActual);
    Sonido(0, sonido::kPosa);
}

void PulsaReparto(int x, int y) {
    if (estado.CursorTabla == Codigo(Puntero::Ordenar)) {
        HallaFilyCol(x, y);
        if (TomaDelReparto()) {
            Sonido(1, sonido::kDespega);
            MueveColgada(x, y);
            RefrescaPuntero();
        }
    } else if (estado.CursorTabla == Codigo(Puntero::ManoVerde)) {
        DetectaJdorYCar(x, y);
        RecogeDeMano(estado.AsientoBajoCursor, estado.CartaBajoCursor);
        RefrescaPuntero();
    }
}

void PulsaSegunPuntero() {
    const auto puntero = static_cast<Puntero>(estado.CursorTabla);
    switch (puntero) {
    case Puntero::ManoIndice:
        PulsaFicha();
        break;
    case Puntero::ManoVerde:
        if (estado.EligeCarta && !apuestas.ModoApuesta)
            EligeLaCarta(puntero);
        break;
    case Puntero::Voltear:
        if (estado.EligeCarta)
            LaTomaElJuego(puntero);
        break;
    case Puntero::Cambiar:
    case Puntero::Abrirse:
        LaTomaElJuego(puntero);
        break;
    default:
        break;
    }
}

} // namespace

bool CartaLegal() {
    return EsLegal(estado.CartaBajoCursor);
}

Puntero PunteroSobreCarta(Integer asiento, int lugar) {
    if (estado.RepartoEnCurso)
        return estado.ArrastraReparto ? Puntero::ManoCerrada : Puntero::ManoVerde;
    if (estado.ModoOrdenar)
        return estado.CartasJugador(asiento) == kVisibles ? Puntero::Ordenar : Puntero::Flecha;
    return ManoJugable() && asiento == estado.JugadorActual ? PunteroEnCarta(lugar)
                                                            : Puntero::Flecha;
}

bool SeTocaCarta(Integer asiento, int lugar) {
    switch (PunteroSobreCarta(asiento, lugar)) {
    case Puntero::ManoVerde:
        return estado.RepartoEnCurso || estado.EligeCarta;
    case Puntero::Voltear:
        return estado.EligeCarta;
    case Puntero::Cambiar:
    case Puntero::Abrirse:
        return true;
    default: // a card is put in order by being dragged, not by a click
        return false;
    }
}

bool OfreceOrdenar(Integer asiento) {
    return (estado.EsperandoJugada || !estado.PartidaEnCurso) && estado.ManoEnCurso &&
           JuegoEnMesa().entrada.menu_ordenar && estado.CartasJugador(asiento) == kVisibles;
}

bool SeCambiaEnElMazo() {
    return ManoJugable() && HayCambioEnElMazo();
}

Punto ToqueDelCambio() {
    return {estado.MazoX - kMargenCambio / 2, estado.MazoY + kAltoCarta / 2};
}

void RefrescaPuntero() {
    {
        const SinTraza callado;
        BuscaPuntero(vista.puntero_x, vista.puntero_y);
    }
    PonCursorNuevo();
}

void Form_MouseMove(int x, int y) {
    ApagaOpcion();
    CalculaPuntero(x, y);
    if (estado.ArrastraReparto)
        MueveColgada(x, y);
    else if (estado.ArrastraCarta)
        MueveArrastrada(x, y);
}

void Form_MouseDown(int boton, int x, int y) {
    estado.RatonX = EnteroDe(x);
    estado.RatonY = EnteroDe(y);
    estado.BotonRaton = EnteroDe(boton);
    Oculta(Control::Pic_SelOpciones);
    if (boton != kBotonIzquierdo)
        return;
    // A pointer that rests on a card works too: its shape is reckoned anew for the press.
    CalculaPuntero(x, y);
    if (estado.RepartoEnCurso) {
        PulsaReparto(x, y);
    } else if (estado.ModoOrdenar) {
        if (estado.CursorTabla == Codigo(Puntero::Ordenar)) {
            TomaParaOrdenar(estado.AsientoBajoCursor, estado.CartaBajoCursor);
            Form_MouseMove(x, y);
        }
    } else {
        PulsaSegunPuntero();
    }
}

void Form_MouseUp() {
    if (estado.ArrastraReparto) {
        DevuelveAlReparto();
        RefrescaPuntero();
    }
    if (estado.ArrastraCarta) {
        SueltaArrastrada();
        RefrescaPuntero();
    }
}

void Form_Click() {
    DetectaZonaCartas(estado.RatonX, estado.RatonY);
    if (estado.BotonRaton == kBotonDerecho && (estado.EsperandoJugada || !estado.PartidaEnCurso) &&
        JuegoEnMesa().entrada.menu_ordenar) {
        const Integer zona = estado.ZonaBajoCursor;
        PonOpciones(zona != 0 && OfreceOrdenar(zona));
        MuestraOpciones();
    }
    if (estado.ZonaBajoCursor == 0 && estado.ModoOrdenar) {
        PonModoOrdenar(false);
        RefrescaPuntero();
    }
}

bool TeclaActiva(int tecla) {
    constexpr int kEsc = 27, kq = 'q', kQ = 'Q', kControlC = 3;
    if (tecla == kEsc || tecla == kq || tecla == kQ) {
        plataforma().Minimiza();
        return false;
    }
    return tecla != kControlC;
}
