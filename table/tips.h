#pragma once
// The tips of the suggestion panel.

#include <vector>

struct Consejo {
    int indice;        // 0..50; the indices that are not listed are empty
    int tema;          // help topic
    const char* texto; // 145 characters
};

// All of them, by indice.
const std::vector<Consejo>& Consejos();
