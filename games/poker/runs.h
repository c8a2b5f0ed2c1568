#pragma once
// What a set of ranks, of one suit or of any, makes of five ranks in a row: a straight, four of one, three of one.
// Worked out once a deck for all sets, since every reading of a hand asks for several.

#include <array>
#include <cstdint>
#include <vector>

#include "games/poker/hand_tally.h"

inline constexpr std::uint8_t kPuestoComodin = 15; // the joker among the valores of a Tramo

// The best fit of so many cards.
struct Tramo {
    std::uint8_t calidad = 0;              // 1 is the best; 0: the ranks do not make it
    std::uint8_t valor_comodin = 0;        // the valor that the joker stands for
    std::uint8_t segundo_palo = 0;         // of two suits, whether it is the second that makes it
    std::array<std::uint8_t, 5> valores{}; // the highest first
    friend bool operator==(const Tramo&, const Tramo&) = default;
};

struct Corrida {
    Tramo tres, cuatro, cinco;
    friend bool operator==(const Corrida&, const Corrida&) = default;
};

class Corridas {
public:
    // CartasBaraja 1..6.
    explicit Corridas(Integer cartas_baraja);

    // Of the ranks held, with or without a joker. One joker at most is placed: two add no more than one.
    const Corrida& De(Rangos rangos, bool comodin) const {
        return corridas_[indice_[comodin ? 1 : 0][rangos >> 1]];
    }
    bool HayAlgo(Rangos rangos, bool comodin) const {
        return indice_[comodin ? 1 : 0][rangos >> 1] != 0;
    }

    // Of two suits that hold two cards or more each: within five ranks in a row only the second one counts when it has
    // two cards there, be the first one as long as it may.
    Corrida DeDosPalos(Rangos primero, Rangos segundo, bool comodin) const;

private:
    // Ranks in a row: bit 0 the As below the 2, bit v - 1 the valor v, bit 13 the As above the Rey.
    using Fila = std::uint32_t;
    struct Ajuste;

    void PonTramos();
    Ajuste Ajusta(Fila lista, bool comodin) const;
    void PonComodin(Ajuste& ajuste) const;
    int Bordes(const Ajuste& ajuste) const;
    int Calidad(const Ajuste& ajuste) const;
    void Registra(Corrida& corrida, Fila lista, bool comodin, bool segundo) const;

    int primero_; // valor of the lowest card but for the As
    Fila en_baraja_ = 0;
    std::vector<Fila> tramos_; // what has been met after each step upwards, from each start
    std::array<std::array<std::uint16_t, 1 << kFuerzaAs>, 2> indice_{};
    std::vector<Corrida> corridas_{1}; // the first: nothing
};

// The one of the deck; IndiceFuera for none of 1..6.
const Corridas& CorridasDe(Integer cartas_baraja);
