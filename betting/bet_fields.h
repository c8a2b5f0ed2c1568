#pragma once
// The list of fields of the block that the games with money share.

#include "betting/bet_state.h"
#include "core/state_fields.h"

template <MismoQue<EstadoApuestas> E, class V>
void RecorreCampos(E& bloque, V&& visita) {
    CAMPO(Fichas);
    CAMPO(ValorFicha);
    CAMPO(Apuesta);
    CAMPO(RestoPrevio);
    CAMPO(ApuestaPrevia);

    CAMPO(FaseApuesta);
    CAMPO(ModoApuesta);

    CAMPO(DesgloseFichas);

    CAMPO(MaximaApuesta);
    CAMPO(ApuestaEnCurso);
    CAMPO(ApuestaPropuesta);

    CAMPO(FichasPuestas);
    CAMPO(NumFichasPuestas);

    CAMPO(TextoBoton);

    CAMPO(PuestoJugador);
    CAMPO(Ganadores);
    CAMPO(PremioJugador);
}
