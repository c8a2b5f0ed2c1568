#pragma once
// What an automatic seat weighs alike in the two games with a bank.

#include "core/tabla.h"

// A number of chance is told in millionths, all that AzarTurno holds: reckoned with whole numbers a half is a half, and
// a bound that chance meets is met.
inline constexpr int kAzarEntero = 1'000'000, kAzarDecima = kAzarEntero / 10,
                     kAzarCentesima = kAzarEntero / 100;

// The seat on turn as its decision sees it. Amounts in points.
struct Criterio {
    Integer asiento = 0;
    Integer nivel = 0;    // 0..100; 100 for the tutor, whatever the seat's own is
    Integer caracter = 0; // kConservador, kMedio or kAgresivo
    Integer resto = 0;    // the seat's funds
    Integer reserva = 0;  // below this it feels short
    int azar = 0;         // AzarTurno in millionths, below kAzarEntero

    // A number of chance, 1 to 3.
    int Dado() const;
};

// Reads JugadorActual and its settings and chips, TutorPulsado, RestoInicial and AzarTurno; writes nothing.
// std::out_of_range for a character that does not exist.
Criterio CriterioDelTurno();

// A bet as it may be made: in fives once it is above a fifth of an ApuestaMaxima of 30 or more; then at most
// ApuestaMaxima, the seat's funds and the bank's, and at least 1.
Integer ApuestaAdmisible(Integer apuesta, Integer resto);
