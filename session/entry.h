#pragma once
// The program's start: splash, working folder, screen check, table, settings, session.

// The whole run of the program on the platform in use; the answer is its exit status.
int ArrancaPrograma();

// Settles CarpetaTrabajo: the program's own folder, or, when that cannot be written, the user's, into which the
// sixteen files of the program are copied the first time. Reads and writes CarpetaPrograma, CarpetaTrabajo.
void PruebaCarpeta();

// The screen is wide enough, or the player goes on all the same; false ends the program.
[[nodiscard]] bool CompruebaPantalla();
