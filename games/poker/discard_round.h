#pragma once
// The discards of Póker: from JugadorMano round the table, each seat throws away what it does not want and gets as
// many new cards.

#include "platform/platform.h"

// The stage of the discards, whole. Writes FaseApuesta, DescartesHechos, the hands, the pile, and what is believed of
// each seat. False when the match was left.
[[nodiscard]] bool RondaDeDescartes();

// A click of the person on a card, in the discards, raises it or puts it back in line; true when it was taken.
bool AlternaDescarte(Puntero puntero, int lugar);
// "Descartar  elegidas" and "Servido", beside a seat that is choosing; a click on one of them ends the choice.
void PonBotonesDeDescarte(int asiento);
void PulsaBotonDeDescarte(Control control, int indice);
// The seat has a card raised.
bool HayCartaLevantada(Integer asiento);
