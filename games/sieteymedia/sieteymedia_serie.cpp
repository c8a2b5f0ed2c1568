#include "games/sieteymedia/sieteymedia_serie.h"

#include "core/game_state.h"
#include "games/common/series.h"

bool EsSieteYMedia(Integer asiento, Integer serie) {
    return PuntosSerie(asiento, serie) == kSieteYMediaJusto;
}

bool SePasa(Integer asiento, Integer serie) {
    return PuntosSerie(asiento, serie) > kSieteYMediaJusto;
}

bool EstaCantada(Integer asiento, Integer serie) {
    return EsSieteYMedia(asiento, serie) && LugarTapada(asiento, serie) == 0;
}

float PuntosDescubiertos(int asiento, int serie) {
    Currency suma;
    for (int lugar = 1; lugar <= estado.NumCartas(asiento, serie); ++lugar) {
        if (estado.Mano(asiento, serie, lugar, kCara) == kDescubierta)
            suma += estado.ValorCarta(estado.Mano(asiento, serie, lugar, kValor));
    }
    return static_cast<float>(suma.Real());
}
