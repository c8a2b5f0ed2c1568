#pragma once
// The events that the window has reported and the game has not taken yet, in their order.

#include <deque>
#include <functional>
#include <optional>

#include "platform/platform.h"

class ColaEventos {
public:
    // Moves of the pointer over one control that nobody has taken run together into the last one, and so do
    // sizes of the table and wishes to close it.
    void Pon(const Evento& evento);
    std::optional<Evento> Toma();
    bool Vacia() const { return cola_.empty(); }

    // The clock by which presses are told; nothing while nobody has set one.
    std::function<Milisegundos()> reloj;
    std::optional<Milisegundos> Ahora() const;

private:
    bool SeFunde(const Evento& evento);

    std::deque<Evento> cola_;
};

// The character number of a key as the game counts keys, or nothing: auto-repeat, Tab, arrows, the modifiers
// alone and function keys are no keys of the game.
class QKeyEvent;
std::optional<int> CaracterDe(const QKeyEvent& tecla);
