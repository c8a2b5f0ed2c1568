#include "games/trick/exchange.h"

#include "core/game_state.h"
#include "games/common/hand_queries.h"
#include "games/common/trick_state.h"
#include "games/common/trick_values.h"
#include "games/trick/trick_rules.h"
#include "games/trick/trick_view.h"
#include "table/announcements.h"
#include "table/flight.h"
#include "table/layout.h"
#include "table/seat_drawing.h"

namespace {

constexpr int kSerie = 1;

Punto LugarEnMano(Integer asiento, Integer lugar) {
    ColocarCarta(asiento, lugar, estado.NumCartas(asiento, kSerie));
    return {estado.CartaX, estado.CartaY};
}

void VuelaALaMano(Integer palo, Integer valor, Integer asiento, Integer lugar) {
    const Punto desde = LugarTriunfo();
    const Punto hasta = LugarEnMano(asiento, lugar);
    MueveCarta(
        {palo, valor}, {desde.x, desde.y, kOrientacionTriunfo},
        {hasta.x, hasta.y, OrientacionDe(asiento), estado.Mano(asiento, kSerie, lugar, kCara)});
}

void VuelaAlMazo(Integer palo, Integer valor, Integer asiento, Integer lugar) {
    const Punto desde = LugarEnMano(asiento, lugar);
    const Punto hasta = LugarTriunfo();
    MueveCarta({palo, valor}, {desde.x, desde.y, OrientacionDe(asiento)},
               {hasta.x, hasta.y, kOrientacionTriunfo});
}

// The trump card old for new: what the hand and the table hold, and both flights.
void Cambia(Integer asiento, Integer lugar) {
    const Integer palo = estado.PaloTriunfo;
    const Integer vieja = estado.ValorTriunfo;
    const Integer nueva = estado.Mano(asiento, kSerie, lugar, kValor);
    estado.PaloTriunfo = kSinCarta;
    PintaMazo();
    VuelaALaMano(palo, vieja, asiento, lugar);
    estado.Mano(asiento, kSerie, lugar, kValor) = vieja;
    RedibujarAsiento(asiento);
    VuelaAlMazo(palo, nueva, asiento, lugar);
    DiDe(asiento, "cambia " + ConArticulo({palo, nueva}) + " por " + ConArticulo({palo, vieja}));
    estado.PaloTriunfo = palo;
    estado.ValorTriunfo = nueva;
    PintaMazo();
}

} // namespace

void MiraCambio() {
    const ReglasBazas& reglas = ReglasEnMesa();
    bazas.CartaCambio = 0;
    if (!reglas.hay_cambio() || estado.JugadorActual != estado.GanadorBaza)
        return;
    const bool puntua = estado.ValorCarta(estado.ValorTriunfo) > 0;
    const Integer valor = puntua ? kSiete : reglas.baja_del_cambio();
    if (BuscaCarta(estado.JugadorActual, estado.PaloTriunfo, valor))
        bazas.CartaCambio = valor;
}

void CambiaTriunfo() {
    const Integer asiento = estado.JugadorActual;
    if (bazas.CartaCambio == 0 || !BuscaCarta(asiento, estado.PaloTriunfo, bazas.CartaCambio))
        return;
    Cambia(asiento, bazas.LugarCarta);
    bazas.CartaCambio = 0;
    ReglasEnMesa().elige();
}
