#pragma once
// The settings files: ZOV31.INI for all games and ZOV<game>31.INI for each, which also keeps that game's
// unfinished match. Text lines of fixed columns in Windows-1252, CR LF at their ends.
// Reading uses CarpetaTrabajo, writing CarpetaPrograma: on purpose, also when the two differ.

#include <string>

#include "core/files.h"
#include "core/tabla.h"

// The file that all games share.
inline constexpr const char* kIniGeneral = "ZOV31.INI";

// Reads ZOV31.INI into JuegoActivo, SonidoActivo and VelocidadJuego and repairs them. A missing or unreadable
// file gives one message and is written anew with GrabarIniGeneral; what of it is no number stays as it stood, the
// other values are taken. A number that does not fit stays as it stood without a word, and the file is written anew as
// well. The file as it was is kept beside the new one with the ending .MAL. Writes FicheroNuevo: the file was made anew.
// When that cannot be written nothing is said here: the next save tells it.
void LeerIniGeneral();

// Reads the file of JuegoActivo: seats, rules, money and the match between hands (Juegos included), and
// repairs what is outside its limits. A missing or unreadable file gives one message, all defaults and no
// match, and is written anew as above; a number that does not fit costs its field alone. The bank's values of Black Jack are imposed in every case.
// JuegosJugados comes as the number of games finished, ManoEnCurso false, and RestoPrevio and ApuestaPrevia
// (the money when the hand began) as the money read.
void LeerIniJuego();

// Write the whole file as the state between hands stands: with a hand on (JuegosJugados above 0 and its result
// not yet in the records, sesion.mano_apuntada false), the hand does not count and the money is as it was when
// it began. The answer is an error number, and the old file is then whole. They change nothing of the state.
[[nodiscard]] ErrorArchivo GrabarIniGeneral();
[[nodiscard]] ErrorArchivo GrabarIniJuego();

// "ZOV7031.INI" for game 70.
std::string NombreIniJuego(int juego);
