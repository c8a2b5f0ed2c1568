#pragma once
// The odds of the draw: what becomes of a hand whose category is kept while the rest is thrown away. They stand in a
// file, a record a line, each 90 digits and two characters of line end:
//   1-2 cards without the jokers, 3 jokers, 4-5 category kept, 6 its Calidad, 7-13 possible draws, then seven digits
//   a category 7..17: how many of the draws end in it.

#include <string_view>

#include "games/poker/poker_state.h"

inline constexpr const char* kFicheroProbabilidades = "PkFDes.ZOV";
inline constexpr int kCifrasRegistro = 90, kAnchoRegistro = 92;

using TablaDeDescartes = decltype(EstadoPoker::TablaDescartes);

// The first 180 records of that deck, from place 1; the rest of the table is empty. Any bytes are taken: what is not a
// record with a category of 1..17 and at least one draw is passed over.
TablaDeDescartes LeeProbabilidades(std::string_view contenido, Integer cartas, Integer comodines);

// TablaDescartes, from the file in CarpetaTrabajo, for CartasNormales and ComodinesBaraja. A file that cannot be read
// is a FalloGrave, but on a desktop that does without the program's files: there the table is empty.
void CargaProbabilidades();

// The first record of the category with that Calidad; nullptr without one.
const RegistroDescarte* ProbabilidadDe(Integer categoria, Integer calidad);
