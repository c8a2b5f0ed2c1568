#pragma once
// The reports by the names of their controls.

#include "forms/handles.h"

extern const MandosForma kMandosMarcador, kMandosHistoric, kMandosEstadis;
