#include "games/common/series_view.h"

#include "betting/bet_state.h"
#include "betting/phases.h"
#include "core/game_state.h"
#include "core/text.h"
#include "games/common/series.h"
#include "table/controls.h"
#include "table/side_buttons.h"

namespace {

bool PuedePedir(int asiento) {
    return estado.ControlJugador(asiento) == kManual && apuestas.FaseApuesta == kFaseJuego &&
           estado.SerieActual == estado.SerieEnJuego;
}

} // namespace

void PonBotonesDeSerie(int asiento) {
    if (asiento != estado.JugadorActual)
        return;
    for (int indice = 1; indice <= 2; ++indice) {
        if (PuedePedir(asiento))
            BotonSuperior(asiento, 1, indice);
        else
            Oculta(Control::Pic_BotSuperior, indice);
        if (estado.SeriesJugador(asiento) > 1 && estado.ControlJugador(asiento) == kManual)
            BotonLateral(asiento, 1, indice);
        else
            Oculta(Control::Pic_BotLateral, indice);
    }
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
