#pragma once
// A hand counted by suit and by rank. Ranks go by strength here: the 2 is 1, the Rey 12, the As 13.

#include <array>
#include <cstdint>

#include "core/tabla.h"

inline constexpr int kCartasMano = 5;
inline constexpr Integer kValorAs = 1, kValorRey = 13, kValorAsAlto = 14;
inline constexpr int kFuerzaAs = 13;
inline constexpr int kFuerzaDiez = 9; // above it stand the figures
inline constexpr Integer kComodinUno = 91, kComodinDos = 92;

constexpr bool EsComodin(Integer valor) {
    return valor > kValorAsAlto;
}
constexpr int FuerzaDe(Integer valor) {
    return valor == kValorAs ? kFuerzaAs : valor - 1;
}
constexpr Integer ValorDeFuerza(int fuerza) {
    return fuerza == kFuerzaAs ? kValorAs : static_cast<Integer>(fuerza + 1);
}

// A set of ranks: bit f stands for strength f.
using Rangos = std::uint32_t;

// The cards of one rank.
struct Grupo {
    int fuerza = 0;
    int cartas = 0;
};

struct Recuento {
    int comodines = 0;
    Integer comodin = 0;           // the valor of the last joker
    int no_figuras = 0;            // cards from 2 to 10
    std::array<Rangos, 5> palos{}; // by suit 1..4
    Rangos rangos = 0;
    std::array<Grupo, kCartasMano> grupos; // the strongest first
    int num_grupos = 0;
};

// Places 1..5 of the seat's first serie; what is no card is passed over.
Recuento CuentaMano(Integer asiento);
