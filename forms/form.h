#pragma once
// What the forms have in common: the view that shows the open one, and the way to its controls by their names.

#include <string_view>

#include "platform/platform.h"

inline constexpr int kAyudaNormas = 2200, kAyudaPersonal = 2210;

// A form from the outside, for the line console and for tests: what a window would do to it, by the names of its
// controls. pulsa, escribe and desliza answer false when the form has no such control; one that is not on show
// does nothing.
struct MandosForma {
    void (*abre)();
    bool (*abierta)();
    // By Pic_BotSalir; false when the form stays open.
    bool (*cierra)();
    // From outside, without a question.
    void (*deja)();
    bool (*pulsa)(std::string_view control, int indice);
    bool (*escribe)(std::string_view control, int indice, std::string_view texto);
    bool (*desliza)(std::string_view control, int indice, int valor);
};

// The handles of a form; nullptr for one that has no logic of its own here.
const MandosForma* MandosDe(Forma forma);
