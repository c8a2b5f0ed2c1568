#pragma once
// Input queued ahead for a table without a screen. What an entry hits is decided when it is taken, by the
// controls as they then stand, as a window system does.

#include <deque>
#include <optional>

#include "platform/headless/control_board.h"

class GuionEntrada {
public:
    void RatonMueve(int x, int y);
    void RatonPulsa(int x, int y, int boton);
    void RatonSuelta(int x, int y, int boton);
    // Move, press, release and the click, one after the other.
    void RatonClic(int x, int y, int boton);
    void Tecla(int tecla);
    // A key that is no character; numero of Mando::Funcion.
    void Manda(Mando mando, int numero = 0);
    void PulsaControl(ControlMesa cual);
    // Anything else that a window reports: a new size, the close button, the end of the session.
    void Encola(const Evento& evento);

    bool Vacio() const { return entradas_.empty(); }
    std::size_t Cuantas() const { return entradas_.size(); }
    void Olvida() { *this = {}; }

    // Takes the next entry. Nothing when it hits no one: a hidden control, a button under a mere move.
    std::optional<Evento> Toma(const TableroControles& tablero);

private:
    std::optional<Evento> EventoDeRaton(const Evento& raton, const TableroControles& tablero);
    ControlMesa Blanco(const Evento& raton, const TableroControles& tablero);

    std::deque<Evento> entradas_;
    // From a press to its release, and with its click, the mouse belongs to the control that was pressed.
    ControlMesa pulsado_;
    bool apretado_ = false;
};
