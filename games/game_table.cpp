#include "games/game_table.h"

#include <array>
#include <stdexcept>

#include "core/game_state.h"
#include "games/blackjack/blackjack_row.h"
#include "games/cinquillo/cinquillo_row.h"
#include "games/poker/poker_row.h"
#include "games/sieteymedia/sieteymedia_row.h"
#include "games/trick/trick_row.h"

const std::vector<const FilaJuego*>& FilasDeJuegos() {
    static const std::vector<const FilaJuego*> kFilas{&FilaPoker(),       &FilaBlackJack(),
                                                      &FilaTute(),        &FilaBrisca(),
                                                      &FilaSieteYMedia(), &FilaCinquillo()};
    return kFilas;
}

const FilaJuego* FilaDe(Integer juego) {
    constexpr int kUltimo = 99;
    // Asked for at every step of every game.
    static const auto kPorNumero = [] {
        std::array<const FilaJuego*, kUltimo + 1> filas{};
        for (const FilaJuego* fila : FilasDeJuegos())
            filas.at(static_cast<std::size_t>(fila->id)) = fila;
        return filas;
    }();
    return juego < 0 || juego > kUltimo ? nullptr : kPorNumero[static_cast<std::size_t>(juego)];
}

const FilaJuego& JuegoEnMesa() {
    const FilaJuego* fila = FilaDe(estado.JuegoActivo);
    if (fila == nullptr)
        throw std::logic_error("JuegoActivo no es ningún juego");
    return *fila;
}
