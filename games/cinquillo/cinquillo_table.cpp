// The table of the cards laid.

#include "games/cinquillo/cinquillo_table.h"

#include <algorithm>

#include "core/game_state.h"
#include "core/numeric.h"
#include "games/cinquillo/cinquillo_choice.h"
#include "games/common/trick_state.h"
#include "platform/platform.h"

namespace {

constexpr int kMargen = 4;         // felt left free before the seats' zones
constexpr int kRealce = 20;        // raised cards of the side seats stand so far into the table
constexpr int kAnchoColumna = 106; // at most
constexpr int kRangos = 10;

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
    for (Integer palo = kOros; palo <= kBastos; ++palo) {
        for (Integer valor = 12; valor >= 1; --valor) {
            if (bazas.CartaJugada(palo, valor) == 0)
                continue;
            const Punto lugar = LugarTendido(palo, valor);
            mesa.Carta(lugar.x, lugar.y,
                       {.palo = palo, .valor = valor, .cara = kDescubierta, .orientacion = 1});
        }
    }
    plataforma().Repinta();
}
