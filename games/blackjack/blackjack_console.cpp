#include "games/blackjack/blackjack_console.h"

#include "games/blackjack/blackjack.h"
#include "games/blackjack/blackjack_decision.h"

const ListaDeProcedimientos& ProcedimientosDeBlackJack() {
    static const ListaDeProcedimientos kLista{
        {"DecideBlackJack", Llama(&DecideBlackJack)},
        {"ManoBlackJack", Llama(&ManoBlackJack)},
    };
    return kLista;
}
