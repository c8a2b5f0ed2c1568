#include "games/common/series_view.h"

#include "core/game_state.h"
#include "table/side_buttons.h"
#include "table/table_ops.h"

namespace {

constexpr Integer kFaseJuego = 4; // the stage in which cards are asked for

bool PuedePedir(int asiento) {
    return estado.ControlJugador(asiento) == kManual && estado.FaseApuesta == kFaseJuego &&
           estado.SerieActual == estado.SerieEnJuego;
}

} // namespace

void PonBotonesDeSerie(int asiento) {
    if (asiento != estado.JugadorActual) {
        return;
    }
    for (int indice = 1; indice <= 2; ++indice) {
        if (PuedePedir(asiento)) {
            BotonSuperior(asiento, 1, indice);
        } else {
            Oculta(Control::Pic_BotSuperior, indice);
        }
        if (estado.SeriesJugador(asiento) > 1) {
            BotonLateral(asiento, 1, indice);
        } else {
            Oculta(Control::Pic_BotLateral, indice);
        }
    }
}
