#pragma once
// The list of fields of the block that the games with a bank share.

#include "core/state_fields.h"
#include "games/common/series_state.h"

template <MismoQue<EstadoSeries> E, class V>
void RecorreCampos(E& bloque, V&& visita) {
    CAMPO(ManoBlanda);
    CAMPO(ManoDura);

    CAMPO(PuedeAsegurar);
    CAMPO(PuedeAbrir);
    CAMPO(PuedeDoblar);
    CAMPO(PuedeCambiarCuatro);

    CAMPO(OrdenPedir);
    CAMPO(OrdenServido);
    CAMPO(OrdenDoblar);
    CAMPO(OrdenSeguro);
    CAMPO(OrdenAbrir);

    CAMPO(ConsejoSeguro);
    CAMPO(ConsejoAbrir);
    CAMPO(ConsejoDoblar);
    CAMPO(ConsejoServido);
    CAMPO(ConsejoDestapar);
    CAMPO(ConservaCuatro);
    CAMPO(ApuestaFuerte);

    CAMPO(NuevaBanca);
    CAMPO(CambiaBanca);
}
