// Whole matches of every game that can be played, with random seats, levels, characters, hands and rules: what must
// hold at the end of each hand and of each match holds, and every match ends.

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <iterator>
#include <vector>

#include "table/game_row.h"
#include "tools/simula/match.h"

namespace {

constexpr int kPartidasDeUnCaso = 10;

// As likely one as the other from the first case on.
int Entre(int desde, int hasta) {
    return *rc::gen::resize(rc::kNominalSize, rc::gen::inRange(desde, hasta + 1));
}

const FilaJuego& UnJuego() {
    std::vector<const FilaJuego*> jugables;
    std::ranges::copy_if(FilasDeJuegos(), std::back_inserter(jugables),
                         [](const FilaJuego* fila) { return fila->driver != nullptr; });
    return **rc::gen::elementOf(jugables);
}

OpcionesSimula UnaMesa() {
    const FilaJuego& juego = UnJuego();
    OpcionesSimula opciones;
    opciones.juego = juego.id;
    opciones.asientos = Entre(juego.asientos.minimo, 4);
    opciones.parejas = opciones.asientos == 4 && !juego.asientos.sin_parejas && Entre(0, 1) == 1;
    opciones.limite = Entre(1, 5);
    opciones.semilla = *rc::gen::arbitrary<std::uint32_t>();
    opciones.azar = opciones.personas = true;
    RC_TAG(juego.nombre, opciones.asientos, opciones.parejas ? "por parejas" : "cada uno");
    return opciones;
}

} // namespace

RC_GTEST_PROP(Partidas, DeCualquierJuegoCumplenLoSuyoYAcaban, ()) {
    const OpcionesSimula opciones = UnaMesa();
    const bool con_dinero = FilaDe(static_cast<Integer>(opciones.juego))->dinero.hay;
    const int bandos = opciones.parejas ? 2 : opciones.asientos;
    Simulacion simulacion(opciones);
    for (int partida = 0; partida < kPartidasDeUnCaso; ++partida) {
        const Totales totales = simulacion.Juega(partida); // throws when an invariant breaks
        RC_ASSERT(totales.manos >= 1);
        if (con_dinero)
            continue; // a match ends when the chips do
        RC_ASSERT(totales.manos >= opciones.limite);
        RC_ASSERT(totales.manos <= bandos * (opciones.limite - 1) + 1);
    }
}
