#include "games/cinquillo/cinquillo_row.h"

#include "core/game_state.h"
#include "core/text.h"
#include "games/cinquillo/cinquillo.h"
#include "games/cinquillo/cinquillo_choice.h"
#include "games/cinquillo/cinquillo_console.h"
#include "games/cinquillo/cinquillo_invariants.h"
#include "games/cinquillo/cinquillo_statistics.h"
#include "games/cinquillo/cinquillo_table.h"
#include "games/common/hands.h"
#include "games/common/trick_state.h"
#include "games/common/trick_values.h"
#include "table/deck_setup.h"
#include "table/game_row.h"

namespace {

constexpr const char* kCuatroFijos =
    "El juego del Cinquillo se juega con cuatro jugadores,  por tanto,  no  puede "
    "desactivar ninguno  y  no  se  le  permite modificar el valor de este "
    "selector.";

void PreparaBaraja() {
    PonMedidas({.tipo = kBarajaEspanola,
                .valores_por_palo = 10,
                .reparto = 10,
                .paso = 5,
                .max_mano = 10});
    PonValoresDeBazas();
}

std::string ClaveOrden(Integer palo, Integer valor) {
    return Formato(palo, "0") + Formato(valor, "00");
}

} // namespace

const FilaJuego& FilaCinquillo() {
    static const FilaJuego kFila{
        .id = kCinquillo,
        .nombre = "Cinquillo",
        .tema = 3160,
        .driver = ManoCinquillo,
        .asientos = {.minimo = 4,
                     .sin_parejas = true,
                     .candados = {{Candado::Ajuste::Estado, 0, kCuatroFijos}}},
        .baraja = {.prepara = PreparaBaraja, .clave_orden = ClaveOrden},
        .entrada = {.carta_legal = LugarJugable,
                    .tras_reordenar = EligeCartaCinquillo,
                    .tutor = [] { AconsejaCarta(EligeCartaCinquillo); }},
        .pintura = {.centro = PintaTendido, .rotulo_continuar = RotuloDeJuega},
        .mano = {.limpia = BorraBazas},
        .partida = {.nueva = OlvidaBazas},
        .normas = {.reglas = {Regla::Reparto, Regla::Limite}},
        .informes = {.en_contra = true, .estadis = EstadisC},
        .objetivos = {.en_la_mesa = AgregaTendidas},
        .revision = {.mano = RevisaManoCinquillo, .partida = RevisaPartidaCinquillo},
        .procedimientos = ProcedimientosDeCinquillo,
    };
    return kFila;
}
