#include "tools/table_states/hands.h"

#include <vector>

#include "core/game_state.h"
#include "table/deck.h"
#include "table/layout.h"
#include "table/seat_drawing.h"

void PonPartida(Integer juego) {
    estado.JuegoActivo = juego;
    ConstruirBaraja();
    ColocarMazo();
    estado.PartidaEnCurso = true;
    estado.ManoEnCurso = true;
    estado.JugadorActual = 4;
    estado.JugadorMano = 1;
    MostrarNombres();
}

Carta NesimaCarta(int n) {
    std::vector<Carta> baraja;
    for (Integer palo = kOros; palo <= kBastos; ++palo) {
        for (Integer valor = 1; valor <= estado.ColumnasBaraja; ++valor) {
            if (estado.ValorEnBaraja(valor))
                baraja.emplace_back(palo, valor);
        }
    }
    return baraja[static_cast<std::size_t>(n) % baraja.size()];
}

void PonCartas(Integer asiento, int cartas, int desde, Integer cara) {
    for (int lugar = 1; lugar <= cartas; ++lugar) {
        const Carta carta = NesimaCarta(desde + lugar - 1);
        PonCarta(asiento, 1, lugar, carta, cara);
    }
    estado.NumCartas(asiento, 1) = static_cast<Integer>(cartas);
}
