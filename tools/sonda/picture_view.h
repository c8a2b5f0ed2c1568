#pragma once
// The table of the console as a picture.

#include <string>

#include "platform/headless/headless_platform.h"

// Paints the table as it stands, with the controls as mesa has them, into a picture file of the screen's size.
// The state stays as it was. ErrorConsola when the deck image or the file cannot be used.
void PintaPantalla(const PlataformaSinPantalla& mesa, const std::string& fichero);
