#include "games/common/series_view.h"

#include "betting/bet_state.h"
#include "betting/phases.h"
#include "core/game_state.h"
#include "core/text.h"
#include "games/common/bank_buttons.h"
#include "games/common/series.h"

namespace {

bool PuedePedir() {
    return apuestas.FaseApuesta == kFaseJuego && estado.SerieActual == estado.SerieEnJuego;
}

} // namespace

void PonBotonesDeSerie(int asiento) {
    const bool pide = PuedePedir();
    PonBotones(asiento, {.carta = pide, .servido = pide});
}

Puntero PunteroDeSerie(int lugar) {
    const bool tapada =
        estado.Mano(estado.JugadorActual, estado.SerieActual, lugar, kTapada) == kTapadaSi;
    return tapada && !apuestas.ModoApuesta ? Puntero::Voltear : Puntero::Flecha;
}

void RotuloDeSerie(std::string& primera, std::string& segunda) {
    const Integer asiento = estado.JugadorActual;
    const Integer fase = apuestas.FaseApuesta;
    if (estado.ControlJugador(asiento) == kManual ||
        (fase != kFaseApuestas && fase != kFaseJuego)) {
        return;
    }
    primera = fase == kFaseApuestas ? "Apuesta" : "Juega";
    segunda = estado.NombreJugador(asiento);
    if (estado.SeriesJugador(asiento) > 1)
        segunda += " (" + Numero(estado.SerieActual) + ")";
}
