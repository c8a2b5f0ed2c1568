#include "betting/limits.h"

#include "betting/bet_state.h"
#include "betting/chips.h"
#include "betting/phases.h"
#include "core/game_state.h"
#include "core/numeric.h"

namespace {

bool EsRival(Integer asiento, Integer otro) {
    return otro != asiento && estado.NumCartas(otro, 1) > 0;
}

Techo RivalMasRico(Integer asiento) {
    Techo techo;
    for (Integer otro = 1; otro <= 4; ++otro) {
        if (!EsRival(asiento, otro))
            continue;
        const int alcanza = ApuestaTotal(otro, estado.SerieActual) + RestoDe(otro);
        if (techo.rival == 0 || alcanza > techo.puntos)
            techo = {EnteroDe(alcanza), otro};
    }
    return techo;
}

// The bets of the three games have the same number: the ante in Póker.
bool AlApostar() {
    return apuestas.FaseApuesta == kFaseApuestas;
}

bool SubeSinRivales(Integer asiento, Integer valor) {
    const Integer puesto = apuestas.Apuesta(asiento, estado.SerieActual, apuestas.FaseApuesta);
    return RivalesSinResto(asiento) && puesto + valor > apuestas.MaximaApuesta;
}

bool PasaDeLaMaxima(int total, const ReglasApuesta& reglas) {
    return total > estado.ApuestaMaxima && (AlApostar() || !reglas.maxima_solo_al_apostar);
}

bool NoQuedaSitio(Integer asiento) {
    return apuestas.NumFichasPuestas(asiento, estado.SerieActual) >= kMaximoFichasPuestas;
}

} // namespace

Techo TechoDe(Integer asiento, const ReglasApuesta& reglas) {
    if (reglas.bote)
        return RivalMasRico(asiento);
    if (reglas.maximas_de_techo > 0)
        return {EnteroDe(estado.ApuestaMaxima * reglas.maximas_de_techo), 0};
    return {RestoDe(estado.JugadorBanca), 0};
}

bool RivalesSinResto(Integer asiento) {
    for (Integer otro = 1; otro <= 4; ++otro) {
        if (EsRival(asiento, otro) && RestoDe(otro) > 0)
            return false;
    }
    return true;
}

Veredicto JuzgaFicha(Integer asiento, int d, const ReglasApuesta& reglas) {
    const Integer valor = ValorDe(d);
    const int total = ApuestaTotal(asiento, estado.SerieActual) + valor;
    const Techo techo = TechoDe(asiento, reglas);
    // The order is part of the rules: the player is told the first reason.
    if (PasaDeLaMaxima(total, reglas))
        return {Rechazo::Maxima, techo};
    // The ante is owed whatever the rivals hold.
    if (reglas.bote && !AlApostar() && SubeSinRivales(asiento, valor))
        return {Rechazo::SoloIgualar, techo};
    if (reglas.bote && !AlApostar() && total > techo.puntos)
        return {Rechazo::RestoDeRival, techo};
    if (!reglas.bote && total > techo.puntos)
        return {Rechazo::RestoDeBanca, techo};
    if (RestoDe(asiento) < valor || NoQuedaSitio(asiento))
        return {Rechazo::EnSilencio, techo};
    return {Rechazo::Ninguno, techo};
}
