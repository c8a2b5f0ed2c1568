#pragma once
// The settings files: ZOV31.INI for all games and ZOV<game>31.INI for each, which also keeps that game's
// unfinished match. Text lines of fixed columns in Windows-1252, CR LF at their ends.
// Reading uses CarpetaTrabajo, writing CarpetaPrograma: on purpose, also when the two differ.

#include <string>

#include "core/files.h"

// Reads ZOV31.INI into JuegoActivo, SonidoActivo and VelocidadJuego and repairs them. A missing or unreadable
// file gives one message, leaves the values as they stood (repaired) and is written anew with GrabarIniGeneral;
// an unreadable one is kept beside it with the ending .MAL.
void LeerIniGeneral();

// Reads the file of JuegoActivo: seats, rules, money and the match between hands (Juegos included), and
// repairs what is outside its limits. A missing or unreadable file gives one message, all defaults and no
// match, and is written anew. The bank's values of Black Jack are imposed in every case.
void LeerIniJuego();

// Write the whole file as the state between hands stands: with a hand on, the hand does not count and the
// money is as it was when the hand began. The answer is an error number, and the old file is then whole.
[[nodiscard]] ErrorArchivo GrabarIniGeneral();
[[nodiscard]] ErrorArchivo GrabarIniJuego();

// "ZOV7031.INI" for game 70.
std::string NombreIniJuego(int juego);
