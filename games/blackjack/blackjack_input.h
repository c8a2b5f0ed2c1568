#pragma once
// What the person does beside and on his cards in Black Jack.

#include "platform/platform.h"

// The buttons that a seat is offered, drawn or hidden. Reads what PuedeAsegurar, PuedeAbrir and PuedeDoblar say.
void PonBotonesBlackJack(int asiento);

// The pointer over place lugar of the seat on turn: Abrirse while its serie in play may be opened.
Puntero PunteroBlackJack(int lugar);

// A click with that pointer orders it. False for any other pointer, and where nothing is waited for.
bool ClicEnCartasBlackJack(Puntero puntero, int lugar);

// A click on a button beside the seat; what is not on offer does nothing.
void ClicEnBotonBlackJack(Control control, int indice);
