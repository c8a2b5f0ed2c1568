#pragma once
// The table of the console as a picture.

#include "platform/headless/headless_platform.h"
#include "tools/sonda/console.h"

// Paints the table as it stands, with the controls as mesa has them and over it the form that is open, into a picture
// file of the screen's size. The state stays as it was. ErrorConsola when the deck image or the file cannot be used.
// Nothing where the console was built without Qt. mesa has to outlive it.
Consola::Pintor PintorDe(const PlataformaSinPantalla& mesa);
