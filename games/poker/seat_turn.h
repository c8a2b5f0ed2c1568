#pragma once
// What the turns of the bets and of the discards of Póker share. Seats 1..4 in the direction of play; only those that
// hold cards have a turn.

#include <string>

#include "core/tabla.h"
#include "games/common/card_turn.h"

bool TieneCartas(Integer asiento);

// JugadoresEnMano: the seats that hold cards.
void CuentaJugadoresEnMano();

// JugadorActual moves on to the next seat with cards; where nobody holds any it comes back to where it was.
void PasaAlSiguienteConCartas();

// The turn of JugadorActual comes up: its caption goes and its zone blinks. False when the match was left.
[[nodiscard]] bool AnunciaTurno();

// A white caption of the seat, drawn at once; "" takes it away.
void PonRotulo(Integer asiento, const std::string& texto);

// Every seat with cards drawn anew.
void RedibujaLosQueJuegan();
