#pragma once
// The list of fields of Póker's block and of its records.

#include "core/state_fields.h"
#include "games/poker/poker_state.h"

template <MismoQue<RegistroJugada> E, class V>
void RecorreCampos(E& bloque, V&& visita) {
    CAMPO(Activa);
    CAMPO(Cartas);
    CAMPO(PaloJugada);
    CAMPO(Calidad);
    CAMPO(ValorComodin);
}

template <MismoQue<RegistroDescarte> E, class V>
void RecorreCampos(E& bloque, V&& visita) {
    CAMPO(JugadaMantenida);
    CAMPO(CalidadMantenida);
    CAMPO(CasosDescarte);
    CAMPO(CasosResultado);
    CAMPO(PorcResultado);
}

template <MismoQue<EstadoPoker> E, class V>
void RecorreCampos(E& bloque, V&& visita) {
    CAMPO(ProyEscalera3);
    CAMPO(ProyEscalColor3);
    CAMPO(ProyFiguras);
    CAMPO(ProyEscalera);
    CAMPO(ProyColor);
    CAMPO(ProyEscalColor);
    CAMPO(CartaMayor);
    CAMPO(Pareja);
    CAMPO(DoblePareja);
    CAMPO(Trio);
    CAMPO(Figuras);
    CAMPO(Escalera);
    CAMPO(Color);
    CAMPO(Full);
    CAMPO(Poker);
    CAMPO(EscaleraColor);
    CAMPO(Repoker);
    CAMPO(NombreJugada);

    CAMPO(TotalCombinaciones);
    CAMPO(CuentaJugada);
    CAMPO(PorcJugada);
    CAMPO(TablaDescartes);

    CAMPO(Jugadas);
    CAMPO(MejorJugada);
    CAMPO(JugadaOrdenada);
    CAMPO(CartasClave);

    CAMPO(TopeApuesta);
    CAMPO(JugadaCreidaMin);
    CAMPO(JugadaCreidaMax);

    CAMPO(JugadaObjetivo);
    CAMPO(MarcaDescarte);

    CAMPO(DescartesHechos);
    CAMPO(UltimoSubidor);
    CAMPO(TurnosRonda);
    CAMPO(ManoNula);
    CAMPO(ApuestaColocada);
}
