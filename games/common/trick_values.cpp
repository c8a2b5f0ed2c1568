#include "games/common/trick_values.h"

#include "core/game_state.h"

namespace {

struct ValorDeBaza {
    Integer carta;
    int tantos;
};

// The weakest first.
constexpr ValorDeBaza kDeMenorAMayor[] = {{2, 0},      {4, 0},     {kCinco, 0},   {6, 0},
                                          {kSiete, 0}, {kSota, 2}, {kCaballo, 3}, {kRey, 4},
                                          {kTres, 10}, {kAs, 11}};

} // namespace

void PonValoresDeBazas() {
    Integer orden = 0;
    for (const ValorDeBaza& valor : kDeMenorAMayor) {
        estado.ValorCarta(valor.carta) = valor.tantos;
        estado.OrdenCarta(valor.carta) = ++orden;
    }
}
