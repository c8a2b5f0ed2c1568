#include "games/poker/poker_tips.h"

#include <span>

#include "betting/bet_state.h"
#include "betting/phases.h"
#include "core/game_state.h"
#include "games/poker/poker_state.h"
#include "table/messages.h"

namespace {

constexpr int kTipPrimeraRonda = 1, kTipHayQueSubir = 2, kTipFichasPrimera = 3,
              kTipFichasSegunda = 4, kTipFinalizar = 5, kTipApuestaAutomatica = 6,
              kTipSegundaRonda = 7, kTipDescartes = 8, kTipElegirCartas = 9,
              kTipDescarteAutomatico = 10, kTipMasAyuda = 15, kTipTutorApuesta = 49, kTipTutor = 50;

// The tip for a number below hasta, and from the row before on.
struct TipHasta {
    float hasta;
    int tip; // 0: none
};

constexpr TipHasta kAlSubir[] = {{0.3F, kTipHayQueSubir}, {1.0F, 0}};
constexpr TipHasta kEnPrimera[] = {{0.15F, kTipPrimeraRonda},
                                   {0.25F, kTipFichasPrimera},
                                   {0.5F, kTipTutorApuesta},
                                   {0.75F, kTipMasAyuda},
                                   {1.0F, kTipApuestaAutomatica}};
constexpr TipHasta kEnSegunda[] = {{0.15F, kTipSegundaRonda},
                                   {0.25F, kTipFichasSegunda},
                                   {0.5F, kTipTutorApuesta},
                                   {0.75F, kTipMasAyuda},
                                   {1.0F, kTipApuestaAutomatica}};
constexpr TipHasta kEnDescartes[] = {{0.2F, kTipElegirCartas},
                                     {0.4F, kTipDescartes},
                                     {0.6F, kTipTutor},
                                     {0.8F, kTipMasAyuda},
                                     {1.0F, kTipDescarteAutomatico}};

void Sugiere(std::span<const TipHasta> tips) {
    for (const TipHasta& fila : tips) {
        if (estado.AzarTurno >= fila.hasta)
            continue;
        if (fila.tip != 0)
            MostrarSugerencia(fila.tip);
        return;
    }
}

} // namespace

void SugiereEnApuesta() {
    const Integer fase = apuestas.FaseApuesta;
    if (apuestas.Apuesta(estado.JugadorActual, kSeriePoker, fase) > 0)
        Sugiere(kAlSubir);
    else if (fase == kFasePrimeraRonda)
        Sugiere(kEnPrimera);
    else
        Sugiere(kEnSegunda);
}

void SugiereFinalizarApuesta() {
    MostrarSugerencia(kTipFinalizar);
}

void SugiereEnDescarte() {
    Sugiere(kEnDescartes);
}
