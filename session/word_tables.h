#pragma once
// The fixed tables of words and places.

// Writes ParejaAsiento, OrientacionAsiento, TextoOrdenar, ValorFicha, NombreNumero, TituloSelector, NombreJuego.
void PonTablasDePalabras();
