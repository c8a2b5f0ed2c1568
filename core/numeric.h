#pragma once
// Conversions that round or cut, by name. Nothing here touches the state.

#include "core/currency.h"
#include "core/tabla.h"

// A result that does not fit in 16 (or 32) bits: error 6 of the readers, a mistake elsewhere.
struct Desbordamiento : std::range_error {
    using std::range_error::range_error;
};

// The nearest whole number, halves to the even neighbour. Desbordamiento outside 16 bits.
Integer Redondea(double valor);

// The decimal number that a single one is written as: 0.7F is 0.7 and not the 0.69999998 that it holds, so that chance
// that meets a bound meets it.
double EnDecimal(float valor);

// The same of dividendo / divisor, reckoned in whole numbers: no half is met or missed by a rounding on the way.
// divisor above 0.
Integer RedondeaCociente(long long dividendo, long long divisor);

// The largest whole number not above valor. Desbordamiento outside 32 bits.
Long ParteEntera(double valor);

// valor as an Integer; Desbordamiento when it does not fit.
Integer EnteroDe(long long valor);

// The nearest number with that many decimals, halves to the even neighbour of the decimal value.
double RedondeaA(double valor, int decimales);
