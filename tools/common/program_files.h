#pragma once
// The data files that come with the program, for tools that keep their files in memory.

#include <string>

#include "platform/headless/headless_platform.h"

// Where the running program finds them: in the folder in which it lies, or in that of an installation.
std::string CarpetaDeDatos();

// Puts the data files of a folder into the memory of a table without a screen. What is not there is left out.
void InstalaFicherosDelPrograma(PlataformaSinPantalla& mesa, const std::string& carpeta);
