#pragma once
// How a seat picks its card in Cinquillo, and which cards are legal.

#include "core/tabla.h"

// A 5, or a card whose neighbour toward the 5 of its suit lies on the table. Reads CartaJugada.
bool EsJugable(Integer palo, Integer valor);

// The rank counted without the gap of the 8 and the 9: 1 to 10.
constexpr Integer RangoSeguido(Integer valor) {
    return static_cast<Integer>(valor > 7 ? valor - 2 : valor);
}

// The legal cards of JugadorActual, best first, and its choice. Reads Mano, CartaJugada, NivelJugador,
// CaracterJugador, AzarTurno; writes CartasJugables (1 value, 2 hand position), NumJugables and CartaElegida
// (0 when nothing can be laid). Under TutorPulsado the seat's NivelJugador becomes 100, for good.
void EligeCartaCinquillo();

// True when the hand position stands among the first NumJugables entries of CartasJugables.
bool LugarJugable(int lugar);
