#include "tests/support/poker_hands.h"

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

void BarajaDePoker::Pon(const std::array<int, 5>& cuales) const {
    for (int lugar = 1; lugar <= kCartasMano; ++lugar) {
        const Carta& carta =
            cartas_[static_cast<std::size_t>(cuales[static_cast<std::size_t>(lugar - 1)])];
        estado.Mano(1, 1, lugar, kPalo) = carta.palo;
        estado.Mano(1, 1, lugar, kValor) = carta.valor;
    }
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
