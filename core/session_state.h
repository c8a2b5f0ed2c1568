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
};

extern Sesion sesion;

// True while the driver under way may go on: a match is on and nothing else has been asked for.
[[nodiscard]] bool PartidaSigue();
