#pragma once
// What an automatic seat, the bank or the tutor does in Siete y media. From high levels on it cheats on purpose: it
// looks at the next card of the deck, and the bank at what lies covered.

// For JugadorActual on SerieActual, by FaseApuesta. In the bets it writes ApuestaPropuesta, and sets ApuestaFuerte and
// ConservaCuatro, which it never clears: they stand until the next serie's bets. In play it writes ConsejoServido,
// ConsejoAbrir and ConsejoDestapar (none of the first two: it asks for a card); the bank only ever stands or asks. At
// any stage it writes CartaJugada, the seat of each card that shows its face. Reads hands, stakes and chips of all
// seats, the deck's next card, PuedeAbrir, the seat's level and character, RestoInicial, ApuestaMaxima and AzarTurno.
// Under TutorPulsado the level counts as 100 and stays what it is.
void DecideSiete();
