#include "games/common/money_hands.h"

#include "betting/bet_state.h"
#include "betting/chips.h"
#include "betting/phases.h"
#include "betting/stakes.h"
#include "core/game_state.h"
#include "games/common/series_state.h"
#include "storage/between_hands.h"
#include "table/game_row.h"

Integer SiguienteConResto(Integer asiento) {
    Integer siguiente = asiento;
    do
        SiguienteAsiento(siguiente);
    while (siguiente != asiento && !TieneResto(siguiente));
    return siguiente;
}

void PasaLaManoConResto() {
    if (estado.JuegosJugados > 1 || !TieneResto(estado.JugadorMano))
        estado.JugadorMano = SiguienteConResto(estado.JugadorMano);
}

void PasaLaBanca() {
    const Integer banca = JuegoEnMesa().asientos.banca;
    if (banca != 0)
        estado.JugadorBanca = banca;
    else if (series.CambiaBanca)
        estado.JugadorBanca = series.NuevaBanca;
    estado.JugadorMano = SiguienteConResto(estado.JugadorBanca);
}

void LimpiaManoConDinero() {
    apuestas.FaseApuesta = kFaseInicio;
    AnotaDineroPrevio();
    if (RestoDe(kBote) == 0)
        apuestas.Apuesta.Borra();
    apuestas.FichasPuestas.Borra();
    apuestas.NumFichasPuestas.Borra();
    estado.SerieTerminada.Borra();
}
