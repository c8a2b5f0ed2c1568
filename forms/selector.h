#pragma once
// The selectors of Personal and Normas: which texts each one shows, which setting it writes, how it steps.
// A selector goes by its control index (1..5, 8, 9, 11..14, 21..28, 31..34; in those of a seat the seat is what
// goes beyond 10, 20, 24 or 30).

#include <string>

#include "core/tabla.h"

inline constexpr int kFilasSelector = 15, kUltimoSelector = 34, kLetrasSelector = 22;

// Selectors of a seat: these plus 1..4.
inline constexpr int kSelEstado = 10, kSelCartas = 20, kSelControl = 24, kSelCaracter = 30;
// The others.
inline constexpr int kSelReparto = 1, kSelLey = 2, kSelComodines = 3, kSelModalidad = 4,
                     kSelBaraja = 5, kSelSentido = 8, kSelVentana = 9;

// Some form has a selector of that number.
bool EsSelector(int control);
// kSelEstado, ... of a seat's selector, the control itself of any other.
int ClaseDe(int control);
// 1..4 for a selector of a seat, 0 for any other.
Integer AsientoDe(int control);

// The text of a value, fila 1..15: 22 characters, blanks behind. A row of blanks ends the list of a selector;
// what is no selector has nothing else. IndiceFuera beyond the table.
const std::string& TextoValor(int fila, int control);
// How many values the selector has.
int ValoresDe(int control);

// The setting that the selector writes. std::logic_error when control is no selector.
Integer& AjusteDe(int control);
// The text of its present value without the blanks.
std::string TextoActual(int control);
// The setting takes the next value, 1 after the last. A value that is none of the list becomes 1 too.
void AvanzaSelector(int control);
