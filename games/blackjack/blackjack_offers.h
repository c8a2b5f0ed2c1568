#pragma once
// What the rules offer JugadorActual, on SerieEnJuego, now. Nothing is offered to the bank, nor what the seat's funds
// do not cover. Each reads hands, bets and chips and writes nothing but what PuntosSerie does.

// Against an As of the bank: the funds hold half of the bet of the first serie.
bool OfreceSeguro();

// Two cards that count 9, 10 or 11, unless the bank shows an As: the funds hold the bet once more.
bool OfreceDoblar();

// Two cards that count the same, a Diez and a Rey too, and fewer than four series: the funds hold the whole stake
// once more, the insurance included, for the new serie gets a copy of it.
bool OfreceAbrir();
