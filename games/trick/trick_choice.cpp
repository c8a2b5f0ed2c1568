#include "games/trick/trick_choice.h"

#include "core/game_state.h"
#include "games/common/trick_state.h"
#include "games/trick/card_rules.h"
#include "games/trick/trick_rules.h"

void EligeParaJugar() {
    ReglasEnMesa().elige();
    if (ReglasEnMesa().obliga && !CartaLegalTute(estado.CartaElegida))
        estado.CartaElegida = bazas.CartasJugables(1, 2);
}
