#include "games/trick/trick_row.h"

#include "core/game_state.h"
#include "core/numeric.h"
#include "core/text.h"
#include "games/common/deck_table.h"
#include "games/common/hands.h"
#include "games/common/trick_state.h"
#include "games/common/trick_values.h"
#include "games/trick/card_rules.h"
#include "games/trick/choice_tute.h"
#include "games/trick/exchange.h"
#include "games/trick/stock.h"
#include "games/trick/trick_choice.h"
#include "games/trick/trick_console.h"
#include "games/trick/trick_driver.h"
#include "games/trick/trick_invariants.h"
#include "games/trick/trick_rules.h"
#include "games/trick/trick_statistics.h"
#include "games/trick/trick_view.h"
#include "table/deck_setup.h"
#include "table/game_row.h"
#include "table/messages.h"
#include "table/table_input.h"

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

bool HayCambio() {
    return bazas.CartaCambio != 0;
}

bool ClicEnMazo(Puntero puntero, int /*lugar*/) {
    if (puntero != Puntero::Cambiar)
        return false;
    CambiaTriunfo();
    RefrescaPuntero();
    return true;
}

Triunfo TriunfoDeLaMano() {
    return {estado.PaloTriunfo, NombreDePalo(estado.PaloTriunfo)};
}

// What both games have on the table.
FilaJuego FilaDeBazas(Integer id, const char* nombre, void (*prepara)(), void (*driver)()) {
    return {
        .id = id,
        .nombre = nombre,
        .driver = driver,
        .baraja = {.prepara = prepara, .clave_orden = ClaveOrden},
        .entrada = {.cambio_en_mazo = HayCambio,
                    .clic = ClicEnMazo,
                    .tutor = [] { AconsejaCarta(EligeParaJugar); }},
        .pintura = {.bajo_mazo = PintaTriunfo,
                    .centro = PintaBaza,
                    .triunfo = TriunfoDeLaMano,
                    .rotulo_continuar = RotuloDeJuega},
        .mano = {.limpia = BorraBazas, .descubre = DescubreTriunfo},
        .partida = {.nueva = OlvidaBazas},
        .normas = {.reglas = {Regla::Reparto, Regla::Modalidad, Regla::Limite}},
        .informes = {.cuenta_parejas = true, .estadis = EstadisTB},
        .objetivos = {.en_la_mesa = AgregaBazaYTriunfo, .mazo_contado = true},
        .revision = {.mano = RevisaManoBazas, .partida = RevisaPartidaBazas},
        .procedimientos = ProcedimientosDeBazas,
    };
}

FilaJuego HazFilaTute() {
    FilaJuego fila = FilaDeBazas(kTute, "Tute", PreparaTute, ManoTute);
    fila.tema = 3130;
    fila.entrada.carta_legal = CartaLegalTute;
    fila.entrada.tras_reordenar = EligeCartaTute;
    fila.normas.encabezado = "Baraja Española";
    return fila;
}

FilaJuego HazFilaBrisca() {
    FilaJuego fila = FilaDeBazas(kBrisca, "Brisca", PreparaBrisca, ManoBrisca);
    fila.tema = 3140;
    fila.informes.sin_nota = true;
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
