#include "games/blackjack/blackjack_serie.h"

#include "betting/bet_state.h"
#include "betting/phases.h"
#include "core/game_state.h"
#include "core/text.h"
#include "games/common/series.h"

namespace {

bool EsAs(Integer asiento, Integer serie, int lugar) {
    return estado.Mano(asiento, serie, lugar, kValor) == kAs;
}

bool DobladaConSuCarta(Integer asiento, Integer serie) {
    return apuestas.Apuesta(asiento, serie, kFaseDoblar) > 0 &&
           estado.NumCartas(asiento, serie) == 3;
}

bool AsAbiertoConSuCarta(Integer asiento, Integer serie) {
    return estado.SeriesJugador(asiento) > 1 && estado.NumCartas(asiento, serie) > 1 &&
           EsAs(asiento, serie, 1) && !EsAs(asiento, serie, 2);
}

std::string EnPalabras(Integer asiento, Integer serie, const char* pasada) {
    const int puntos = PuntosBlackJack(asiento, serie);
    if (puntos > kVeintiuna)
        return pasada;
    return EsBlackJack(asiento, serie) ? "Black Jack" : Numero(puntos);
}

} // namespace

int PuntosBlackJack(Integer asiento, Integer serie) {
    return static_cast<int>(PuntosSerie(asiento, serie));
}

bool EsBlackJack(Integer asiento, Integer serie) {
    return estado.SeriesJugador(asiento) == 1 && estado.NumCartas(asiento, serie) == 2 &&
           PuntosBlackJack(asiento, serie) == kVeintiuna;
}

bool SerieParada(Integer asiento, Integer serie) {
    return PuntosBlackJack(asiento, serie) >= kVeintiuna || DobladaConSuCarta(asiento, serie) ||
           AsAbiertoConSuCarta(asiento, serie);
}

std::string ResultadoDeSerie(Integer asiento, Integer serie) {
    return EnPalabras(asiento, serie, "Se ha pasado");
}

std::string ApunteDeSerie(Integer asiento, Integer serie) {
    return EnPalabras(asiento, serie, "Se pasó");
}
