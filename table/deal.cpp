#include "table/deal.h"

#include "core/game_state.h"
#include "core/numeric.h"
#include "core/session_state.h"
#include "table/announcements.h"
#include "table/deck.h"
#include "table/flight.h"
#include "table/game_row.h"
#include "table/layout.h"
#include "table/manual_deal.h"
#include "table/messages.h"
#include "table/pile.h"
#include "table/seat_drawing.h"
#include "table/table_view.h"
#include "table/waiting.h"

namespace {

constexpr Integer kTapadaSi = 1;

bool Recibe(Integer asiento) {
    const FilaJuego& juego = JuegoEnMesa();
    return juego.reparto.recibe != nullptr ? juego.reparto.recibe(asiento, false)
                                           : estado.EstadoJugador(asiento) == kActivado;
}

Integer CartasDe(Integer asiento) {
    const FilaJuego& juego = JuegoEnMesa();
    return juego.reparto.cartas_de != nullptr ? juego.reparto.cartas_de(asiento)
                                              : estado.CartasReparto;
}

// The deck's next card; the pile loses it.
Carta SacaDelMazo() {
    const Carta carta{estado.Baraja(estado.PosicionMazo, 1), estado.Baraja(estado.PosicionMazo, 2)};
    --estado.CartasEnMazo;
    ++estado.PosicionMazo;
    DibujarMazo(estado.MazoX, estado.MazoY, estado.CartasEnMazo);
    return carta;
}

// From the pile to place lugar of a hand laid out for cartas cards.
void VuelaDelMazo(Integer asiento, int lugar, int cartas) {
    const Integer serie = estado.SerieActual;
    const Integer cara = estado.Mano(asiento, serie, lugar, kCara);
    const Integer orientacion = OrientacionDe(asiento);
    ColocarCarta(asiento, lugar, cartas);
    MueveCarta(
        {estado.Mano(asiento, serie, lugar, kPalo), estado.Mano(asiento, serie, lugar, kValor)},
        {estado.MazoX, estado.MazoY, 1, kDorso}, {estado.CartaX, estado.CartaY, orientacion, cara},
        estado.Mano(asiento, serie, lugar, kTapada) == kTapadaSi);
}

void RepartaUna(Integer asiento, int lugar) {
    const FilaJuego& juego = JuegoEnMesa();
    if (juego.baraja.seguida && estado.CartasEnMazo == 0)
        Barajar();
    const Carta carta = SacaDelMazo();
    PonCarta(asiento, 1, lugar, carta, estado.CartasJugador(asiento));
    if (juego.reparto.tapa)
        estado.Mano(asiento, 1, lugar, kTapada) = kTapadaSi;
    ++estado.NumCartas(asiento, 1);
    vista.abanico(asiento) = CartasDe(asiento);
    VuelaDelMazo(asiento, lugar, vista.abanico(asiento));
}

[[nodiscard]] bool ReparteMonton(Integer asiento, int pasada) {
    for (int i = 0; i < estado.PasoReparto; ++i) {
        RepartaUna(asiento, pasada + i);
        PaseDeEventos(Pase::DePaso);
        if (!PartidaSigue())
            return false;
        Pausa(40);
    }
    return true;
}

[[nodiscard]] bool RepartePasada(int pasada) {
    Integer asiento = estado.JugadorMano;
    do {
        if (pasada > CartasDe(asiento))
            return true;
        if (Recibe(asiento) && !ReparteMonton(asiento, pasada))
            return false;
        SiguienteAsiento(asiento);
    } while (asiento != estado.JugadorMano);
    return true;
}

// Who paints the table anew in the middle of a deal puts each card where it was dealt to.
class ManosAbiertas {
public:
    ManosAbiertas() = default;
    ~ManosAbiertas() { vista.abanico = {}; }
    ManosAbiertas(const ManosAbiertas&) = delete;
    ManosAbiertas& operator=(const ManosAbiertas&) = delete;
};

[[nodiscard]] bool ReparteSolo() {
    const OrdenFirme orden;
    const ManosAbiertas abiertas;
    if (!JuegoEnMesa().baraja.seguida || estado.CartasEnMazo == 0)
        Barajar();
    for (int pasada = 1; pasada <= estado.CartasReparto; pasada += estado.PasoReparto) {
        if (!RepartePasada(pasada))
            return false;
    }
    return true;
}

// Covered cards that somebody wants one by one are told too, as covered; of the others that come unseen their number
// has been said.
void DiLasTomadas(Integer asiento, int primero, int n) {
    const std::string vistas = Enumera(ALaVista(asiento, primero, n));
    const bool tapada =
        n > 0 && estado.Mano(asiento, estado.SerieActual, primero, kTapada) == kTapadaSi;
    if (!vistas.empty())
        DiDe(asiento, "toma " + vistas + (tapada ? ", tapada" : ""));
    else if (tapada)
        DiDe(asiento, "toma una carta tapada");
}

void DiLasRepartidas() {
    for (Integer asiento = 1; asiento <= 4; ++asiento) {
        const std::string vistas = Enumera(ALaVista(asiento, 1, estado.NumCartas(asiento, 1)));
        if (!vistas.empty())
            DiDe(asiento, "recibe " + vistas);
    }
}

int PrimerHueco(Integer asiento) {
    int lugar = 1;
    while (estado.Mano(asiento, estado.SerieActual, lugar, kPalo) != kSinCarta)
        ++lugar;
    return lugar;
}

} // namespace

bool Repartir() {
    if (estado.SistemaReparto == kRepartoManual)
        return RepartirAMano();
    const bool repartidas = ReparteSolo();
    if (repartidas)
        DiLasRepartidas();
    return repartidas;
}

void RobarCartas(Integer asiento, Integer n, Integer tapada) {
    const FilaJuego& juego = JuegoEnMesa();
    if (n > estado.CartasEnMazo) {
        if (juego.baraja.rellena != nullptr)
            juego.baraja.rellena(asiento, n);
        DibujarMazo(estado.MazoX, estado.MazoY, estado.CartasEnMazo);
    }
    const Integer serie = estado.SerieActual;
    const int primero = PrimerHueco(asiento);
    for (int i = 0; i < n; ++i) {
        const int lugar = primero + i;
        const Carta carta = SacaDelMazo();
        const bool a_la_vista = (juego.reparto.tapa && tapada == 0) || juego.asientos.banca != 0;
        PonCarta(asiento, serie, lugar, carta,
                 a_la_vista ? kDescubierta : estado.CartasJugador(asiento));
        estado.Mano(asiento, serie, lugar, kTapada) = tapada;
        ++estado.NumCartas(asiento, serie);
        VuelaDelMazo(asiento, lugar, estado.NumCartas(asiento, serie));
        RedibujarAsiento(asiento);
        Pausa(60);
    }
    DiLasTomadas(asiento, primero, n);
}
