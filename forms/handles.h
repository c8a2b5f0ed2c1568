#pragma once
// A form from the outside.

#include <string_view>

#include "table/printed_page.h"

// For the line console and for tests: what a window would do to the form, by the names of its
// controls. pulsa, escribe and desliza answer false when the form has no such control; one that is not on show
// does nothing.
struct MandosForma {
    void (*abre)() = nullptr;
    bool (*abierta)() = nullptr;
    // By Pic_BotSalir; false when the form stays open.
    bool (*cierra)() = nullptr;
    // From outside, without a question.
    void (*deja)() = nullptr;
    bool (*pulsa)(std::string_view control, int indice) = nullptr;
    bool (*escribe)(std::string_view control, int indice, std::string_view texto) = nullptr;
    bool (*desliza)(std::string_view control, int indice, int valor) = nullptr;
    // A page of a report, from 1, the form open or not; 0: the one on show, or the one it would open at. IndiceFuera for
    // a page that there is not. Empty: the form prints none.
    PaginaImpresa (*pagina)(int numero) = nullptr;
};
