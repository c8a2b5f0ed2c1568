#pragma once
// The list of fields of the block that the games of laying cards share.

#include "core/state_fields.h"
#include "games/common/trick_state.h"

template <MismoQue<EstadoBazas> E, class V>
void RecorreCampos(E& bloque, V&& visita) {
    CAMPO(TantosBaza);
    CAMPO(PaloSalida);
    CAMPO(Arrastre);
    CAMPO(CartaCambio);
    CAMPO(CartaEnMesa);
    CAMPO(JugadaBaza);

    CAMPO(CartaJugada);
    CAMPO(FallaPalo);
    CAMPO(PaloCantado);
    CAMPO(TantosJugador);
    CAMPO(GanadorDeBaza);
    CAMPO(TantosDeBaza);
    CAMPO(RegistroBazas);

    CAMPO(TuteEnMano);
    CAMPO(HayCante);
    CAMPO(PaloCantable);
    CAMPO(MapaMano);
    CAMPO(LugarCarta);
    CAMPO(JugadorCante);
    CAMPO(TuteCantado);

    CAMPO(CartasJugables);
    CAMPO(NumJugables);
    CAMPO(CartaBusqueda);
    CAMPO(BusquedaActiva);
}
