#pragma once
// What Tute and Brisca do differently at the table, side by side. Everything else is played by the same
// steps.

#include "core/tabla.h"

struct ReglasBazas {
    void (*elige)();                     // the choice of a card for JugadorActual
    bool (*merece_busqueda)(int cartas); // the exact search runs for a leader with so many cards
    bool (*hay_cambio)();                // the stock still allows the exchange of the trump card
    Integer (*baja_del_cambio)();        // the rank that takes a trump card without points
    int (*sugerencia)();                 // the tip of a manual seat's turn, 0 none
    bool obliga = false;                 // Arrastre: followers are bound once the stock is empty
    bool diez_ultimas = false;           // the last trick brings 10 points more
    bool canta = false;                  // cantes and Tutes
};

// The rules of the active game. Any but Tute counts as Brisca.
const ReglasBazas& ReglasEnMesa();
