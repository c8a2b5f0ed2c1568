#include "games/trick/trick_row.h"

#include "core/game_state.h"
#include "core/numeric.h"
#include "core/text.h"
#include "games/game_table.h"
#include "table/deck_setup.h"

namespace {

// Three at the table play without the four Doses.
bool SonTres() {
    return estado.NumJugadores == 3;
}

void PonBaraja(Integer reparto, Integer paso) {
    PonMedidas({.tipo = kBarajaEspanola,
                .valores_por_palo = static_cast<Integer>(SonTres() ? 9 : 10),
                .reparto = reparto,
                .paso = paso,
                .max_mano = reparto});
    estado.ValorEnBaraja(2) = !SonTres();
    PonValoresDeBazas();
}

void PreparaTute() {
    switch (estado.NumJugadores) {
    case 2:
        return PonBaraja(6, 3);
    case 3:
        return PonBaraja(12, 3);
    default:
        return PonBaraja(10, 5);
    }
}

void PreparaBrisca() {
    PonBaraja(3, 1);
}

// Suit by suit, the strongest card first.
std::string ClaveOrden(Integer palo, Integer valor) {
    return Formato(palo, "0") + Formato(10 - estado.OrdenCarta(valor), "00");
}

} // namespace

const FilaJuego& FilaTute() {
    static const FilaJuego kFila{
        .id = kTute, .nombre = "Tute", .prepara_baraja = PreparaTute, .clave_orden = ClaveOrden};
    return kFila;
}

const FilaJuego& FilaBrisca() {
    static const FilaJuego kFila{.id = kBrisca,
                                 .nombre = "Brisca",
                                 .prepara_baraja = PreparaBrisca,
                                 .clave_orden = ClaveOrden};
    return kFila;
}
