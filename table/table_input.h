#pragma once
// The mouse and the keyboard on `mesa`. Handlers run inside a pass of events; they set flags and choices and
// never go on with the game themselves.

#include "platform/platform.h"
#include "table/layout.h"

// True when place CartaBajoCursor of JugadorActual may be played now.
bool CartaLegal();

// The shape over that place of a seat's hand now, and whether a left click there does something.
Puntero PunteroSobreCarta(Integer asiento, int lugar);
bool SeTocaCarta(Integer asiento, int lugar);
// A right click in the seat's zone opens the pop-up.
bool OfreceOrdenar(Integer asiento);
// A click on the pile changes the trump, at this point of it.
bool SeCambiaEnElMazo();
Punto ToqueDelCambio();

// The pointer moves over the table, in its pixels: what lies under it takes its shape, what is dragged follows.
void Form_MouseMove(int x, int y);
// A button (1 left, 2 right) goes down. The left one does what the pointer's shape says: takes a card of a manual deal
// or of a hand that is put in order, or chooses one to play. Writes RatonX, RatonY, BotonRaton.
void Form_MouseDown(int boton, int x, int y);
// It comes up: a card of a hand is laid down where it is, one of a manual deal that no seat has taken goes back.
void Form_MouseUp();
// The click that a release ends in. It is where the button went down (RatonX, RatonY, BotonRaton), wherever the pointer
// has gone since.
void Form_Click();
// Esc, q and Q minimise, control-C does nothing; true for any other key, which acts as Pic_BotContinuar and,
// with no match on, as Pic_Boton(1).
bool TeclaActiva(int tecla);

// The shape for the pointer's last place reckoned anew: a turn begins, a flag has changed.
void RefrescaPuntero();
