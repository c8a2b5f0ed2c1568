#pragma once
// The deck: built for the game and its rules, shuffled; the cards of a hand put, closed up, sorted for show.

#include "core/game_state.h"

// Sets the deck fields for JuegoActivo and the rules: TipoBaraja, ValoresPorPalo, CartasNormales, ...,
// ValorEnBaraja, ValorCarta, OrdenCarta, the names of the ranks; loads the deck image from CarpetaTrabajo
// last. An unknown game is an error of the caller (std::logic_error).
void ConstruirBaraja();

// Fills Baraja with the whole deck at random places: CartasEnMazo, PosicionMazo 1, NumDescartes 0.
void Barajar();

// The cards of SerieActual in the order that the game shows them; the place of a played card is closed up.
void OrdenarMano(Integer asiento);

// Closes the gaps of the seat's Mano in SerieActual, order kept. NumCartas stays as it is.
void CompactarMano(Integer asiento);

// A face-up or covered card for place lugar of a serie, all fields written.
void PonCarta(Integer asiento, Integer serie, int lugar, Carta carta, Integer cara);
