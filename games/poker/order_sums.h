#pragma once
// How many hands of a category come before a hand, by the positions of its ranks: the 2 is 1, the Rey 12, the As 13, no
// card -1. They are sums over the hands below, walked once a deck and kept. A deck here is without its jokers: what
// jokers add is a matter of scale.

#include <array>
#include <optional>

#include "core/tabla.h"
#include "games/poker/deck_counts.h"

// Positions of Cartas(1..5) of a record, from index 0; -1 to 13, and 90 or 91 in the last place for a joker.
using Posiciones = std::array<int, 5>;

class SumasDeOrden {
public:
    // CartasBaraja 1..6.
    explicit SumasDeOrden(Integer cartas_baraja);

    // Hands of five different ranks up to this one, straights left out. All of them when it is not met.
    Long SinEscalera(const Posiciones& v) const;
    Long Full(const Posiciones& v) const;
    Long Trio(const Posiciones& v) const;
    Long DoblePareja(const Posiciones& v) const;
    Long Pareja(const Posiciones& v) const;
    // The place of the five figures among those that count, from 1, 0 when they are none; and how many count.
    Long Figuras(const Posiciones& v) const;
    Long TotalFiguras() const { return total_figuras_; }
    // Hands of the category in the deck without jokers.
    Long Cuenta(int categoria) const { return cuentas_.De(categoria); }

private:
    static constexpr int kTope = 14; // positions from -1 on, one up
    // The sums at the hands that a walk met.
    using Vistas = Tabla<std::optional<Long>, kTope, kTope>;
    using Sumas2 = Tabla<Long, kTope, kTope>;
    using Sumas3 = Tabla<Long, kTope, kTope, kTope>;
    using Sumas4 = Tabla<Long, kTope, kTope, kTope, kTope>;

    void HazSinEscalera();
    void HazFull();
    void HazTrio();
    Long TriosPorDebajo(int trio) const;
    void HazDoblePareja();
    void HazPareja();
    Long ParejasPorDebajo(int pareja) const;
    void HazFiguras();

    const CuentasBaraja& cuentas_;
    int rangos_, cartas_, minimo_;
    bool
        larga_; // with Trío and Color below Figuras and Full: there five figures are a hand of their own
    std::array<Long, 1 << 14> sin_escalera_{}; // by set of positions
    Long total_sin_escalera_ = 0;
    Sumas2 full_;
    Sumas3 trio_, doble_pareja_;
    Sumas4 pareja_;
    std::array<Long, 1024> figuras_{};
    Long total_figuras_ = 0;
};

// The one of the deck; IndiceFuera for none of 1..6.
const SumasDeOrden& SumasDe(Integer cartas_baraja);
