#include "games/sieteymedia/sieteymedia_tutor.h"

#include "betting/bet_state.h"
#include "betting/phases.h"
#include "core/game_state.h"
#include "core/text.h"
#include "games/common/bank_tutor.h"
#include "games/common/series.h"
#include "games/sieteymedia/sieteymedia_decision.h"
#include "table/controls.h"
#include "table/seat_drawing.h"

namespace {

constexpr const char* kCambiarElCuatro = "Cambiar el cuatro";

void PonTapada(int lugar, Integer tapada) {
    if (lugar == 0)
        return;
    estado.Mano(estado.JugadorActual, estado.SerieActual, lugar, kTapada) = tapada;
    RedibujarAsiento(estado.JugadorActual);
}

void MuestraApuesta() {
    if (series.PuedeCambiarCuatro && !series.ConservaCuatro)
        AconsejaConRotulo(kCambiarElCuatro);
    else
        AconsejaConRotulo("Apostar " + Numero(apuestas.ApuestaPropuesta));
}

// Before its turn goes on the bank has its Four to change: nothing else can be pressed.
void MuestraCambioDeLaBanca() {
    Oculta(Control::Pic_BotSuperior, 1);
    Oculta(Control::Pic_BotSuperior, 2);
    AconsejaConRotulo(kCambiarElCuatro);
}

void MuestraBoton() {
    const int vuelta =
        series.ConsejoDestapar ? LugarTapada(estado.JugadorActual, estado.SerieActual) : 0;
    PonTapada(vuelta, 0);
    DestellaBoton(series.ConsejoServido ? BotonDeSerie::Servido : BotonDeSerie::Carta);
    PonTapada(vuelta, kTapadaSi);
}

void MuestraJugada() {
    if (series.PuedeCambiarCuatro && estado.JugadorActual == estado.JugadorBanca)
        MuestraCambioDeLaBanca();
    else if (series.ConsejoAbrir)
        AconsejaConRotulo("Abrir la jugada");
    else
        MuestraBoton();
}

} // namespace

void AconsejaSiete() {
    EmpiezaConsejo();
    DecideSiete();
    if (apuestas.FaseApuesta == kFaseApuestas)
        MuestraApuesta();
    else
        MuestraJugada();
    AcabaConsejo();
}
