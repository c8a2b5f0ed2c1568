#pragma once
// A deck of Póker on a table without a screen, and its hands one after the other.

#include <array>
#include <string>
#include <vector>

#include "core/game_state.h"
#include "games/poker/poker_state.h"
#include "platform/headless/headless_platform.h"
#include "tests/support/trick_hands.h"

namespace prueba {

using CartasElegidas = std::array<int, 5>;

// Takes a platform of its own into use for its lifetime. CartasBaraja 1..6, ComodinesJuego 1..3.
class BarajaDePoker {
public:
    BarajaDePoker(Integer cartas_baraja, Integer comodines_juego);
    BarajaDePoker(const BarajaDePoker&) = delete;
    BarajaDePoker& operator=(const BarajaDePoker&) = delete;

    // Suit by suit from the As, the jokers last.
    const std::vector<Carta>& Cartas() const { return cartas_; }
    // Lays the hand of these cards, by index, before seat 1.
    void Pon(const CartasElegidas& cuales) const;
    // How many hands are this one but for the names of their suits, itself with them; 0 when another one stands for all.
    int ManosComo(const CartasElegidas& cuales) const;

private:
    PlataformaSinPantalla plataforma_;
    std::vector<Carta> cartas_;
};

// visita(cards) for each choice of five of the first n.
template <class V>
void CadaEleccion(int n, V&& visita) {
    for (int a = 0; a < n; ++a) {
        for (int b = a + 1; b < n; ++b) {
            for (int c = b + 1; c < n; ++c) {
                for (int d = c + 1; d < n; ++d) {
                    for (int e = d + 1; e < n; ++e)
                        visita(CartasElegidas{a, b, c, d, e});
                }
            }
        }
    }
}

// visita() with every hand of the deck laid before seat 1, or with one in so many.
template <class V>
void CadaMano(const BarajaDePoker& baraja, int una_de_cada, V&& visita) {
    long long orden = 0;
    CadaEleccion(static_cast<int>(baraja.Cartas().size()), [&](const CartasElegidas& cuales) {
        if (orden++ % una_de_cada != 0)
            return;
        baraja.Pon(cuales);
        visita();
    });
}

// visita(how many) with one hand of those that are the same but for the names of their suits, laid before seat 1.
template <class V>
void CadaClase(const BarajaDePoker& baraja, V&& visita) {
    CadaEleccion(static_cast<int>(baraja.Cartas().size()), [&](const CartasElegidas& cuales) {
        const int manos = baraja.ManosComo(cuales);
        if (manos == 0)
            return;
        baraja.Pon(cuales);
        visita(manos);
    });
}

// What a hand before seat 1 is but for the names of its suits: the ranks of the four suits, sorted, and its jokers.
using ClaseDeMano = std::array<unsigned, 5>;
ClaseDeMano LaClase();

// The hand before seat 1, for a message: "1.12 2.7 ...".
std::string ManoEscrita();

} // namespace prueba
