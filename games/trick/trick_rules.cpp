#include "games/trick/trick_rules.h"

#include "core/game_state.h"
#include "games/common/trick_state.h"
#include "games/trick/choice_brisca.h"
#include "games/trick/choice_tute.h"

namespace {

constexpr int kTipReglas = 15, kTipTutor = 50;

int TipDeCambio() {
    if (bazas.CartaCambio == 0)
        return 0;
    return bazas.CartaCambio == 7 ? kTipCambiaSiete : kTipCambiaBaja;
}

// By the turn's number: the tutor below the first mark, the rules below the second.
int TipDelAzar(float tutor, float reglas) {
    if (estado.AzarTurno < tutor)
        return kTipTutor;
    return estado.AzarTurno < reglas ? kTipReglas : 0;
}

int SugerenciaTute() {
    const int tip = TipDelAzar(0.2F, 0.4F);
    return tip != 0 ? tip : TipDeCambio();
}

int SugerenciaBrisca() {
    const int tip = TipDeCambio();
    return tip != 0 ? tip : TipDelAzar(0.3F, 0.6F);
}

constexpr ReglasBazas kReglasTute{
    .elige = EligeCartaTute,
    .merece_busqueda = [](int cartas) { return cartas > 1 && cartas <= 7 - estado.NumJugadores; },
    .hay_cambio = [] { return estado.CartasEnMazo > 0; },
    .baja_del_cambio = []() -> Integer { return 2; },
    .sugerencia = SugerenciaTute,
    .obliga = true,
    .diez_ultimas = true,
    .canta = true,
};

// With three seats the Doses are out of the deck, and the 4 takes their part.
constexpr ReglasBazas kReglasBrisca{
    .elige = EligeCartaBrisca,
    .merece_busqueda = [](int cartas) { return cartas > 1; },
    .hay_cambio = [] { return estado.CartasEnMazo > estado.NumJugadores; },
    .baja_del_cambio = []() -> Integer { return estado.NumJugadores == 3 ? 4 : 2; },
    .sugerencia = SugerenciaBrisca,
};

} // namespace

const ReglasBazas& ReglasEnMesa() {
    return estado.JuegoActivo == kTute ? kReglasTute : kReglasBrisca;
}
