#pragma once
// What the rules say of a single card: whether it may be played, and which one takes the trick.
//
// Brisca never binds a follower. Tute does from the first trick that starts with an empty stock
// (Arrastre): a follower has to go over the card led, else follow its suit, else trump, else anything.
// Only the card led counts, never the best one so far, and a partner who is winning is no excuse.

#include "core/tabla.h"

// The groups of the strict rule, in the order in which they bind.
enum class Seguimiento : Integer { Libre = 0, PorEncima = 1, DelPalo = 2, Triunfo = 3 };

// True when JugadorActual is bound by the strict rule: Arrastre, and another seat has led.
bool SigueObligado();

// The group of a card against the card that JugadorSalida has on the table.
Seguimiento GrupoDe(Integer palo, Integer valor);

// Tute: whether the card at that place of the hand of JugadorActual may be played: always for a seat that is
// not bound, otherwise if it stands in the legal part of CartasJugables, which the seat's choice has left.
bool CartaLegalTute(int lugar);

// Who takes the trick on the table, and what it holds: writes GanadorBaza and TantosBaza.
void ResuelveBaza();
