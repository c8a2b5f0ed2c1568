// The table of the cards laid.

#include "games/cinquillo/cinquillo_table.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include "core/game_state.h"
#include "core/numeric.h"
#include "core/text.h"
#include "games/cinquillo/cinquillo_choice.h"
#include "games/common/trick_state.h"
#include "games/common/trick_values.h"
#include "platform/platform.h"
#include "table/table_view.h"

namespace {

constexpr int kMargen = 4;         // felt left free before the seats' zones
constexpr int kRealce = 20;        // raised cards of the side seats stand so far into the table
constexpr int kAnchoColumna = 106; // at most
constexpr int kRangos = 10;
constexpr int kAltoDelIndice = 19; // what must be seen of a card for its number to be whole

struct Rejilla {
    int x, y, columna, fila;
};

Rejilla LaRejilla() {
    const int izquierda = estado.MesaDerecha(1) + kRealce + kMargen;
    const int derecha = estado.MesaIzquierda(3) - kRealce - kMargen;
    const int arriba = estado.MesaAbajo(2) + kMargen;
    const int abajo = estado.MesaArriba(4) - kMargen;
    const int columna = std::min((derecha - izquierda - kAnchoCarta) / 3, kAnchoColumna);
    const int fila = (abajo - arriba - kAltoCarta) / (kRangos - 1);
    return {(izquierda + derecha - 3 * columna - kAnchoCarta) / 2, arriba, columna, fila};
}

// The felt under the laid cards of a suit: round corners that are painted again and again over themselves would
// lose their smoothness.
void LimpiaColumna(Lienzo& mesa, Integer palo) {
    int arriba = 0;
    int abajo = 0;
    for (Integer valor = 12; valor >= 1; --valor) {
        if (bazas.CartaJugada(palo, valor) == 0)
            continue;
        abajo = LugarTendido(palo, valor).y + kAltoCarta;
        arriba = arriba == 0 ? abajo - kAltoCarta : arriba;
    }
    if (abajo > 0)
        mesa.Fieltro({LugarTendido(palo, 1).x, arriba, kAnchoCarta, abajo - arriba});
}

// Where a suit begins, as long as its 5 is not laid. Not before all cards are dealt: they come from the middle.
void PintaSitiosDeLosCincos(Lienzo& mesa) {
    if (!vista.nombres || estado.CartasEnMazo > 0 || estado.RepartoEnCurso)
        return;
    for (Integer palo = kOros; palo <= kBastos; ++palo) {
        if (bazas.CartaJugada(palo, kCinco) != 0)
            continue;
        const Punto lugar = LugarTendido(palo, kCinco);
        const Rectangulo donde{lugar.x, lugar.y, kAnchoCarta, kAltoCarta};
        mesa.Fieltro(donde);
        mesa.Carta(donde.x, donde.y,
                   {.palo = palo, .valor = kCinco, .cara = kDescubierta, .orientacion = 1});
        mesa.Velo(donde);
    }
}

// The rank of a card of which only a narrow strip is to be seen: the number in its corner is higher than that.
void PintaRango(Lienzo& mesa, const Punto& carta, Integer palo, Integer valor) {
    constexpr Color kPapel = 0xE6F5FB;
    constexpr std::array<Color, 5> kTintas{0, 0x064884, 0x2A20B3, 0x944A1D, 0x276028};
    constexpr Fuente kLetra{.alto = 10, .negrita = true, .tope = 13};
    mesa.Caja({carta.x + 5, carta.y + 4, 14, LaRejilla().fila - 4}, kPapel);
    mesa.Texto(carta.x + 12, carta.y + 3, Numero(valor), kLetra,
               kTintas.at(static_cast<std::size_t>(palo)), Alineacion::Centro);
}

// From the Rey down; the last one covers no other.
void PintaColumna(Lienzo& mesa, Integer palo) {
    const bool estrecha = LaRejilla().fila < kAltoDelIndice;
    std::optional<std::pair<Punto, Integer>> encima;
    for (Integer valor = kRey; valor >= 1; --valor) {
        if (bazas.CartaJugada(palo, valor) == 0)
            continue;
        const Punto lugar = LugarTendido(palo, valor);
        mesa.Carta(lugar.x, lugar.y,
                   {.palo = palo, .valor = valor, .cara = kDescubierta, .orientacion = 1});
        if (estrecha && encima)
            PintaRango(mesa, encima->first, palo, encima->second);
        encima = {lugar, valor};
    }
}

bool Tendida(Integer palo, Integer valor) {
    return valor >= 1 && valor <= 12 && bazas.CartaJugada(palo, valor) != 0;
}

// The one after 7 is the Sota.
Integer Vecina(Integer valor, int hacia) {
    const int vecina = valor + hacia;
    return EnteroDe(vecina > 7 && vecina < 10 ? vecina + 2 * hacia : vecina);
}

Objetivo TendidaComoObjetivo(Integer palo, Integer valor) {
    const Punto lugar = LugarTendido(palo, valor);
    const bool tapada = Tendida(palo, Vecina(valor, -1)); // the lower card lies over it
    const bool en_medio = tapada && Tendida(palo, Vecina(valor, 1));
    const int alto = tapada ? LugarTendido(palo, Vecina(valor, -1)).y - lugar.y : kAltoCarta;
    Objetivo carta = CartaEnLaMesa({palo, valor}, 0, {lugar.x, lugar.y, kAnchoCarta, alto});
    carta.estado = en_medio ? "" : "en un extremo";
    return carta;
}

} // namespace

void AgregaTendidas(std::vector<Objetivo>& todos) {
    for (Integer palo = kOros; palo <= kBastos; ++palo) {
        for (Integer valor = 12; valor >= 1; --valor) {
            if (Tendida(palo, valor))
                todos.push_back(TendidaComoObjetivo(palo, valor));
        }
    }
}

Punto LugarTendido(Integer palo, Integer valor) {
    const Rejilla r = LaRejilla();
    return {r.x + (palo - 1) * r.columna, r.y + (kRangos - RangoSeguido(valor)) * r.fila};
}

void PintaTendido() {
    if (!plataforma().HayPantalla())
        return;
    Lienzo& mesa = plataforma().LienzoDe(Control::Mesa, 0);
    for (Integer palo = kOros; palo <= kBastos; ++palo)
        LimpiaColumna(mesa, palo);
    PintaSitiosDeLosCincos(mesa);
    for (Integer palo = kOros; palo <= kBastos; ++palo)
        PintaColumna(mesa, palo);
    plataforma().Repinta();
}
