#pragma once
// The list of fields of the exact search's block.

#include "core/state_fields.h"
#include "games/trick/search_state.h"

template <MismoQue<EstadoBusqueda> E, class V>
void RecorreCampos(E& bloque, V&& visita) {
    CAMPO(ConteoBusqueda);
    CAMPO(TantosBusqueda);
    CAMPO(UltimaClaveUsada);
}
