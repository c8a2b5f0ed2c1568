#include "games/trick/trick_turn.h"

#include "core/game_state.h"
#include "core/random.h"
#include "core/session_state.h"
#include "games/common/card_turn.h"
#include "games/common/trick_state.h"
#include "games/trick/card_rules.h"
#include "games/trick/exchange.h"
#include "games/trick/trick_choice.h"
#include "games/trick/trick_rules.h"
#include "table/controls.h"
#include "table/hand_order.h"
#include "table/layout.h"
#include "table/messages.h"
#include "table/seat_drawing.h"
#include "table/table_input.h"
#include "table/waiting.h"

namespace {

constexpr int kSerie = 1;

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
    AbreEleccion(asiento);
    if (!EsManual(asiento) && bazas.CartaCambio != 0)
        CambiaTriunfo();
    EligeParaJugar();
    if (!EsManual(asiento))
        return;
    RefrescaPuntero();
    if (const int tip = ReglasEnMesa().sugerencia(); tip != 0)
        MostrarSugerencia(tip);
}

// What the card says of the suits that the seat has no longer, once followers are bound.
void AnotaFallos(Integer asiento, Integer palo) {
    if (!bazas.Arrastre || palo == bazas.PaloSalida)
        return;
    bazas.FallaPalo(bazas.PaloSalida, asiento) = true;
    if (palo != estado.PaloTriunfo)
        bazas.FallaPalo(estado.PaloTriunfo, asiento) = true;
}

void AnotaCarta(Integer asiento, Integer lugar, Carta carta) {
    bazas.CartaEnMesa(asiento, 1) = carta.palo;
    bazas.CartaEnMesa(asiento, 2) = carta.valor;
    bazas.JugadaBaza(estado.CartasEnBaza) = lugar;
    if (bazas.PaloSalida == kSinCarta)
        bazas.PaloSalida = carta.palo;
    else
        AnotaFallos(asiento, carta.palo);
}

// The chosen card leaves the hand for the seat's place on the table.
void JuegaCarta(Integer asiento) {
    const Carta carta = CartaElegidaDe(asiento);
    const Punto centro = LugarCentro(asiento);
    JuegaElegida(asiento, {centro.x, centro.y, OrientacionDe(asiento)});
    AnotaCarta(asiento, estado.CartaElegida, carta);
}

} // namespace

bool TurnoDeBaza() {
    PasaAlSiguiente();
    const Integer asiento = estado.JugadorActual;
    if (!AnunciaTurno())
        return false;
    MiraCambio();
    PreparaEleccion(asiento);
    const bool elegida = EsperaEleccion(asiento, EligeParaJugar);
    CierraEleccion();
    if (!elegida)
        return false;
    JuegaCarta(asiento);
    return true;
}
