#include "games/game_rows.h"

#include "games/blackjack/blackjack_row.h"
#include "games/cinquillo/cinquillo_row.h"
#include "games/poker/poker_row.h"
#include "games/sieteymedia/sieteymedia_row.h"
#include "games/trick/trick_row.h"

const std::vector<const FilaJuego*>& LosJuegos() {
    static const std::vector<const FilaJuego*> kFilas{&FilaPoker(),       &FilaBlackJack(),
                                                      &FilaTute(),        &FilaBrisca(),
                                                      &FilaSieteYMedia(), &FilaCinquillo()};
    return kFilas;
}
