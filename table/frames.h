#pragma once
// The frames over the table, and who keeps each of them on what it is around.

#include <optional>

#include "platform/platform.h"

// The frame as it is from now on. revisa is asked from then on, whenever something has been drawn, to put it again:
// around what has moved, or nowhere.
void PonMarco(Marco cual, const std::optional<Rectangulo>& donde, void (*revisa)());
bool HayMarco(Marco cual);
// The one that the keys move, in either look.
bool HayMarcoDeTeclas();
// Something has been drawn, or a wait begins.
void RevisaMarcos();
