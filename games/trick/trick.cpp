#include "games/trick/trick.h"

#include "core/game_state.h"
#include "games/common/trick_state.h"
#include "games/trick/card_rules.h"
#include "games/trick/exact_search.h"
#include "games/trick/trick_rules.h"
#include "games/trick/trick_turn.h"
#include "games/trick/trick_view.h"
#include "table/announcements.h"
#include "table/controls.h"
#include "table/seat_drawing.h"

namespace {

constexpr int kSerie = 1;
constexpr int kDiezUltimas = 10;

void BuscaSiConviene() {
    if (!ReglasEnMesa().merece_busqueda(estado.NumCartas(estado.JugadorSalida, kSerie)))
        return;
    CambiarCursor(Control::Mesa, 0, Puntero::RelojArena);
    ExploraBazas();
    CambiarCursor(Control::Mesa, 0, static_cast<Puntero>(estado.CursorTabla));
    bazas.BusquedaActiva = true;
}

void EmpiezaBaza() {
    bazas.Arrastre = bazas.Arrastre || (ReglasEnMesa().obliga && estado.CartasEnMazo == 0);
    bazas.CartaEnMesa.Borra();
    bazas.PaloSalida = kSinCarta;
    bazas.BusquedaActiva = false;
    estado.CartasEnBaza = 0;
    ++estado.NumBaza;
    BuscaSiConviene();
}

void AnotaTantos() {
    const Integer ganador = estado.GanadorBaza;
    bazas.GanadorDeBaza(estado.NumBaza) = ganador;
    bazas.TantosJugador(ganador) += bazas.TantosBaza;
    bazas.TantosDeBaza(estado.NumBaza) = bazas.TantosBaza;
}

void AnotaCartas() {
    for (Integer asiento = 1; asiento <= 4; ++asiento) {
        const Integer palo = bazas.CartaEnMesa(asiento, 1);
        const Integer valor = bazas.CartaEnMesa(asiento, 2);
        if (palo == kSinCarta)
            continue;
        bazas.RegistroBazas(asiento + kFilaPalo, estado.NumBaza) = palo;
        bazas.RegistroBazas(asiento + kFilaValor, estado.NumBaza) = valor;
        bazas.RegistroBazas(asiento + kFilaGana, estado.NumBaza) =
            asiento == estado.GanadorBaza ? 1 : 0;
        bazas.CartaJugada(palo, valor) = asiento;
    }
}

void CierraBaza() {
    ResuelveBaza();
    DiDe(estado.GanadorBaza, "gana la baza");
    if (ReglasEnMesa().diez_ultimas && estado.NumCartas(estado.GanadorBaza, kSerie) == 0)
        bazas.TantosBaza += kDiezUltimas;
    EnciendeBaza(estado.GanadorBaza);
    ParpadeaBaza();
    AnotaTantos();
    RecogeMesa();
    ApagaNombre();
    AnotaCartas();
    for (Integer asiento = 1; asiento <= 4; ++asiento) {
        if (estado.EstadoJugador(asiento) == kActivado)
            RedibujarAsiento(asiento);
    }
}

} // namespace

bool JuegaBaza() {
    EmpiezaBaza();
    while (estado.CartasEnBaza < estado.NumJugadores) {
        if (!TurnoDeBaza())
            return false;
    }
    CierraBaza();
    return true;
}
