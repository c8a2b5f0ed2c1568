#include "games/cinquillo/cinquillo_console.h"

#include "games/cinquillo/cinquillo.h"
#include "games/cinquillo/cinquillo_choice.h"
#include "games/cinquillo/cinquillo_statistics.h"
#include "table/printed_page.h"

const ListaDeProcedimientos& ProcedimientosDeCinquillo() {
    static const ListaDeProcedimientos kLista{
        {"ManoCinquillo", Llama(&ManoCinquillo)},
        {"EligeCartaCinquillo", Llama(&EligeCartaCinquillo)},
        {"EstadisC", Llama(&EnHojaSuelta<EstadisC>)},
    };
    return kLista;
}
