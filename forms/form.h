#pragma once
// What the forms have in common: the view that shows the open one, and the way to its controls by their names.

#include "forms/handles.h"
#include "platform/platform.h"

inline constexpr int kAyudaNormas = 2200, kAyudaPersonal = 2210;

// The handles of a form; nullptr for one that has no logic of its own here.
const MandosForma* MandosDe(Forma forma);
