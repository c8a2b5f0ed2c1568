#pragma once
// Where an installation keeps what its programs come with.

// Counted from the folder of the programs. Nobody writes there: settings of a first start, decks, tables, help.
inline constexpr const char* kDatosInstalados = "../share/games/zovin";
