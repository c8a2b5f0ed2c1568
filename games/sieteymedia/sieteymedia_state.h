#pragma once
// What only Siete y media keeps: the count of the cards seen in the hand, which its statistics make. Plain data, reached
// as `siete.VistasValor(v)`.

#include "core/tabla.h"

struct EstadoSiete {
    Tabla<Integer, 8> VistasValor; // by valor 1..7; 8: the figures
    Integer VistasTotal = 0;
    friend bool operator==(const EstadoSiete&, const EstadoSiete&) = default;
};

extern EstadoSiete siete;
