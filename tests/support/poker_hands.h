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

// Takes a platform of its own into use for its lifetime. CartasBaraja 1..6, ComodinesJuego 1..3.
class BarajaDePoker {
public:
    BarajaDePoker(Integer cartas_baraja, Integer comodines_juego);
    BarajaDePoker(const BarajaDePoker&) = delete;
    BarajaDePoker& operator=(const BarajaDePoker&) = delete;

    // Suit by suit from the As, the jokers last.
    const std::vector<Carta>& Cartas() const { return cartas_; }
    // Lays the hand of these cards, by index, before seat 1.
    void Pon(const std::array<int, 5>& cuales) const;

private:
    PlataformaSinPantalla plataforma_;
    std::vector<Carta> cartas_;
};

// visita() with every hand of the deck laid before seat 1, or with one in so many.
template <class V>
void CadaMano(const BarajaDePoker& baraja, int una_de_cada, V&& visita) {
    const int n = static_cast<int>(baraja.Cartas().size());
    long long orden = 0;
    for (int a = 0; a < n; ++a) {
        for (int b = a + 1; b < n; ++b) {
            for (int c = b + 1; c < n; ++c) {
                for (int d = c + 1; d < n; ++d) {
                    for (int e = d + 1; e < n; ++e) {
                        if (orden++ % una_de_cada != 0)
                            continue;
                        baraja.Pon({a, b, c, d, e});
                        visita();
                    }
                }
            }
        }
    }
}

// The hand before seat 1, for a message: "1.12 2.7 ...".
std::string ManoEscrita();

} // namespace prueba
