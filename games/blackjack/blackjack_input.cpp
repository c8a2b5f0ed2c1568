#include "games/blackjack/blackjack_input.h"

#include "betting/bet_state.h"
#include "betting/phases.h"
#include "core/game_state.h"
#include "games/blackjack/blackjack_serie.h"
#include "games/common/bank_buttons.h"
#include "games/common/series_state.h"

namespace {

constexpr int kCarta = 1; // of Pic_BotSuperior

// The serie on show is the one in play, and asks for a choice.
bool HayEleccion(Integer asiento) {
    const Integer serie = estado.SerieActual;
    return apuestas.FaseApuesta == kFaseJuego && serie == estado.SerieEnJuego &&
           estado.NumCartas(asiento, serie) > 1 && !SerieParada(asiento, serie);
}

// Two Ases on a split hand are opened again or left as they are.
bool AsesPorAbrir(Integer asiento) {
    return estado.SeriesJugador(asiento) > 1 && series.PuedeAbrir &&
           estado.Mano(asiento, estado.SerieActual, 1, kValor) == kAs;
}

BotonesDeSerie LosOfrecidos() {
    const Integer asiento = estado.JugadorActual;
    if (!HayEleccion(asiento))
        return {};
    return {.carta = !AsesPorAbrir(asiento),
            .servido = true,
            .doblar = series.PuedeDoblar,
            .seguro = series.PuedeAsegurar};
}

} // namespace

void PonBotonesBlackJack(int asiento) {
    if (asiento == estado.JugadorActual)
        PonBotones(asiento, LosOfrecidos());
}

Puntero PunteroBlackJack(int /*lugar*/) {
    const bool abre =
        series.PuedeAbrir && !apuestas.ModoApuesta && estado.SerieActual == estado.SerieEnJuego;
    return abre ? Puntero::Abrirse : Puntero::Flecha;
}

bool ClicEnCartasBlackJack(Puntero puntero, int /*lugar*/) {
    if (puntero != Puntero::Abrirse || !series.PuedeAbrir || !EsperaUnaOrden())
        return false;
    series.OrdenAbrir = true;
    estado.EsperandoJugada = false;
    return true;
}

void ClicEnBotonBlackJack(Control control, int indice) {
    const BotonesDeSerie ofrecidos = LosOfrecidos();
    if (control == Control::Pic_BotDobSeg) {
        if (!EsperaUnaOrden())
            return;
        if (ofrecidos.seguro)
            ClicDeOrden(BotonDeSerie::Seguro, series.OrdenSeguro);
        else if (ofrecidos.doblar)
            ClicDeOrden(BotonDeSerie::Doblar, series.OrdenDoblar);
    } else if (control == Control::Pic_BotLateral ||
               (indice == kCarta ? ofrecidos.carta : ofrecidos.servido)) {
        ClicEnBotonDeSerie(control, indice);
    }
}
