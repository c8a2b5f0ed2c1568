#include "games/trick/trick_row.h"

#include "core/game_state.h"
#include "core/numeric.h"
#include "core/text.h"
#include "games/common/hands.h"
#include "games/common/trick_state.h"
#include "games/game_table.h"
#include "games/trick/card_rules.h"
#include "games/trick/choice_brisca.h"
#include "games/trick/choice_tute.h"
#include "games/trick/exchange.h"
#include "games/trick/trick_driver.h"
#include "games/trick/trick_view.h"
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

// An automatic seat plays, a manual one lets the program play.
void RotuloContinuar(std::string& primera, std::string& segunda) {
    if (estado.ControlJugador(estado.JugadorActual) == kManual)
        return;
    segunda = primera;
    primera = "Juega";
}

bool HayCambio() {
    return bazas.CartaCambio != 0;
}

// What both games have on the table.
FilaJuego FilaDeBazas(Integer id, const char* nombre) {
    FilaJuego fila;
    fila.id = id;
    fila.nombre = nombre;
    fila.pinta_bajo_mazo = PintaTriunfo;
    fila.pinta_centro = PintaBaza;
    fila.clave_orden = ClaveOrden;
    fila.cambio_en_mazo = HayCambio;
    fila.clic_cambio = CambiaTriunfo;
    fila.rotulo_continuar = RotuloContinuar;
    return fila;
}

FilaJuego HazFilaTute() {
    FilaJuego fila = FilaDeBazas(kTute, "Tute");
    fila.driver = ManoTute;
    fila.prepara_baraja = PreparaTute;
    fila.carta_legal = CartaLegalTute;
    fila.tras_reordenar = EligeCartaTute;
    fila.tutor = [] { AconsejaCarta(EligeCartaTute); };
    return fila;
}

FilaJuego HazFilaBrisca() {
    FilaJuego fila = FilaDeBazas(kBrisca, "Brisca");
    fila.driver = ManoBrisca;
    fila.prepara_baraja = PreparaBrisca;
    fila.tutor = [] { AconsejaCarta(EligeCartaBrisca); };
    return fila;
}

} // namespace

const FilaJuego& FilaTute() {
    static const FilaJuego kFila = HazFilaTute();
    return kFila;
}

const FilaJuego& FilaBrisca() {
    static const FilaJuego kFila = HazFilaBrisca();
    return kFila;
}
