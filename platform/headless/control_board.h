#pragma once
// The controls of `mesa` without a screen: where they stand, whether they show, their pointers. It answers
// what the window system of a desktop would: which control lies under a point.

#include <map>
#include <optional>
#include <string>
#include <utility>

#include "platform/platform.h"

// A control with its index, 0 where it comes only once.
struct ControlMesa {
    Control control = Control::Mesa;
    int indice = 0;
    friend auto operator<=>(const ControlMesa&, const ControlMesa&) = default;
};

class TableroControles {
public:
    // The felt and the button column show; everything else is hidden.
    TableroControles();

    void Coloca(ControlMesa cual, const Rectangulo& donde) { mandos_[cual].donde = donde; }
    void Muestra(ControlMesa cual, bool visible) { mandos_[cual].visible = visible; }
    void PonPuntero(ControlMesa cual, Puntero puntero) { mandos_[cual].puntero = puntero; }
    void Nombra(ControlMesa cual, std::string_view nombre) { mandos_[cual].nombre = nombre; }

    // A control that was never spoken of is hidden, without size, with the arrow and without a name. The place
    // is in pixels of the window; nothing is visible on a hidden control.
    Rectangulo LugarDe(ControlMesa cual) const;
    bool EstaVisible(ControlMesa cual) const;
    Puntero PunteroDe(ControlMesa cual) const { return Mando(cual).puntero; }
    std::string NombreDe(ControlMesa cual) const { return Mando(cual).nombre; }

    // A board of another platform becomes as this one: what was placed, shown and pointed at.
    void CopiaEn(Plataforma& otra) const;

    // The topmost control that shows at a point of the window; the felt where there is none.
    ControlMesa BajoPunto(int x, int y) const;

private:
    struct Estado {
        Rectangulo donde;
        bool visible = false;
        Puntero puntero = Puntero::Flecha;
        std::string nombre;
    };
    const Estado& Mando(ControlMesa cual) const;

    std::map<ControlMesa, Estado> mandos_;
};
