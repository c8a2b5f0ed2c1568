#pragma once
// The numbers of Normas: spins 21 Resto inicial, 22 Apuesta de salida, 23 Apuesta máxima, 24 Límite de la partida.
// Each has a setting, a range and a step. A number over the maximum is never kept; one below the minimum is, until
// the form closes.

#include <string_view>

#include "core/tabla.h"

inline constexpr int kSpinResto = 21, kSpinSalida = 22, kSpinMaxima = 23, kSpinLimite = 24;
inline constexpr int kPrimerSpin = kSpinResto, kUltimoSpin = kSpinLimite;

// The spin at hand: its working value and its range.
struct SpinDeTrabajo {
    Integer valor = 0, minimo = 0, maximo = 0, paso = 1;
};
extern SpinDeTrabajo spin;

// 21..24, the numbers of the spins.
bool EsSpin(int indice);
// "Resto inicial...:" and so on; empty for an index that is none.
const char* RotuloSpin(int indice);

// Loads the spin at hand: value from the setting, minimum, maximum, step. An index that is none changes nothing.
void LimitesSpin(int indice);
// Writes the working value to the setting of the spin. An index that is none writes nothing.
void ActualizaSpin(int indice);

// One step of an arrow: the limit is tested first, then value plus or minus step, less the remainder by the step.
// So the value always lands on a step, if need be below the minimum. False, with nothing changed, at the limit.
bool PasoSpin(int indice, bool sube);

// The number that a typed text is: digits only, blanks around them ignored; 0 for anything else, and never more
// than maximo.
Integer NumeroTecleado(std::string_view texto, Integer maximo);

// The setting brought into its range.
void EncajaSpin(int indice);
