#include "games/trick/trick_console.h"

#include "games/trick/card_rules.h"
#include "games/trick/choice_brisca.h"
#include "games/trick/choice_tute.h"
#include "games/trick/exact_search.h"
#include "games/trick/exchange.h"
#include "games/trick/hand_end.h"
#include "games/trick/stock.h"
#include "games/trick/trick_driver.h"
#include "games/trick/trick_statistics.h"
#include "table/printed_page.h"

const ListaDeProcedimientos& ProcedimientosDeBazas() {
    static const ListaDeProcedimientos kLista{
        {"ManoTute", Llama(&ManoTute)},
        {"ManoBrisca", Llama(&ManoBrisca)},
        {"EligeCartaTute", Llama(&EligeCartaTute)},
        {"EligeCartaBrisca", Llama(&EligeCartaBrisca)},
        {"ExploraBazas", Llama(&ExploraBazas)},
        {"ValoraExploracion", Llama(&ValoraExploracion)},
        {"ResuelveBaza", Llama(&ResuelveBaza)},
        {"RobaCartas", Llama(&RobaCartas)},
        {"CambiaTriunfo", Llama(&CambiaTriunfo)},
        {"FinalMano", LlamaPasos(&FinalMano)},
        {"EstadisTB", Llama(&EnHojaSuelta<EstadisTB>)},
    };
    return kLista;
}
