#pragma once
// What is done to values that came from a file, so that the state is one in which the games can be played
// whatever the file held. Each reads and writes `estado`.

// JuegoActivo a game, VelocidadJuego 0 to 100.
void ReparaGeneral();

// Everything that a game's file holds: seats, rules, who leads, results and money, and the bank's values in
// Black Jack. Counts NumJugadores and takes PasoSentido from SentidoJuego. JuegoActivo that is no game:
// std::logic_error.
void ReparaJuego();
