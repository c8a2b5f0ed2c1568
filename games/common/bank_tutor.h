#pragma once
// How the tutor answers in the two games with a bank: by the caption of the seat on turn, or by a button beside it that
// flashes. It shows and orders nothing: the person still has to play.

#include <string>

#include "games/common/bank_buttons.h"

// Back to the serie in play, if another one was being looked at. Writes SerieActual.
void EmpiezaConsejo();

// The seat's caption, green, which blinks twice when the advice ends. Writes RotuloSerie, ColorRotulo, ParpadeoRotulo.
void AconsejaConRotulo(const std::string& texto);

// Two rounds of: a pause of 180, the button pressed, sound 12, a pause of 420, the button up.
void DestellaBoton(BotonDeSerie boton);

// The seat drawn, its caption with it, and a pause of 180.
void AcabaConsejo();
