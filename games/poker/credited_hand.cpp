#include "games/poker/credited_hand.h"

#include "games/poker/poker_state.h"

namespace {

using Categoria = Integer EstadoPoker::*;

struct Creida {
    Categoria minima, maxima; // nullptr: nothing is believed
};

// By cards thrown away.
constexpr std::array<Creida, 6> kCreidas{{
    {&EstadoPoker::Figuras, &EstadoPoker::Figuras},
    {&EstadoPoker::ProyEscalera, &EstadoPoker::Escalera},
    {&EstadoPoker::Trio, &EstadoPoker::Poker},
    {&EstadoPoker::Pareja, &EstadoPoker::Trio},
    {&EstadoPoker::CartaMayor, &EstadoPoker::Pareja},
    {nullptr, nullptr},
}};

Integer NumeroDe(Categoria categoria) {
    return categoria == nullptr ? Integer{0} : poker.*categoria;
}

} // namespace

void AnotaJugadaCreida(Integer asiento, Integer descartadas) {
    if (descartadas < 0 || descartadas >= static_cast<Integer>(kCreidas.size()))
        LanzaIndiceFuera(1, descartadas, static_cast<int>(kCreidas.size()) - 1);
    const Creida& creida = kCreidas[static_cast<std::size_t>(descartadas)];
    poker.JugadaCreidaMin(asiento) = NumeroDe(creida.minima);
    poker.JugadaCreidaMax(asiento) = NumeroDe(creida.maxima);
}
