#include "games/poker/poker_row.h"

#include "core/game_state.h"
#include "core/numeric.h"
#include "games/game_table.h"
#include "table/deck_setup.h"

namespace {

constexpr int kCartas = 5;

// OrdenCarta runs the other way here, from rank slot to rank: slots 1 to 12 hold the 2 to the Rey and slot 13
// the As, the highest.
void PonFuerzas() {
    for (int fuerza = 1; fuerza <= 12; ++fuerza) {
        estado.OrdenCarta(fuerza) = EnteroDe(fuerza + 1);
    }
    estado.OrdenCarta(13) = 1;
}

void PreparaBaraja() {
    const int quitados = estado.CartasBaraja - 1;
    PonMedidas({.tipo = kBarajaFrancesa,
                .valores_por_palo = EnteroDe(13 - quitados),
                .comodines = EnteroDe(estado.ComodinesJuego - 1),
                .reparto = kCartas,
                .paso = 1,
                .max_mano = kCartas});
    for (int valor = 2; valor <= estado.CartasBaraja; ++valor) {
        estado.ValorEnBaraja(valor) = false;
    }
    PonFuerzas();
}

} // namespace

const FilaJuego& FilaPoker() {
    static const FilaJuego kFila{
        .id = kPoker, .nombre = "Póker", .prepara_baraja = PreparaBaraja, .con_dinero = true};
    return kFila;
}
