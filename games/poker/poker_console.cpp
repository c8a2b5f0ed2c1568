#include "games/poker/poker_console.h"

#include "games/poker/bet_choice.h"
#include "games/poker/combinations.h"
#include "games/poker/discard_choice.h"
#include "games/poker/hand_layout.h"
#include "games/poker/hand_order.h"
#include "games/poker/hand_reading.h"
#include "games/poker/hand_tables.h"
#include "games/poker/hand_text.h"
#include "games/poker/hand_value.h"
#include "games/poker/opening_law.h"
#include "games/poker/poker_driver.h"
#include "games/poker/poker_statistics.h"
#include "games/poker/rivals.h"
#include "table/printed_page.h"

const ListaDeProcedimientos& ProcedimientosDePoker() {
    static const ListaDeProcedimientos kLista{
        {"CargaTablasPoker", Llama(&CargaTablasPoker)},
        {"AnalizaJugada", Llama(&AnalizaJugada)},
        {"OrdenaJugada", Llama(&OrdenaJugada)},
        {"ValorJugada", Llama(&ValorJugada)},
        {"TextoJugada", Llama(&TextoJugada)},
        {"EsFigura", Llama(&EsFigura)},
        {"Combinaciones", Llama(&Combinaciones)},
        {"TieneComodin", Llama(&TieneComodin)},
        {"OrdenaCartasSeat", Llama(&OrdenaCartasSeat)},
        {"CalculaApuesta", Llama(&CalculaApuesta)},
        {"ActitudMesa", Llama(&ActitudMesa)},
        {"LeyAperturaCumplida", Llama(&LeyAperturaCumplida)},
        {"RivalesSinResto", Llama(&RivalesSinResto)},
        {"DecideDescarte", Llama(&DecideDescarte)},
        {"ManoPoker", Llama(&ManoPoker)},
        {"EstadisPoker", Llama(&EnHojaSuelta<EstadisPoker>)},
    };
    return kLista;
}
