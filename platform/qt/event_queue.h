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
// alone, function keys, and characters with Ctrl, Alt or Meta are none.
class QKeyEvent;
std::optional<int> CaracterDe(const QKeyEvent& tecla);
// What a key that is no character asks of the table: the arrows, alone or two of them with the shift key, and F1 to F9.
// Only the walk repeats while a key is held.
std::optional<Evento> MandoDe(const QKeyEvent& tecla);
