#include "games/blackjack/blackjack_row.h"

#include <algorithm>

#include "core/game_state.h"
#include "games/common/series.h"
#include "games/common/series_view.h"
#include "games/game_table.h"
#include "table/deck_setup.h"
#include "table/layout.h"

namespace {

constexpr int kBajoLaBanca = 11; // pixels between the bank's zone and the pile

void PreparaBaraja() {
    PonMedidas({.tipo = kBarajaFrancesa,
                .valores_por_palo = 13,
                .mazos = 6,
                .reparto = 2,
                .paso = 1,
                .max_mano = 11});
    PonReglasDeBanca();
    for (int valor = 1; valor <= 13; ++valor) {
        estado.ValorCarta(valor) = std::min(valor, 10);
    }
}

void ColocaMazo() {
    estado.MazoY = static_cast<Integer>(estado.MesaAbajo(2) + kBajoLaBanca);
}

} // namespace

const FilaJuego& FilaBlackJack() {
    static const FilaJuego kFila{.id = kBlackJack,
                                 .nombre = "Black Jack",
                                 .prepara_baraja = PreparaBaraja,
                                 .con_dinero = true,
                                 .sortea_inicio = false,
                                 .mazo_seguido = true,
                                 .menu_ordenar = false,
                                 .coloca_mazo = ColocaMazo,
                                 .puntos = PuntosSerie,
                                 .botones_asiento = PonBotonesDeSerie};
    return kFila;
}
