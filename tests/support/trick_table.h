#pragma once
// A table without a screen on which a test plays: the platform, a clean state, a stacked deck.

#include <string>
#include <vector>

#include "platform/headless/headless_platform.h"
#include "tests/support/trick_hands.h"

namespace prueba {

// Takes the platform into use for its lifetime. Every wait goes on by itself unless `platform.siempre_continua` is
// switched off, no event is left over, the draws after those that a test queues come from one seed.
class MesaDeTrick {
public:
    MesaDeTrick(Integer juego, Integer jugadores);
    ~MesaDeTrick();
    MesaDeTrick(const MesaDeTrick&) = delete;
    MesaDeTrick& operator=(const MesaDeTrick&) = delete;

    PlataformaSinPantalla plataforma;
    std::vector<std::string> traza; // the calls of table operations since the last Escucha

    // Records the calls whose name is one of these.
    void Escucha(const std::vector<std::string>& nombres);

    // What the last box said, and how many boxes there were.
    std::string TextoMensaje() const;
};

// The next shuffle puts these cards at the top of the deck, in order, and the others behind them.
void ApilaBaraja(const std::vector<Carta>& primeras);

// Calls with this name in the list.
int Cuantas(const std::vector<std::string>& traza, const std::string& nombre);

} // namespace prueba
