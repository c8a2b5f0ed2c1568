#pragma once
// How a seat picks its card in Brisca.

// For JugadorActual, manual or automatic: writes CartasJugables (column 1 the score, column 2 the hand
// position, best card to part with first; every card is legal), NumJugables, CartaBusqueda and
// CartaElegida. Under TutorPulsado the seat's level becomes 100 and stays so, on purpose. An empty hand
// leaves NumJugables and CartaElegida 0. A strong seat reads the hands of those who play after it: meant.
void EligeCartaBrisca();
