#pragma once
// How a seat picks its card in Tute.

// For JugadorActual, manual or automatic: writes CartasJugables (column 1 the score plus 500, column 2 the
// hand position, best card to part with first, legal cards only), NumJugables, CartaBusqueda and
// CartaElegida, and what ExaminaMano of the seat finds. Under TutorPulsado the level counts as 100 and is
// put back. An empty hand leaves NumJugables and CartaElegida 0. Some rules read the hands of others: that
// is part of how strong a seat is, and meant.
void EligeCartaTute();
