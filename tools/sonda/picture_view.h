#pragma once
// The table of the console as a picture.

#include <optional>
#include <string>

#include "platform/headless/headless_platform.h"

// Paints the table as it stands, with the controls as mesa has them and over it the form that is open, into a picture
// file of the screen's size. The state stays as it was. ErrorConsola when the deck image or the file cannot be used.
void PintaPantalla(const PlataformaSinPantalla& mesa, std::optional<Forma> abierta,
                   const std::string& fichero);
