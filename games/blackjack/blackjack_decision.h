#pragma once
// What an automatic seat does in Black Jack, and what the tutor advises. Nothing is counted: the seat sees its own
// serie and the bank's card.

// For JugadorActual on SerieActual, by FaseApuesta: in the bets writes ApuestaPropuesta; in play ConsejoSeguro,
// ConsejoAbrir, ConsejoDoblar and ConsejoServido, all four (none of them: it asks for a card), and what PuntosSerie
// does; at any other stage nothing. Reads PuedeAsegurar, PuedeAbrir and PuedeDoblar, the seat's level, character and
// funds, RestoInicial, ApuestaMaxima and AzarTurno. Under TutorPulsado the level counts as 100 and stays what it is.
void DecideBlackJack();
