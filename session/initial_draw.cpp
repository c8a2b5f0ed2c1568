#include "session/initial_draw.h"

#include <stdexcept>

#include "core/game_state.h"
#include "core/random.h"
#include "core/session_state.h"
#include "table/flight.h"
#include "table/game_row.h"
#include "table/layout.h"
#include "table/messages.h"
#include "table/pile.h"
#include "table/seat_drawing.h"
#include "table/table_view.h"
#include "table/waiting.h"

namespace {

constexpr int kUltimoValor = 13;

void PonEnLugarLibre(Integer palo, Integer valor) {
    int lugar = AzarEntre(estado.CartasNormales);
    while (estado.Baraja(lugar, 1) != kSinCarta)
        lugar = AzarEntre(estado.CartasNormales);
    estado.Baraja(lugar, 1) = palo;
    estado.Baraja(lugar, 2) = valor;
}

// One deck's cards at random places: the draw needs no more, whatever the game deals from.
void MezclaParaSorteo() {
    estado.Baraja.Borra();
    SiembraDelReloj(plataforma().Reloj());
    for (Integer valor = 1; valor <= kUltimoValor; ++valor) {
        for (Integer palo = kOros; palo <= kBastos && estado.ValorEnBaraja(valor); ++palo)
            PonEnLugarLibre(palo, valor);
    }
}

// The pile has already lost the card.
void DaCarta(Integer asiento, int lugar, int cartas_en_mazo) {
    const Integer palo = estado.Baraja(lugar, 1);
    const Integer valor = estado.Baraja(lugar, 2);
    const Punto mazo = CentroDelMazo();
    DibujarMazo(mazo.x, mazo.y, cartas_en_mazo);
    ColocarCarta(asiento, 1, 1);
    MueveCarta({palo, valor}, {mazo.x, mazo.y},
               {estado.CartaX, estado.CartaY, OrientacionDe(asiento)});
    vista.sorteada(asiento) = {
        .palo = palo, .valor = valor, .cara = kDescubierta, .orientacion = OrientacionDe(asiento)};
}

void Anuncia(Integer asiento) {
    const SorteoDeJuego& sorteo = JuegoEnMesa().sorteo;
    Mensaje("Comienza la Partida",
            sorteo.primera + estado.SaltoLinea + sorteo.antes + estado.NombreJugador(asiento) + ".",
            2, 1);
}

// Cards from a fresh mix until an As falls. With seats out of play all four may lie at places that are passed
// over: salio then stays false. The answer is false when the match was left. When nobody takes a card no mix
// will ever end the draw.
[[nodiscard]] bool SacaCartas(bool& salio) {
    const Punto mazo = CentroDelMazo();
    int cartas_en_mazo = estado.CartasNormales;
    DibujarMazo(mazo.x, mazo.y, cartas_en_mazo);
    MezclaParaSorteo();
    estado.JugadorActual = 4;
    for (int lugar = 1; lugar <= estado.CartasNormales && !salio; ++lugar) {
        SiguienteAsiento(estado.JugadorActual);
        if (estado.EstadoJugador(estado.JugadorActual) != kActivado)
            continue;
        DaCarta(estado.JugadorActual, lugar, --cartas_en_mazo);
        PaseDeEventos(Pase::DePaso);
        if (!PartidaSigue())
            return false;
        salio = estado.Baraja(lugar, 2) == kAs;
        if (!salio)
            Pausa(120);
    }
    if (cartas_en_mazo == estado.CartasNormales)
        throw std::logic_error("no hay ningún jugador activo que entre en el sorteo");
    return true;
}

} // namespace

bool SorteoInicial() {
    const OrdenFirme orden;
    vista.mazo_centrado = true;
    MostrarNombres();
    bool salio = false;
    while (!salio) {
        if (!SacaCartas(salio))
            return false;
    }
    const bool da_banca = JuegoEnMesa().sorteo.da_banca;
    (da_banca ? estado.JugadorBanca : estado.JugadorMano) = estado.JugadorActual;
    if (da_banca)
        ColocarMazo();
    Anuncia(estado.JugadorActual);
    return PartidaSigue();
}
