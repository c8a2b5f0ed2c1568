#pragma once
// What Tute and Brisca do differently at the table, side by side. Everything else is played by the same
// steps.

#include "core/tabla.h"

// The tips that offer the exchange of the turned card.
inline constexpr int kTipCambiaSiete = 42, kTipCambiaBaja = 43;

struct ReglasBazas {
    // The choice of a card for JugadorActual.
    void (*elige)() = nullptr;
    // The exact search runs for a leader with so many cards.
    bool (*merece_busqueda)(int cartas) = nullptr;
    // The stock still allows the exchange of the trump card, and the rank that takes one without points.
    bool (*hay_cambio)() = nullptr;
    Integer (*baja_del_cambio)() = nullptr;
    // The tip of a manual seat's turn, 0 none.
    int (*sugerencia)() = nullptr;

    bool obliga = false;       // Arrastre: followers are bound once the stock is empty
    bool diez_ultimas = false; // the last trick brings 10 points more
    bool canta = false;        // cantes and Tutes
};

// The rules of the active game. Any but Tute counts as Brisca.
const ReglasBazas& ReglasEnMesa();
