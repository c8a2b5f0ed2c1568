#include "games/sieteymedia/sieteymedia_cards.h"

#include <algorithm>
#include <vector>

#include "core/game_state.h"
#include "core/numeric.h"
#include "core/random.h"
#include "games/common/series.h"
#include "games/sieteymedia/sieteymedia_decision.h"
#include "table/announcements.h"
#include "table/deck.h"
#include "table/flight.h"
#include "table/layout.h"
#include "table/messages.h"
#include "table/pile.h"
#include "table/seat_drawing.h"
#include "table/sounds.h"

namespace {

constexpr Integer kSerieDelCuatro = 1; // a Four is changed before anything else is played
constexpr int kLugarDelCuatro = 1;
constexpr Integer kCuatro = 4;

std::vector<Carta> NoVistas(Integer asiento, Integer serie) {
    std::vector<Carta> cartas;
    for (int lugar = 1; lugar <= estado.NumCartas(asiento, serie); ++lugar) {
        const auto campo = [&](int cual) { return estado.Mano(asiento, serie, lugar, cual); };
        if (campo(kCara) != kDescubierta || campo(kTapada) != 0)
            cartas.push_back({campo(kPalo), campo(kValor)});
    }
    return cartas;
}

void DestapaMano(Integer asiento, Integer serie) {
    if (estado.NumCartas(asiento, serie) == 0)
        return;
    const std::vector<Carta> nuevas = NoVistas(asiento, serie);
    for (int lugar = 1; lugar <= estado.NumCartas(asiento, serie); ++lugar) {
        estado.Mano(asiento, serie, lugar, kCara) = kDescubierta;
        estado.Mano(asiento, serie, lugar, kTapada) = 0;
    }
    RedibujarAsiento(asiento);
    if (!nuevas.empty())
        DiDe(asiento, "descubre " + Enumera(nuevas));
    Pausa(220);
}

// The place of the deck that the number of chance falls on. The first two cards to come and the last one are spared
// while there are enough of them; with less the place is kept inside what is still to deal.
int LugarDelCambio(double azar) {
    const int lugar = Redondea((estado.CartasEnMazo - 4) * azar + estado.PosicionMazo + 2);
    return std::clamp<int>(lugar, estado.PosicionMazo,
                           estado.PosicionMazo + estado.CartasEnMazo - 1);
}

bool QuedaMazo() {
    return estado.CartasEnMazo > 0;
}

// Where chance can fall lie nothing but Fours: changing would never end.
bool SoloSalenCuatros() {
    const auto [primero, ultimo] = std::minmax({LugarDelCambio(0), LugarDelCambio(1)});
    for (int lugar = primero; lugar <= ultimo; ++lugar) {
        if (estado.Baraja(lugar, 2) != kCuatro)
            return false;
    }
    return true;
}

Sitio EnLaMano(Integer asiento) {
    ColocarCarta(asiento, kLugarDelCuatro, estado.NumCartas(asiento, kSerieDelCuatro));
    return {estado.CartaX, estado.CartaY, OrientacionDe(asiento)};
}

Sitio EnElMazo() {
    return {estado.MazoX, estado.MazoY};
}

// The card leaves the hand, which is bare meanwhile, for the pile; the other one comes.
void Vuelan(Integer asiento, Carta cuatro, Carta nueva) {
    const Sitio mano = EnLaMano(asiento);
    const Integer cartas = estado.NumCartas(asiento, kSerieDelCuatro);
    estado.NumCartas(asiento, kSerieDelCuatro) = 0;
    RedibujarAsiento(asiento);
    MueveCarta(cuatro, mano, EnElMazo());
    DibujarMazo(estado.MazoX, estado.MazoY, estado.CartasEnMazo);
    MueveCarta(nueva, EnElMazo(), mano);
    estado.NumCartas(asiento, kSerieDelCuatro) = cartas;
}

void ParpadeaElCuatro(Integer asiento) {
    Integer& altura = estado.Mano(asiento, kSerieDelCuatro, kLugarDelCuatro, kAltura);
    for (int vez = 0; vez < 3; ++vez) {
        altura = kLevantada;
        RedibujarAsiento(asiento);
        Pausa(180);
        Sonido(1, sonido::kConsejo);
        Pausa(420);
        altura = kEnLinea;
        RedibujarAsiento(asiento);
    }
}

} // namespace

void DestapaSerie(Integer asiento, Integer serie) {
    if (asiento != 0)
        return DestapaMano(asiento, serie);
    for (Integer cada = 1; cada <= 4; ++cada)
        DestapaMano(cada, serie);
}

bool OfreceCambiarCuatro(Integer asiento) {
    return estado.SeriesJugador(asiento) == 1 && estado.NumCartas(asiento, kSerieDelCuatro) == 1 &&
           estado.Mano(asiento, kSerieDelCuatro, kLugarDelCuatro, kValor) == kCuatro && QuedaMazo();
}

void CambiaCuatro() {
    if (!QuedaMazo())
        return;
    const Integer asiento = estado.JugadorActual;
    const Carta cuatro{estado.Mano(asiento, kSerieDelCuatro, kLugarDelCuatro, kPalo), kCuatro};
    const int lugar = LugarDelCambio(Azar());
    const Carta nueva{estado.Baraja(lugar, 1), estado.Baraja(lugar, 2)};
    estado.Baraja(lugar, 1) = cuatro.palo;
    estado.Baraja(lugar, 2) = cuatro.valor;
    Vuelan(asiento, cuatro, nueva);
    PonCarta(asiento, kSerieDelCuatro, kLugarDelCuatro, nueva, kDescubierta);
    DiDe(asiento, "cambia " + ConArticulo(cuatro) + " por " + ConArticulo(nueva));
    RedibujarAsiento(asiento);
    series.PuedeCambiarCuatro = nueva.valor == kCuatro;
    DecideSiete();
}

void CambiaCuatroSolo() {
    while (series.PuedeCambiarCuatro && !series.ConservaCuatro && !SoloSalenCuatros()) {
        DestapaSerie(estado.JugadorActual, kSerieDelCuatro);
        ParpadeaElCuatro(estado.JugadorActual);
        CambiaCuatro();
    }
}
