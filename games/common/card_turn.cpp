#include "games/common/card_turn.h"

#include "core/session_state.h"
#include "table/announcements.h"
#include "table/button_column.h"
#include "table/deck.h"
#include "table/flight.h"
#include "table/hand_order.h"
#include "table/layout.h"
#include "table/messages.h"
#include "table/seat_drawing.h"
#include "table/table_input.h"
#include "table/waiting.h"

namespace {

constexpr int kSerie = 1;

void EnsenaElegida(Integer asiento) {
    estado.Mano(asiento, kSerie, estado.CartaElegida, kAltura) = kLevantada;
    estado.Mano(asiento, kSerie, estado.CartaElegida, kCara) = kDescubierta;
    RedibujarAsiento(asiento);
    Pausa(500);
}

void SacaDeLaMano(Integer asiento) {
    for (int campo = 0; campo <= kTapada; ++campo)
        estado.Mano(asiento, kSerie, estado.CartaElegida, campo) = 0;
    CompactarMano(asiento);
    --estado.NumCartas(asiento, kSerie);
    RedibujarAsiento(asiento);
}

} // namespace

bool EsManual(Integer asiento) {
    return estado.ControlJugador(asiento) == kManual;
}

void AbreEleccion(Integer asiento) {
    DejaDeOrdenar();
    estado.JugadaHecha = false;
    estado.EligeCarta = EsManual(asiento);
    HabilitaBoton(kBotonTutor, EsManual(asiento));
}

bool EsperaEleccion(Integer asiento, void (*elige)()) {
    if (!EsManual(asiento) && !estado.PausaEntreJugadas)
        return true;
    if (!EsperaContinuar())
        return false;
    if (!estado.JugadaHecha)
        elige();
    return true;
}

void CierraEleccion() {
    estado.EligeCarta = false;
    DejaDeOrdenar();
    if (PartidaSigue()) // of a match that was left the pointer keeps its shape
        RefrescaPuntero();
    HabilitaBoton(kBotonTutor, false);
}

Carta CartaElegidaDe(Integer asiento) {
    return {estado.Mano(asiento, kSerie, estado.CartaElegida, kPalo),
            estado.Mano(asiento, kSerie, estado.CartaElegida, kValor)};
}

void JuegaElegida(Integer asiento, const Sitio& hasta) {
    const Carta carta = CartaElegidaDe(asiento);
    EnsenaElegida(asiento);
    ColocarCarta(asiento, estado.CartaElegida, estado.NumCartas(asiento, kSerie));
    const Sitio desde{estado.CartaX, estado.CartaY, OrientacionDe(asiento)};
    SacaDeLaMano(asiento);
    MueveCarta(carta, desde, hasta);
    ApagaNombre();
    DiDe(asiento, "juega " + ConArticulo(carta));
}
