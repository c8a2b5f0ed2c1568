#include "games/blackjack/blackjack_row.h"

#include <algorithm>

#include "betting/chips.h"
#include "betting/stakes.h"
#include "core/game_state.h"
#include "core/text.h"
#include "games/blackjack/blackjack_tutor.h"
#include "games/common/series.h"
#include "games/common/series_view.h"
#include "games/game_table.h"
#include "table/deck.h"
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
    for (int valor = 1; valor <= 13; ++valor)
        estado.ValorCarta(valor) = std::min(valor, 10);
}

void ColocaMazo() {
    estado.MazoY = static_cast<Integer>(estado.MesaAbajo(2) + kBajoLaBanca);
}

bool Recibe(Integer asiento) {
    return asiento == estado.JugadorBanca || ApuestaTotal(asiento, 1) > 0;
}

bool RecibeAMano(Integer asiento) {
    const bool banca_servida = asiento == estado.JugadorBanca && estado.NumCartas(asiento, 1) > 0;
    return TieneResto(asiento) && !banca_servida;
}

// The bank holds one card: the second pass ends on arriving at it.
bool CortaPasada(int pasada, Integer asiento) {
    return pasada == 2 && asiento == estado.JugadorBanca;
}

Integer CartasEnMesa(Integer asiento) {
    return asiento == estado.JugadorBanca ? Integer{1} : estado.CartasReparto;
}

void NuevosMazos(Integer /*asiento*/, Integer /*faltan*/) {
    Barajar();
}

std::string ClaveOrden(Integer palo, Integer valor) {
    return Formato(valor, "00") + Formato(palo, "0");
}

} // namespace

const FilaJuego& FilaBlackJack() {
    static const FilaJuego kFila{.id = kBlackJack,
                                 .nombre = "Black Jack",
                                 .prepara_baraja = PreparaBaraja,
                                 .asiento_banca = 2,
                                 .con_dinero = true,
                                 .sortea_inicio = false,
                                 .mazo_seguido = true,
                                 .menu_ordenar = false,
                                 .recibe = Recibe,
                                 .recibe_a_mano = RecibeAMano,
                                 .corta_pasada = CortaPasada,
                                 .cartas_en_mesa = CartasEnMesa,
                                 .coloca_mazo = ColocaMazo,
                                 .rellena_mazo = NuevosMazos,
                                 .clave_orden = ClaveOrden,
                                 .puntero_carta = PunteroDeSerie,
                                 .rotulo_continuar = RotuloDeSerie,
                                 .puntos = PuntosSerie,
                                 .botones_asiento = PonBotonesDeSerie,
                                 .tutor = AconsejaBlackJack};
    return kFila;
}
