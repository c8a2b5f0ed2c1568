#include "games/sieteymedia/sieteymedia_input.h"

#include "betting/bet_state.h"
#include "core/game_state.h"
#include "games/common/series.h"
#include "games/common/series_view.h"
#include "games/sieteymedia/sieteymedia_cards.h"
#include "games/sieteymedia/sieteymedia_serie.h"
#include "table/controls.h"
#include "table/messages.h"
#include "table/seat_drawing.h"
#include "table/sounds.h"
#include "table/table_input.h"

namespace {

void VuelveLaTapada() {
    const Integer asiento = estado.JugadorActual;
    const Integer serie = estado.SerieActual;
    Sonido(0, sonido::kPosa);
    for (int lugar = 1; lugar <= estado.NumCartas(asiento, serie); ++lugar)
        estado.Mano(asiento, serie, lugar, kTapada) = 0;
    RedibujarAsiento(asiento);
    if (EsSieteYMedia(asiento, serie))
        estado.EsperandoJugada = false;
}

} // namespace

Puntero PunteroDeSiete(int lugar) {
    if (estado.SerieActual != estado.SerieEnJuego)
        return Puntero::Flecha;
    if (series.PuedeCambiarCuatro)
        return Puntero::Cambiar;
    if (apuestas.ModoApuesta)
        return Puntero::Flecha;
    if (series.PuedeAbrir)
        return Puntero::Abrirse;
    return PunteroDeSerie(lugar);
}

bool ClicDeSiete(Puntero puntero, int /*lugar*/) {
    switch (puntero) {
    case Puntero::Cambiar:
        CambiaCuatro();
        break;
    case Puntero::Abrirse:
        AbreSerie();
        break;
    case Puntero::Voltear:
        VuelveLaTapada();
        break;
    default:
        return false;
    }
    RefrescaPuntero();
    return true;
}

void PonBotonesDeSiete(int asiento) {
    PonBotonesDeSerie(asiento);
    if (asiento != estado.JugadorActual)
        return;
    const float puntos = PuntosSerie(asiento, estado.SerieActual);
    if (puntos >= kSieteYMediaJusto)
        Oculta(Control::Pic_BotSuperior, 1);
    if (puntos > kSieteYMediaJusto)
        Oculta(Control::Pic_BotSuperior, 2);
}
