#include "games/trick/stock.h"

#include "core/game_state.h"
#include "games/trick/trick_view.h"
#include "table/announcements.h"
#include "table/card_names.h"
#include "table/deck.h"
#include "table/flight.h"
#include "table/messages.h"
#include "table/seat_drawing.h"
#include "table/sounds.h"

namespace {

constexpr int kSerie = 1;

void DestapaDelMazo() {
    estado.PaloTriunfo = estado.Baraja(estado.PosicionMazo, 1);
    estado.ValorTriunfo = estado.Baraja(estado.PosicionMazo, 2);
    ++estado.PosicionMazo;
    --estado.CartasEnMazo;
    Sonido(1, sonido::kDespega);
    PintaMazo();
    Pausa(500);
}

// Who was dealt the last card: the seat before JugadorMano, or the last one served by hand.
Integer AsientoDelUltimoNaipe() {
    if (estado.SistemaReparto == kRepartoManual)
        return estado.UltimoRecibe;
    Integer asiento = estado.JugadorMano;
    do
        AsientoAnterior(asiento);
    while (estado.EstadoJugador(asiento) != kActivado && asiento != estado.JugadorMano);
    return asiento;
}

void EnsenaUltimoNaipe() {
    const Integer asiento = AsientoDelUltimoNaipe();
    const Integer lugar = estado.NumCartas(asiento, kSerie);
    estado.PaloTriunfo = estado.Mano(asiento, kSerie, lugar, kPalo);
    estado.ValorTriunfo = estado.Mano(asiento, kSerie, lugar, kValor);
    ParpadeaCartas(asiento, {lugar});
}

// The turned card becomes the deck's next one again.
void DevuelveTriunfoAlMazo() {
    estado.Baraja(estado.PosicionMazo, 1) = estado.PaloTriunfo;
    estado.Baraja(estado.PosicionMazo, 2) = estado.ValorTriunfo;
    estado.CartasEnMazo = 1;
}

// The next card of the deck into the hand, in flight from where it lies.
void TomaCarta(Integer asiento, Punto desde, Integer orientacion, Integer cara) {
    const Integer lugar = ++estado.NumCartas(asiento, kSerie);
    const Integer palo = estado.Baraja(estado.PosicionMazo, 1);
    const Integer valor = estado.Baraja(estado.PosicionMazo, 2);
    PonCarta(asiento, kSerie, lugar, {palo, valor}, estado.CartasJugador(asiento));
    ++estado.PosicionMazo;
    --estado.CartasEnMazo;
    PintaMazo();
    ColocarCarta(asiento, lugar, lugar);
    MueveCarta(
        {palo, valor}, {desde.x, desde.y, orientacion, cara},
        {estado.CartaX, estado.CartaY, OrientacionDe(asiento), estado.CartasJugador(asiento)});
    RedibujarAsiento(asiento);
    // The turned trump goes where everybody sees it; who plays with covered cards takes another one unseen.
    if (cara == kDescubierta || estado.CartasJugador(asiento) == kDescubierta)
        DiDe(asiento, "roba " + ConArticulo({palo, valor}));
}

void Roba(Integer asiento) {
    if (estado.CartasEnMazo > 0) {
        TomaCarta(asiento, {estado.MazoX, estado.MazoY}, 1, kDorso);
        return;
    }
    DejaTriunfoSinMazo(false);
    DevuelveTriunfoAlMazo();
    TomaCarta(asiento, LugarTriunfo(), kOrientacionTriunfo, kDescubierta);
}

void RobanTodos() {
    DejaTriunfoSinMazo(true);
    Integer asiento = estado.GanadorBaza;
    bool primero = true;
    for (int paso = 0; paso < 4; ++paso, SiguienteAsiento(asiento)) {
        if (estado.EstadoJugador(asiento) != kActivado)
            continue;
        if (!primero)
            Pausa(80);
        primero = false;
        Roba(asiento);
    }
    DejaTriunfoSinMazo(false);
}

} // namespace

void DescubreTriunfo() {
    if (estado.CartasEnMazo > 0)
        DestapaDelMazo();
    else
        EnsenaUltimoNaipe();
    Di("Triunfo: " + NombreDeCarta({estado.PaloTriunfo, estado.ValorTriunfo}));
}

void RobaCartas() {
    if (estado.CartasEnMazo > 0)
        RobanTodos();
    estado.JugadorSalida = estado.GanadorBaza;
    estado.JugadorActual = estado.GanadorBaza;
    AsientoAnterior(estado.JugadorActual);
}
