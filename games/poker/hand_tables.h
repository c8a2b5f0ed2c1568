#pragma once
// The tables of the deck in play.

// The numbers and names of the categories, CuentaJugada, PorcJugada, TotalCombinaciones and TablaDescartes for
// CartasBaraja 1..6 and ComodinesJuego 1..3; CartasNormales and ComodinesBaraja stand already. Once per change of deck.
void CargaTablasPoker();
