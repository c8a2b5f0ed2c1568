#include "games/trick/trick_turn.h"

#include "core/game_state.h"
#include "core/random.h"
#include "core/session_state.h"
#include "games/common/trick_state.h"
#include "games/trick/card_rules.h"
#include "games/trick/exchange.h"
#include "games/trick/trick_choice.h"
#include "games/trick/trick_rules.h"
#include "table/button_column.h"
#include "table/controls.h"
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

bool EsManual(Integer asiento) {
    return estado.ControlJugador(asiento) == kManual;
}

// A seat with no cards is passed over and counts for nothing.
void PasaAlSiguiente() {
    int pasos = 0;
    do {
        SiguienteAsiento(estado.JugadorActual);
        ++pasos;
    } while (pasos < 4 && estado.NumCartas(estado.JugadorActual, kSerie) == 0);
}

// The seat shows that its turn has come. False when the match was left.
[[nodiscard]] bool AnunciaTurno() {
    estado.CursorTabla = 0;
    CambiarCursor(Control::Mesa, 0, Puntero::Flecha);
    PaseDeEventos(Pase::DePaso);
    if (!PartidaSigue())
        return false;
    Pausa(400);
    ++estado.CartasEnBaza;
    ResaltarAsiento();
    estado.AzarTurno = AzarDeTurno();
    return true;
}

// An automatic seat always exchanges; a manual one may, at the pile.
void PreparaEleccion(Integer asiento) {
    const bool manual = EsManual(asiento);
    DejaDeOrdenar();
    estado.JugadaHecha = false;
    estado.EligeCarta = manual;
    HabilitaBoton(kBotonTutor, manual);
    if (!manual && bazas.CartaCambio != 0)
        CambiaTriunfo();
    ReglasEnMesa().elige();
    if (!manual)
        return;
    RefrescaPuntero();
    if (const int tip = ReglasEnMesa().sugerencia(); tip != 0)
        MostrarSugerencia(tip);
}

// The seat's card stands in CartaElegida. False when the match was left.
[[nodiscard]] bool EsperaEleccion(Integer asiento) {
    const bool espera = EsManual(asiento) || estado.PausaEntreJugadas;
    if (espera && !EsperaContinuar())
        return false;
    if (!estado.JugadaHecha)
        EligeParaJugar(); // the hand may have changed during the wait
    return true;
}

void CierraEleccion() {
    estado.EligeCarta = false;
    DejaDeOrdenar();
    HabilitaBoton(kBotonTutor, false);
}

// What the card says of the suits that the seat has no longer, once followers are bound.
void AnotaFallos(Integer asiento, Integer palo) {
    if (!bazas.Arrastre || palo == bazas.PaloSalida)
        return;
    bazas.FallaPalo(bazas.PaloSalida, asiento) = true;
    if (palo != estado.PaloTriunfo)
        bazas.FallaPalo(estado.PaloTriunfo, asiento) = true;
}

void AnotaCarta(Integer asiento, Integer lugar, Integer palo, Integer valor) {
    bazas.CartaEnMesa(asiento, 1) = palo;
    bazas.CartaEnMesa(asiento, 2) = valor;
    bazas.JugadaBaza(estado.CartasEnBaza) = lugar;
    if (bazas.PaloSalida == kSinCarta)
        bazas.PaloSalida = palo;
    else
        AnotaFallos(asiento, palo);
}

void EnsenaElegida(Integer asiento, Integer lugar) {
    estado.Mano(asiento, kSerie, lugar, kAltura) = kLevantada;
    estado.Mano(asiento, kSerie, lugar, kCara) = kDescubierta;
    RedibujarAsiento(asiento);
    Pausa(500);
}

void SacaDeLaMano(Integer asiento, Integer lugar) {
    for (int campo = 0; campo <= kTapada; ++campo)
        estado.Mano(asiento, kSerie, lugar, campo) = 0;
    CompactarMano(asiento);
    --estado.NumCartas(asiento, kSerie);
    RedibujarAsiento(asiento);
}

// The chosen card leaves the hand for the seat's place on the table.
void JuegaCarta(Integer asiento) {
    const Integer lugar = estado.CartaElegida;
    const Integer palo = estado.Mano(asiento, kSerie, lugar, kPalo);
    const Integer valor = estado.Mano(asiento, kSerie, lugar, kValor);
    EnsenaElegida(asiento, lugar);
    ColocarCarta(asiento, lugar, estado.NumCartas(asiento, kSerie));
    const Punto desde{estado.CartaX, estado.CartaY};
    const Punto hasta = LugarCentro(asiento);
    SacaDeLaMano(asiento, lugar);
    MueveCarta({palo, valor}, {desde.x, desde.y, OrientacionDe(asiento)},
               {hasta.x, hasta.y, OrientacionDe(asiento)});
    AnotaCarta(asiento, lugar, palo, valor);
}

} // namespace

bool TurnoDeBaza() {
    PasaAlSiguiente();
    const Integer asiento = estado.JugadorActual;
    if (!AnunciaTurno())
        return false;
    MiraCambio();
    PreparaEleccion(asiento);
    const bool elegida = EsperaEleccion(asiento);
    CierraEleccion();
    if (!elegida)
        return false;
    JuegaCarta(asiento);
    return true;
}
