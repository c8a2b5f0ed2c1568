#include "table/hand_order.h"

#include <algorithm>
#include <array>

#include "core/game_state.h"
#include "core/numeric.h"
#include "table/controls.h"
#include "table/deck.h"
#include "table/game_row.h"
#include "table/hit_tests.h"
#include "table/layout.h"
#include "table/manual_spread.h"
#include "table/messages.h"
#include "table/notice.h"
#include "table/seat_drawing.h"
#include "table/sounds.h"
#include "table/table_view.h"

namespace {

constexpr int kAnchoMover = 26, kAltoMover = 36;

// Where the middle of the small card stands, to find the place under it.
int mover_x = 0, mover_y = 0;

struct Banda {
    int x1, x2, y1, y2;
};

// The band of a seat in which the middle of the small card is held.
Banda BandaDe(int asiento) {
    const auto arriba = [&](int d) { return estado.MesaArriba(asiento) + d; };
    const auto abajo = [&](int d) { return estado.MesaAbajo(asiento) - d; };
    const auto izquierda = [&](int d) { return estado.MesaIzquierda(asiento) + d; };
    const auto derecha = [&](int d) { return estado.MesaDerecha(asiento) - d; };
    switch (asiento) {
    case 1:
        return {15, derecha(31), arriba(39), abajo(11)};
    case 2:
        return {izquierda(18), derecha(14), 35, abajo(29)};
    case 3:
        return {izquierda(35), estado.AnchoMesa - 35, arriba(37), abajo(12)};
    default:
        return {izquierda(18), derecha(14), arriba(56), abajo(9)};
    }
}

using Campos = std::array<Integer, 6>;

Campos LeeCampos(Integer asiento, int lugar) {
    Campos campos{};
    for (int campo = 0; campo <= 5; ++campo) {
        campos[static_cast<std::size_t>(campo)] =
            estado.Mano(asiento, estado.SerieActual, lugar, campo);
    }
    return campos;
}

void PonCampos(Integer asiento, int lugar, const Campos& campos) {
    for (int campo = 0; campo <= 5; ++campo) {
        estado.Mano(asiento, estado.SerieActual, lugar, campo) =
            campos[static_cast<std::size_t>(campo)];
    }
}

void LlevaCarta(Integer asiento, int desde, int hasta) {
    const Campos movida = LeeCampos(asiento, desde);
    const Integer cartas = estado.NumCartas(asiento, estado.SerieActual);
    PonCampos(asiento, desde, {});
    CompactarMano(asiento);
    for (int lugar = cartas; lugar > hasta; --lugar)
        PonCampos(asiento, lugar, LeeCampos(asiento, lugar - 1));
    PonCampos(asiento, hasta, movida);
}

void TrasReordenar(Integer asiento) {
    const FilaJuego& juego = JuegoEnMesa();
    if (asiento == estado.JugadorActual && juego.entrada.tras_reordenar != nullptr)
        juego.entrada.tras_reordenar();
}

void RedibujaActivos() {
    for (int asiento = 1; asiento <= 4; ++asiento) {
        if (estado.EstadoJugador(asiento) == kActivado)
            RedibujarAsiento(asiento);
    }
}

void PintaEnMover(Integer palo, Integer valor) {
    if (plataforma().HayPantalla()) {
        plataforma()
            .LienzoDe(Control::Pic_Mover, 0)
            .MiniCarta(0, 0, kAnchoMover, kAltoMover,
                       {.palo = palo, .valor = valor, .cara = kDescubierta, .orientacion = 1});
    }
}

} // namespace

void PonMover(Integer palo, Integer valor, int x, int y) {
    Plataforma& p = plataforma();
    mover_x = x + kAnchoMover / 2;
    mover_y = y + kAltoMover / 2;
    p.Coloca(Control::Pic_Mover, 0, {x, y, kAnchoMover, kAltoMover});
    if (!p.EstaVisible(Control::Pic_Mover, 0))
        p.Muestra(Control::Pic_Mover, 0, true);
    PintaEnMover(palo, valor);
}

void PintaMover() {
    if (!plataforma().EstaVisible(Control::Pic_Mover, 0))
        return;
    if (estado.ArrastraReparto) {
        const Carta carta = LaCartaColgada();
        PintaEnMover(carta.palo, carta.valor);
    } else if (estado.ArrastraCarta) {
        const Campos carta = LeeCampos(EnteroDe(vista.asiento_arrastrado), estado.CartaMovida);
        PintaEnMover(carta[kPalo], carta[kValor]);
    }
}

void TomaParaOrdenar(Integer asiento, Integer lugar) {
    vista.asiento_arrastrado = asiento;
    estado.ArrastraCarta = true;
    estado.CartaMovida = lugar;
    RedibujarAsiento(asiento);
    Sonido(1, sonido::kDespega);
}

void MueveArrastrada(int x, int y) {
    const Integer asiento = EnteroDe(vista.asiento_arrastrado);
    const Banda banda = BandaDe(asiento);
    const int lugar = estado.CartaMovida;
    PonMover(estado.Mano(asiento, estado.SerieActual, lugar, kPalo),
             estado.Mano(asiento, estado.SerieActual, lugar, kValor),
             std::clamp(x, banda.x1, banda.x2) - kAnchoMover / 2,
             std::clamp(y, banda.y1, banda.y2) - kAltoMover / 2);
}

void SueltaArrastrada() {
    const Integer asiento = EnteroDe(vista.asiento_arrastrado);
    Oculta(Control::Pic_Mover);
    DetectaJdorYCar(mover_x, mover_y);
    // Off the cards counts as before the first: a lower target moves one place up.
    int destino = estado.CartaBajoCursor;
    if (destino < estado.CartaMovida)
        ++destino;
    if (destino != estado.CartaMovida)
        LlevaCarta(asiento, estado.CartaMovida, destino);
    estado.ArrastraCarta = false;
    CompactarMano(asiento);
    RedibujaActivos();
    TrasReordenar(asiento);
    Sonido(0, sonido::kPosa);
}

void MueveEnLaMano(Integer asiento, int desde, int hasta) {
    LlevaCarta(asiento, desde, hasta);
    CompactarMano(asiento);
    RedibujarAsiento(asiento);
    TrasReordenar(asiento);
    Sonido(0, sonido::kPosa);
}

void AbandonaArrastre() {
    if (!estado.ArrastraCarta)
        return;
    estado.ArrastraCarta = false;
    Oculta(Control::Pic_Mover);
    RedibujarAsiento(vista.asiento_arrastrado);
}

void DejaDeOrdenar() {
    AbandonaArrastre();
    PonModoOrdenar(false);
}

void PonModoOrdenar(bool activo) {
    if (estado.ModoOrdenar == activo)
        return;
    estado.ModoOrdenar = activo;
    RefrescaAviso();
}
