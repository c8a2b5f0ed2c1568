#pragma once
// The list of fields of the score report.

#include "core/state_fields.h"
#include "reports/marcador_state.h"

template <MismoQue<EstadoMarcador> E, class V>
void RecorreCampos(E& bloque, V&& visita) {
    CAMPO(BotonActivo);
    CAMPO(PrimeraLinea);
    CAMPO(UltimaLinea);
    CAMPO(LineasPagina);
    CAMPO(PrimeraUltimaPagina);
}
