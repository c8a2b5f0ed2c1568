#include "betting/placing.h"

#include <algorithm>

#include "betting/bet_state.h"
#include "betting/chips.h"
#include "core/game_state.h"
#include "core/numeric.h"

namespace {

void CambiaApuesta(Integer asiento, int puntos) {
    Integer& puesto = apuestas.Apuesta(asiento, estado.SerieActual, apuestas.FaseApuesta);
    puesto = EnteroDe(puesto + puntos);
    apuestas.ApuestaEnCurso = EnteroDe(apuestas.ApuestaEnCurso + puntos);
}

LugarDeFichas DondeSePone(Integer asiento, const ReglasApuesta& reglas) {
    return reglas.bote ? LugarDeFichas{kBote} : LugarDeFichas{asiento, true};
}

int QuitaDeLaLista(Integer asiento) {
    Integer& cuantas = apuestas.NumFichasPuestas(asiento, estado.SerieActual);
    Integer& ultima = apuestas.FichasPuestas(asiento, estado.SerieActual, cuantas);
    const int d = ultima;
    ultima = 0;
    --cuantas;
    return d;
}

FichaMovida QuitaFicha(Integer asiento, const ReglasApuesta& reglas) {
    const int d = QuitaDeLaLista(asiento);
    CambiaApuesta(asiento, -ValorDe(d));
    ++apuestas.Fichas(asiento, d);
    if (reglas.bote)
        --apuestas.Fichas(kBote, d);
    return {d, DondeSePone(asiento, reglas), {asiento}, ApuestaTotal(asiento, estado.SerieActual)};
}

} // namespace

void EmpiezaTurnoDeApuesta(Integer asiento) {
    Integer& cuantas = apuestas.NumFichasPuestas(asiento, estado.SerieActual);
    for (; cuantas > 0; --cuantas)
        apuestas.FichasPuestas(asiento, estado.SerieActual, cuantas) = 0;
    apuestas.ApuestaEnCurso = 0;
    apuestas.ApuestaPropuesta = 0;
}

FichaMovida AnotaFicha(Integer asiento, int d, const ReglasApuesta& reglas) {
    Integer& cuantas = apuestas.NumFichasPuestas(asiento, estado.SerieActual);
    apuestas.FichasPuestas(asiento, estado.SerieActual, cuantas + 1) = static_cast<Integer>(d);
    ++cuantas;
    CambiaApuesta(asiento, ValorDe(d));
    SumaAlResto(asiento, -ValorDe(d));
    if (reglas.bote)
        ++apuestas.Fichas(kBote, d);
    return {d, {asiento}, DondeSePone(asiento, reglas), ApuestaTotal(asiento, estado.SerieActual)};
}

void AnulaApuestas(Integer asiento, const ReglasApuesta& reglas, const AlMoverFicha& al_mover) {
    while (apuestas.NumFichasPuestas(asiento, estado.SerieActual) > 0)
        al_mover(QuitaFicha(asiento, reglas));
    AsignarResto(asiento, RestoDe(asiento));
}

std::vector<int> FichasParaApostar(Integer asiento, Integer cantidad) {
    Desglosa(std::clamp<Integer>(cantidad, 0, std::max<Integer>(RestoDe(asiento), 0)));
    std::vector<int> fichas;
    for (int d = kDenominaciones; d >= 1; --d)
        fichas.insert(fichas.end(), static_cast<std::size_t>(apuestas.DesgloseFichas(d)), d);
    return fichas;
}
