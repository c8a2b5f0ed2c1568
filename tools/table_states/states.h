#pragma once
// The states in which the table can be seen, to be looked at by a person: each lays a new table out and draws
// through the table operations on the platform in use.

#include <vector>

#include "platform/canvas.h"

struct Estampa {
    const char* nombre = "";
    void (*prepara)(int vez) = nullptr; // vez from 1; the table is new
    int veces = 1;                      // so many states
    // What of the table is kept of each, the states then stand in one picture. Empty: all of it, a picture each.
    Rectangulo (*trozo)(int) = nullptr;
};

// All that the tool can paint.
const std::vector<Estampa>& Estampas();
