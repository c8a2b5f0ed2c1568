#pragma once
// The state that the two games with a bank share, Black Jack and Siete y media. Plain data, like the block of
// core/game_state.h, and reached the same way: `series.ManoBlanda`.

#include "core/tabla.h"

struct EstadoSeries {
    // What PuntosSerie has found, in Black Jack: an As counted eleven, or none did.
    bool ManoBlanda = false;
    bool ManoDura = false;

    // What the rules offer the seat on turn, on the serie in play, now.
    bool PuedeAsegurar = false;
    bool PuedeAbrir = false;
    bool PuedeDoblar = false;
    bool PuedeCambiarCuatro = false;

    // What the person has ordered for this step; none: the seat plays it by itself.
    bool OrdenPedir = false;
    bool OrdenServido = false;
    bool OrdenDoblar = false;
    bool OrdenSeguro = false;
    bool OrdenAbrir = false;

    // What the seat would do by itself; none of them: it asks for a card.
    bool ConsejoSeguro = false;
    bool ConsejoAbrir = false;
    bool ConsejoDoblar = false;
    bool ConsejoServido = false;
    bool ConsejoDestapar = false;
    bool ConservaCuatro = false;
    bool ApuestaFuerte = false;

    // Who sang first, and whether the bank passes to that seat at the next hand.
    Integer NuevaBanca = 0;
    bool CambiaBanca = false;

    friend bool operator==(const EstadoSeries&, const EstadoSeries&) = default;
};

extern EstadoSeries series;
