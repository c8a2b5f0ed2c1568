#include "games/game_table.h"

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
    for (const FilaJuego* fila : FilasDeJuegos()) {
        if (fila->id == juego) {
            return fila;
        }
    }
    return nullptr;
}

const FilaJuego& JuegoEnMesa() {
    const FilaJuego* fila = FilaDe(estado.JuegoActivo);
    if (fila == nullptr) {
        throw std::logic_error("JuegoActivo no es ningún juego");
    }
    return *fila;
}
