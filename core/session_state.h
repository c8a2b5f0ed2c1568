#pragma once
// What the player has asked for beyond the hand under way, and whether the match goes on.

// A new match, another game or the exit is never run inside the wait in which it was chosen: the handler
// leaves a request, every wait answers false from then on, the driver returns, and the session loop starts
// what was asked for.
enum class Peticion { Ninguna, NuevaPartida, NuevaSesion, Salir };

struct Sesion {
    Peticion peticion = Peticion::Ninguna;
    bool sin_eventos = false;      // a script came to its end inside a wait
    bool cierre_pendiente = false; // the window was closed where the exit button is disabled
    int estado_salida = 0;         // the program's exit status
    bool fallo_contado = false;    // a failed write has been told in this run
    // The result of game JuegosJugados stands in the records: from then until the next hand start. What is
    // saved counts that game as finished.
    bool mano_apuntada = false;
    // Rules that were changed while a hand was on: the direction and the deck follow at the next hand's start.
    bool sentido_pendiente = false;
    bool baraja_pendiente = false;
    // Deals and draws under way, which walk the seats and the deck: neither may change below them.
    int orden_firme = 0;
};

extern Sesion sesion;

// Held by whoever deals or draws.
class OrdenFirme {
public:
    OrdenFirme() { ++sesion.orden_firme; }
    ~OrdenFirme() { --sesion.orden_firme; }
    OrdenFirme(const OrdenFirme&) = delete;
    OrdenFirme& operator=(const OrdenFirme&) = delete;
};

// True while the driver under way may go on: a match is on and nothing else has been asked for.
[[nodiscard]] bool PartidaSigue();
