#pragma once
// The list of fields of Siete y media's block.

#include "core/state_fields.h"
#include "games/sieteymedia/sieteymedia_state.h"

template <MismoQue<EstadoSiete> E, class V>
void RecorreCampos(E& bloque, V&& visita) {
    CAMPO(VistasValor);
    CAMPO(VistasTotal);
}
