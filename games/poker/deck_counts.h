#pragma once
// How many five-card hands each deck has, and how many of each category. The columns follow the numbers of the
// categories, so 10, 11, 13 and 14 are different hands in long and short decks.

#include <string_view>

#include "core/tabla.h"

// One deck: 87 digits. 1-2 the cards without the jokers, 3 the jokers, 4-10 the hands, then seven a category from 7 on.
class CuentasBaraja {
public:
    explicit constexpr CuentasBaraja(std::string_view cifras) : cifras_(cifras) {}
    Long Cartas() const;
    Long Comodines() const;
    Long Total() const;
    // Hands of category 1..17; no hand is a draw.
    Long De(int categoria) const;

private:
    std::string_view cifras_;
};

// The row of CartasBaraja 1..6 and ComodinesJuego 1..3; IndiceFuera for another.
const CuentasBaraja& CuentasDe(Integer cartas_baraja, Integer comodines_juego);

// The whole number in n digits of a text, from position desde (1 is the first); -1 when one of them is no digit or the
// text ends before. At most nine digits.
Long Cifras(std::string_view texto, int desde, int n);
