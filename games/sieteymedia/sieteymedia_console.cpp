#include "games/sieteymedia/sieteymedia_console.h"

#include "games/sieteymedia/sieteymedia.h"
#include "games/sieteymedia/sieteymedia_cards.h"
#include "games/sieteymedia/sieteymedia_decision.h"

const ListaDeProcedimientos& ProcedimientosDeSiete() {
    static const ListaDeProcedimientos kLista{
        {"DecideSiete", Llama(&DecideSiete)},
        {"ManoSieteYMedia", Llama(&ManoSieteYMedia)},
        {"DestapaSerie", Llama(&DestapaSerie)},
        {"CambiaCuatro", Llama(&CambiaCuatro)},
    };
    return kLista;
}
