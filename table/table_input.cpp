#include "table/table_input.h"

#include <algorithm>

#include "core/game_state.h"
#include "core/numeric.h"
#include "games/game_table.h"
#include "table/deck.h"
#include "table/hand_order.h"
#include "table/layout.h"
#include "table/manual_deal.h"
#include "table/messages.h"
#include "table/options_menu.h"
#include "table/table_ops.h"
#include "table/table_view.h"

namespace {

constexpr int kSonidoDespega = 24, kSonidoPosa = 25;
constexpr int kBotonIzquierdo = 1, kBotonDerecho = 2;
constexpr int kPasoColumna = 29, kHueco = 3, kMasFila = 2;
constexpr int kMargenCambio =
    18; // the pile's box reaches so much further left while a change is on offer

bool Dentro(int v, int desde, int hasta) {
    return v >= desde && v <= hasta;
}

bool EnLaFranja(int asiento, int x, int y, int cartas) {
    const Rectangulo franja = FranjaMano(asiento, cartas);
    return Dentro(x, franja.x, franja.x + franja.ancho - 1) &&
           Dentro(y, franja.y, franja.y + franja.alto - 1);
}

bool EnLaCarta(int asiento, int lugar, int cartas, int x, int y) {
    ColocarCarta(asiento, lugar, cartas);
    const bool acostada = AsientoLateral(asiento);
    const int ancho = acostada ? kAltoCarta : kAnchoCarta;
    const int alto = acostada ? kAnchoCarta : kAltoCarta;
    return Dentro(x, estado.CartaX, estado.CartaX + ancho - 1) &&
           Dentro(y, estado.CartaY, estado.CartaY + alto - 1);
}

// The number of a pitch, 0 beyond the last and in the gap at its end.
Integer FilaDePaso(int distancia, int paso, int cuantas) {
    if (distancia < 0 || distancia / paso >= cuantas || distancia % paso >= paso - kHueco)
        return 0;
    return EnteroDe(distancia / paso + 1);
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

Integer PunteroEnCarta() {
    const FilaJuego& juego = JuegoEnMesa();
    if (juego.puntero_carta != nullptr)
        return Codigo(juego.puntero_carta(estado.CartaBajoCursor));
    if (estado.ModoApuesta)
        return 0;
    return Codigo(CartaLegal() ? Puntero::ManoVerde : Puntero::ManoRoja);
}

bool EnElMazo(int x, int y) {
    return Dentro(x, estado.MazoX - kMargenCambio, estado.MazoX + kAnchoCarta - 1) &&
           Dentro(y, estado.MazoY, estado.MazoY + kAltoCarta - 1);
}

bool CambioEnMazo(int x, int y) {
    const FilaJuego& juego = JuegoEnMesa();
    return juego.cambio_en_mazo != nullptr && juego.cambio_en_mazo() && EnElMazo(x, y);
}

Integer PunteroDeMano(int x, int y) {
    DetectaJdorYCar(x, y);
    Integer codigo = 0;
    if (estado.AsientoBajoCursor == estado.JugadorActual && estado.CartaBajoCursor != 0)
        codigo = PunteroEnCarta();
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

void CalculaPuntero(int x, int y) {
    vista.puntero_x = x;
    vista.puntero_y = y;
    estado.CursorNuevo = 0;
    if (ManoJugable())
        estado.CursorNuevo = PunteroDeMano(x, y);
    if (estado.ModoOrdenar)
        estado.CursorNuevo = PunteroDeOrdenar(x, y);
    if (estado.RepartoEnCurso)
        estado.CursorNuevo = PunteroDeReparto(x, y);
    if (estado.CursorNuevo != estado.CursorTabla) {
        CambiarCursor(Control::Mesa, 0, static_cast<Puntero>(estado.CursorNuevo));
        estado.CursorTabla = estado.CursorNuevo;
    }
}

void MueveColgada(int x, int y) {
    const CartaColgada carta = LaCartaColgada();
    PonMover(carta.palo, carta.valor, x - 12, y - 12);
    DetectaZonaCartas(x, y);
    if (estado.ZonaBajoCursor != 0)
        DaCartaA(estado.ZonaBajoCursor);
}

void EligeLaCarta() {
    const Integer lugar = estado.CartaBajoCursor;
    if (estado.AsientoBajoCursor != estado.JugadorActual || lugar == 0)
        return;
    const FilaJuego& juego = JuegoEnMesa();
    if (juego.clic_carta != nullptr) {
        juego.clic_carta(lugar);
    } else if (CartaLegal()) {
        estado.JugadaHecha = true;
        estado.CartaElegida = lugar;
        estado.EsperandoJugada = false;
    }
    RedibujarAsiento(estado.JugadorActual);
    Sonido(0, kSonidoPosa);
}

void PulsaReparto(int x, int y) {
    if (estado.CursorTabla == Codigo(Puntero::Ordenar)) {
        HallaFilyCol(x, y);
        if (TomaDelReparto()) {
            Sonido(1, kSonidoDespega);
            MueveColgada(x, y);
            RefrescaPuntero();
        }
    } else if (estado.CursorTabla == Codigo(Puntero::ManoVerde)) {
        DetectaJdorYCar(x, y);
        RecogeDeMano(estado.AsientoBajoCursor, estado.CartaBajoCursor);
    }
}

void PulsaSegunPuntero() {
    const FilaJuego& juego = JuegoEnMesa();
    switch (static_cast<Puntero>(estado.CursorTabla)) {
    case Puntero::ManoVerde:
    case Puntero::ManoRoja: // sounds like a card, and plays none
        if (estado.EligeCarta && !estado.ModoApuesta)
            EligeLaCarta();
        break;
    case Puntero::Voltear:
        if (estado.EligeCarta && juego.clic_voltear != nullptr)
            juego.clic_voltear(estado.CartaBajoCursor);
        break;
    case Puntero::Cambiar:
        if (juego.clic_cambio != nullptr)
            juego.clic_cambio();
        break;
    case Puntero::Abrirse:
        if (juego.clic_abrir != nullptr)
            juego.clic_abrir();
        break;
    default:
        break;
    }
}

} // namespace

void DetectaZonaCartas(int x, int y) {
    estado.ZonaBajoCursor = 0;
    const auto enFila = [&](int s) { return Dentro(y, estado.MesaArriba(s), estado.MesaAbajo(s)); };
    const auto enColumna = [&](int s) {
        return Dentro(x, estado.MesaIzquierda(s), estado.MesaDerecha(s));
    };
    if (x <= estado.MesaDerecha(1) && enFila(1))
        estado.ZonaBajoCursor = 1;
    if (enColumna(2) && y <= estado.MesaAbajo(2))
        estado.ZonaBajoCursor = 2;
    if (x >= estado.MesaIzquierda(3) && enFila(3))
        estado.ZonaBajoCursor = 3;
    if (enColumna(4) && y >= estado.MesaArriba(4))
        estado.ZonaBajoCursor = 4;
}

void DetectaJdorYCar(int x, int y) {
    estado.AsientoBajoCursor = 0;
    estado.CartaBajoCursor = 0;
    for (Integer asiento = 1; asiento <= 4; ++asiento) {
        const Integer cartas = estado.NumCartas(asiento, estado.SerieActual);
        if (cartas == 0 || !EnLaFranja(asiento, x, y, cartas))
            continue;
        estado.AsientoBajoCursor = asiento;
        estado.CartaBajoCursor = 0;
        for (Integer lugar = 1; lugar <= cartas; ++lugar) {
            if (EnLaCarta(asiento, lugar, cartas, x, y))
                estado.CartaBajoCursor = lugar;
        }
    }
}

void HallaFilyCol(int x, int y) {
    estado.FilaReparto =
        FilaDePaso(y - estado.ReparteY, estado.AltoMiniCarta + kMasFila, estado.FilasReparto);
    estado.ColumnaReparto = FilaDePaso(x - estado.ReparteX, kPasoColumna, estado.CartasImagen / 4);
}

bool CartaLegal() {
    const FilaJuego& juego = JuegoEnMesa();
    return juego.carta_legal == nullptr || juego.carta_legal(estado.CartaBajoCursor);
}

void RefrescaPuntero() {
    CalculaPuntero(vista.puntero_x, vista.puntero_y);
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
    if (estado.ArrastraReparto)
        DevuelveAlReparto();
    if (estado.ArrastraCarta)
        SueltaArrastrada();
}

void Form_Click() {
    DetectaZonaCartas(estado.RatonX, estado.RatonY);
    if (estado.BotonRaton == kBotonDerecho && (estado.EsperandoJugada || !estado.PartidaEnCurso) &&
        JuegoEnMesa().menu_ordenar) {
        const Integer zona = estado.ZonaBajoCursor;
        const bool ofrece =
            zona != 0 && estado.ManoEnCurso && estado.CartasJugador(zona) == kVisibles;
        PonOpciones(ofrece);
        MuestraOpciones();
    }
    if (estado.ZonaBajoCursor == 0)
        estado.ModoOrdenar = false;
}

bool TeclaActiva(int tecla) {
    constexpr int kEsc = 27, kq = 'q', kQ = 'Q', kControlC = 3;
    if (tecla == kEsc || tecla == kq || tecla == kQ) {
        plataforma().Minimiza();
        return false;
    }
    return tecla != kControlC;
}
