#include "games/blackjack/blackjack_offers.h"

#include "betting/bet_state.h"
#include "betting/chips.h"
#include "betting/phases.h"
#include "core/game_state.h"
#include "games/common/series.h"

namespace {

constexpr float kMinimoDoblar = 9, kMaximoDoblar = 11;

bool EsLaBanca() {
    return estado.JugadorActual == estado.JugadorBanca;
}

bool LaBancaTieneAs() {
    return estado.Mano(estado.JugadorBanca, 1, 1, kValor) == kAs;
}

bool SonDosCartas() {
    return estado.NumCartas(estado.JugadorActual, estado.SerieEnJuego) == 2;
}

Currency CuentaCarta(int lugar) {
    return estado.ValorCarta(estado.Mano(estado.JugadorActual, estado.SerieEnJuego, lugar, kValor));
}

Integer ApuestaDeSerie(int serie) {
    return apuestas.Apuesta(estado.JugadorActual, serie, kFaseApuestas);
}

} // namespace

bool OfreceSeguro() {
    return !EsLaBanca() && LaBancaTieneAs() &&
           2 * RestoDe(estado.JugadorActual) >= ApuestaDeSerie(1);
}

bool OfreceDoblar() {
    if (EsLaBanca() || LaBancaTieneAs() || !SonDosCartas())
        return false;
    const float puntos = PuntosSerie(estado.JugadorActual, estado.SerieEnJuego);
    return puntos >= kMinimoDoblar && puntos <= kMaximoDoblar &&
           RestoDe(estado.JugadorActual) >= ApuestaDeSerie(estado.SerieEnJuego);
}

bool OfreceAbrir() {
    const Integer asiento = estado.JugadorActual;
    return !EsLaBanca() && estado.SeriesJugador(asiento) < kMaximoSeries && SonDosCartas() &&
           CuentaCarta(1) == CuentaCarta(2) &&
           RestoDe(asiento) >= ApuestaTotal(asiento, estado.SerieEnJuego);
}
