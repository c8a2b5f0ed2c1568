#pragma once
// The buttons beside a seat in the games with a bank: drawn, pressed by the game, clicked by the person. Seat 1..4.

#include "platform/platform.h"

enum class BotonDeSerie { Carta, Servido, Doblar, Seguro };

// The button beside JugadorActual, up or pressed.
void DibujaBotonDeSerie(BotonDeSerie boton, bool pulsado);

// Which of them a manual seat is offered.
struct BotonesDeSerie {
    bool carta = false, servido = false, doblar = false, seguro = false;
};

// Shows what JugadorActual is offered and hides the rest; the arrows for a manual seat with several series. All of them
// hidden for an automatic seat; does nothing for a seat that is not on turn.
void PonBotones(int asiento, const BotonesDeSerie& ofrecidos);

// The seat on turn plays by itself: its button pressed for 420 and away, and a pause of 360.
void PulsaSolo(BotonDeSerie boton);

// A click counts now: a manual seat waits, in a hand; and on the serie in play, at the stage of play.
bool EsperaAlJugador();
bool EsperaUnaOrden();

// A click of the person: pressed, sound 6, a pause of 160, up. The one on a button that orders ends the wait.
void ClicDeOrden(BotonDeSerie boton, bool& orden);

// Clicks on Pic_BotSuperior (a card, stand) and Pic_BotLateral (the serie before, the next one, of those the seat
// holds). Where that is not on offer nothing happens. Writes OrdenPedir, OrdenServido, EsperandoJugada; SerieActual.
void ClicEnBotonDeSerie(Control control, int indice);
