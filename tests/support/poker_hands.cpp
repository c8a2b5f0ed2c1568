#include "tests/support/poker_hands.h"

#include <algorithm>
#include <functional>

#include "core/numeric.h"
#include "games/poker/hand_tally.h"
#include "table/deck.h"

namespace prueba {

BarajaDePoker::BarajaDePoker(Integer cartas_baraja, Integer comodines_juego) {
    UsaPlataforma(plataforma_);
    estado = {};
    poker = {};
    estado.JuegoActivo = kPoker;
    estado.CartasBaraja = cartas_baraja;
    estado.ComodinesJuego = comodines_juego;
    ConstruirBaraja();
    for (Integer palo = kOros; palo <= kBastos; ++palo) {
        for (Integer valor = 1; valor <= kValorRey; ++valor) {
            if (estado.ValorEnBaraja(valor))
                cartas_.emplace_back(palo, valor);
        }
    }
    for (int comodin = 0; comodin < estado.ComodinesBaraja; ++comodin)
        cartas_.emplace_back(kComodin, EnteroDe(kComodinUno + comodin));
    estado.NumCartas(1, 1) = kCartasMano;
}

void BarajaDePoker::Pon(const CartasElegidas& cuales) const {
    for (int lugar = 1; lugar <= kCartasMano; ++lugar) {
        const Carta& carta =
            cartas_[static_cast<std::size_t>(cuales[static_cast<std::size_t>(lugar - 1)])];
        estado.Mano(1, 1, lugar, kPalo) = carta.palo;
        estado.Mano(1, 1, lugar, kValor) = carta.valor;
    }
}

int BarajaDePoker::ManosComo(const CartasElegidas& cuales) const {
    constexpr int kOrdenesDePalos = 24;
    std::array<unsigned, 4> palos{};
    for (const int cual : cuales) {
        const Carta& carta = cartas_[static_cast<std::size_t>(cual)];
        if (carta.palo != kComodin)
            palos[static_cast<std::size_t>(carta.palo - 1)] |= 1U << carta.valor;
    }
    if (!std::ranges::is_sorted(palos, std::ranges::greater{}))
        return 0;
    // Suits with the same ranks may change places and give no other hand.
    int manos = kOrdenesDePalos, iguales = 1;
    for (std::size_t i = 1; i < palos.size(); ++i) {
        iguales = palos[i] == palos[i - 1] ? iguales + 1 : 1;
        manos /= iguales;
    }
    return manos;
}

ClaseDeMano LaClase() {
    constexpr int kPrimerComodin = 90;
    ClaseDeMano clase{};
    for (int lugar = 1; lugar <= kCartasMano; ++lugar) {
        const Integer palo = estado.Mano(1, 1, lugar, kPalo),
                      valor = estado.Mano(1, 1, lugar, kValor);
        clase[static_cast<std::size_t>(palo - 1)] |=
            1U << (palo == kComodin ? valor - kPrimerComodin : valor);
    }
    std::ranges::sort(clase.begin(), clase.end() - 1);
    return clase;
}

std::string ManoEscrita() {
    std::string mano;
    for (int lugar = 1; lugar <= kCartasMano; ++lugar) {
        mano += std::to_string(estado.Mano(1, 1, lugar, kPalo)) + "." +
                std::to_string(estado.Mano(1, 1, lugar, kValor)) + " ";
    }
    return mano;
}

} // namespace prueba
