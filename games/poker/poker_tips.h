#pragma once
// The tips of a manual seat of Póker, by AzarTurno. They are shown where the panel is wanted.

// On coming to its turn of bets: by FaseApuesta, and whether the seat has bet in this round before.
void SugiereEnApuesta();
// With the first chips of the turn on the table: how to end it.
void SugiereFinalizarApuesta();
// On coming to its discards.
void SugiereEnDescarte();
