#include "games/sieteymedia/sieteymedia_console.h"

#include "games/sieteymedia/sieteymedia.h"
#include "games/sieteymedia/sieteymedia_cards.h"
#include "games/sieteymedia/sieteymedia_decision.h"
#include "games/sieteymedia/sieteymedia_statistics.h"
#include "table/printed_page.h"

const ListaDeProcedimientos& ProcedimientosDeSiete() {
    static const ListaDeProcedimientos kLista{
        {"DecideSiete", Llama(&DecideSiete)},
        {"ManoSieteYMedia", Llama(&ManoSieteYMedia)},
        {"DestapaSerie", Llama(&DestapaSerie)},
        {"CambiaCuatro", Llama(&CambiaCuatro)},
        {"EstadisSiete", Llama(&EnHojaSuelta<EstadisSiete>)},
    };
    return kLista;
}
