#pragma once
// The exact search of a trick: all ways to play the next tricks, with every hand in full view.
//
// It departs from the rules at the table on purpose: followers are always held to the strict rule of
// Tute, in Brisca and with a stock too; the last trick brings 10 points in Brisca too; and no cante is
// foreseen. Opponents are as strong as they are because of it, and no stronger.

#include "core/tabla.h"

// Fills ConteoBusqueda and TantosBusqueda for the trick that JugadorSalida is about to lead, from the four
// hands, ValorCarta, OrdenCarta, PaloTriunfo, CartasEnMazo, NumJugadores and ModalidadJuego. The horizon is
// the whole hand when the stock is empty, otherwise one trick. Hands have to be as long as the leader's.
// A horizon over kHorizonteMaximo, which would not end, or a number of seats that is none is an error of the
// caller (std::logic_error).
void ExploraBazas();

inline constexpr int kHorizonteMaximo = 5;

// Turns the tables into a proposal for JugadorActual at place CartasEnBaza of the trick: CartaBusqueda is
// the hand position of its best card, or 0 when fewer than two cards gain anything or when AzarTurno, held
// against NivelJugador, says that the seat does not see it. Reads JugadaBaza, and CartasJugables for the
// order of equals. The tables speak of the hands as they were at the start of the trick: a hand put in
// another order meanwhile is not looked at again, on purpose.
void ValoraExploracion();
