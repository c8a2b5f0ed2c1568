#include "games/common/bank_buttons.h"

#include "betting/bet_state.h"
#include "betting/phases.h"
#include "core/game_state.h"
#include "games/common/series_state.h"
#include "table/controls.h"
#include "table/game_row.h"
#include "table/messages.h"
#include "table/seat_drawing.h"
#include "table/side_buttons.h"
#include "table/sounds.h"

namespace {

constexpr int kArriba = 1, kPulsado = 2;
constexpr int kCarta = 1;          // of Pic_BotSuperior
constexpr int kSerieAnterior = 1;  // of Pic_BotLateral
constexpr int kPausaDelClic = 160; // a button stays down under the pointer

// Looking only: the serie in play stays what it is.
void MuestraOtraSerie(int indice) {
    const Integer asiento = estado.JugadorActual;
    const int otra = estado.SerieActual + (indice == kSerieAnterior ? -1 : 1);
    BotonLateral(asiento, kPulsado, indice);
    Sonido(0, sonido::kBotonDeApuesta);
    Pausa(kPausaDelClic);
    BotonLateral(asiento, kArriba, indice);
    if (otra < 1 || otra > estado.SeriesJugador(asiento))
        return;
    estado.SerieActual = static_cast<Integer>(otra);
    RedibujarAsiento(asiento);
}

} // namespace

void DibujaBotonDeSerie(BotonDeSerie boton, bool pulsado) {
    const Integer asiento = estado.JugadorActual;
    const int aspecto = pulsado ? kPulsado : kArriba;
    switch (boton) {
    case BotonDeSerie::Carta:
        return BotonSuperior(asiento, aspecto, 1);
    case BotonDeSerie::Servido:
        return BotonSuperior(asiento, aspecto, 2);
    case BotonDeSerie::Doblar:
        return BotonDobSeg(asiento, aspecto, "D o b l a r");
    case BotonDeSerie::Seguro:
        return BotonDobSeg(asiento, aspecto, "S e g u r o");
    }
}

void PonBotones(int asiento, const BotonesDeSerie& ofrecidos) {
    if (asiento != estado.JugadorActual)
        return;
    const bool manual = estado.ControlJugador(asiento) == kManual;
    for (int indice = 1; indice <= 2; ++indice) {
        if (manual && (indice == kCarta ? ofrecidos.carta : ofrecidos.servido))
            BotonSuperior(asiento, kArriba, indice);
        else
            Oculta(Control::Pic_BotSuperior, indice);
        if (manual && estado.SeriesJugador(asiento) > 1)
            BotonLateral(asiento, kArriba, indice);
        else
            Oculta(Control::Pic_BotLateral, indice);
    }
    if (manual && ofrecidos.seguro)
        DibujaBotonDeSerie(BotonDeSerie::Seguro, false);
    else if (manual && ofrecidos.doblar)
        DibujaBotonDeSerie(BotonDeSerie::Doblar, false);
    else
        Oculta(Control::Pic_BotDobSeg);
}

void PulsaSolo(BotonDeSerie boton) {
    DibujaBotonDeSerie(boton, true);
    Pausa(420);
    DibujaBotonDeSerie(boton, false);
    JuegoEnMesa().pintura.botones_asiento(estado.JugadorActual);
    Pausa(360);
}

bool EsperaAlJugador() {
    return estado.EsperandoJugada && estado.ManoEnCurso &&
           estado.ControlJugador(estado.JugadorActual) == kManual;
}

bool EsperaUnaOrden() {
    return EsperaAlJugador() && apuestas.FaseApuesta == kFaseJuego && !apuestas.ModoApuesta &&
           estado.SerieActual == estado.SerieEnJuego;
}

void ClicDeOrden(BotonDeSerie boton, bool& orden) {
    DibujaBotonDeSerie(boton, true);
    Sonido(0, sonido::kBotonDeApuesta);
    Pausa(kPausaDelClic);
    DibujaBotonDeSerie(boton, false);
    orden = true;
    estado.EsperandoJugada = false;
}

void ClicEnBotonDeSerie(Control control, int indice) {
    if (control == Control::Pic_BotLateral && EsperaAlJugador() &&
        estado.SeriesJugador(estado.JugadorActual) > 1) {
        MuestraOtraSerie(indice);
    } else if (control == Control::Pic_BotSuperior && EsperaUnaOrden()) {
        if (indice == kCarta)
            ClicDeOrden(BotonDeSerie::Carta, series.OrdenPedir);
        else
            ClicDeOrden(BotonDeSerie::Servido, series.OrdenServido);
    }
}
