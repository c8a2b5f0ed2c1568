#pragma once
// The results of the exact search of a trick: two tables that the search fills and the choice of a card
// reads. A block of its own, because it is large and only these two need it.

#include "core/tabla.h"

// A key holds four hand positions, 0 for a player not taken into account.
inline constexpr int kBaseClave = 13;
inline constexpr int kUltimaClave = kBaseClave * kBaseClave * kBaseClave * kBaseClave - 1;

// The key of the positions played by the first to the fourth player of the trick.
constexpr int ClaveBusqueda(int primera, int segunda = 0, int tercera = 0, int cuarta = 0) {
    return primera + kBaseClave * (segunda + kBaseClave * (tercera + kBaseClave * cuarta));
}

struct EstadoBusqueda {
    Tabla<Long, kUltimaClave> ConteoBusqueda; // key: sequences in which its last player gains most
    Tabla<Long, kUltimaClave>
        TantosBusqueda; // key: points of its last player, all sequences together
    // Highest key that a search may have left: the next one wipes no more than that.
    Integer UltimaClaveUsada = kUltimaClave;
    friend bool operator==(const EstadoBusqueda&, const EstadoBusqueda&) = default;
};

extern EstadoBusqueda busqueda;
