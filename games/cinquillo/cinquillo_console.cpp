#include "games/cinquillo/cinquillo_console.h"

#include "games/cinquillo/cinquillo.h"
#include "games/cinquillo/cinquillo_choice.h"

const ListaDeProcedimientos& ProcedimientosDeCinquillo() {
    static const ListaDeProcedimientos kLista{
        {"ManoCinquillo", Llama(&ManoCinquillo)},
        {"EligeCartaCinquillo", Llama(&EligeCartaCinquillo)},
    };
    return kLista;
}
