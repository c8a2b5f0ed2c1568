#pragma once
// The data files that come with the program, for tools that keep their files in memory.

#include <string>

#include "platform/headless/headless_platform.h"

// The folder in which the running program lies.
std::string CarpetaDelEjecutable();

// Puts the data files of a folder into the memory of a table without a screen. What is not there is left out.
void InstalaFicherosDelPrograma(PlataformaSinPantalla& mesa, const std::string& carpeta);
