#include "games/blackjack/blackjack_console.h"

#include "games/blackjack/blackjack.h"
#include "games/blackjack/blackjack_decision.h"
#include "games/blackjack/blackjack_statistics.h"
#include "table/printed_page.h"

const ListaDeProcedimientos& ProcedimientosDeBlackJack() {
    static const ListaDeProcedimientos kLista{
        {"DecideBlackJack", Llama(&DecideBlackJack)},
        {"ManoBlackJack", Llama(&ManoBlackJack)},
        {"EstadisBj", Llama(&EnHojaSuelta<EstadisBj>)},
    };
    return kLista;
}
