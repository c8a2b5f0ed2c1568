#pragma once
// Money that came from a file, made into money that a match can go on with. Every sum that the match can have is
// kept as it stands; only chips that nobody can hold change their owner.

#include "core/tabla.h"

// In every game: no count of chips and no bet below 0, and sums that fit in an amount; if they do not, the table
// is as a match begins with it. Reads EstadoJugador and RestoInicial; writes Fichas and Apuesta.
void ReparaFichas();

// How a game holds its money: the seat (1..4) of the bank, an active one, or 0 when there is a pot; and the most that a
// seat can ever have begun a match with.
struct MesaConDinero {
    Integer banca = 0;
    Integer resto_maximo = 0;
};

// For a match that goes on, after ReparaFichas. A table without a point, or with more than all active seats can
// have brought, begins with RestoInicial each. Chips of a seat that is not active go to the pot or to the bank,
// to which a pot goes too; a pot is shared out when no seat has chips to play for it, and bets are none
// when the pot does not hold them. Reads EstadoJugador, NumJugadores and RestoInicial; writes Fichas and Apuesta.
void ReparaPartidaConDinero(const MesaConDinero& mesa);
