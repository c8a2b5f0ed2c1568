#include "games/poker/hand_value.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "core/game_state.h"
#include "core/numeric.h"
#include "games/poker/hand_tally.h"
#include "games/poker/order_sums.h"
#include "games/poker/poker_state.h"

namespace {

// Hands of Póker for each rank of the loose card, by the jokers of the deck.
constexpr std::array<double, 3> kPokersPorSuelta{4.0, 20.0, 36.333};
// What a step between two hands without a pair is worth: their suits but for those of one suit, and those.
constexpr Long kDeCartaMayor = 1020, kDeColor = 4;
// Qualities of Pareja from here on are made with a joker.
constexpr Integer kParejaConComodin = 3;

Long Cercano(double valor) {
    return static_cast<Long>(std::nearbyint(valor));
}

// A category of a hand, as the order number sees it.
struct Medida {
    const RegistroJugada& jugada;
    const SumasDeOrden& sumas;
    Integer categoria;
    Posiciones v; // of Cartas(1..5)
    double cuenta;
    Long base; // hands of the categories below

    int Minimo() const { return 14 - estado.ValoresPorPalo; }
    // A joker makes a hand lower than the same one without.
    int RebajaDeComodin() const {
        return jugada.ValorComodin == kValorAs ? kValorAsAlto : jugada.ValorComodin;
    }
    // A sum over the deck without jokers, stretched to the hands that the deck has.
    Long Escala(Long suma) const {
        if (estado.ComodinesBaraja == 0)
            return suma;
        return Cercano(static_cast<double>(suma) / sumas.Cuenta(categoria) * cuenta);
    }
};

// A joker stands for its valor, but not in the fifth place, which is meant: there it is beyond every position.
Posiciones PosicionesDe(const RegistroJugada& jugada) {
    Posiciones posiciones{};
    for (int i = 1; i <= kCartasMano; ++i) {
        const bool vale_por_otra = i < kCartasMano && EsComodin(jugada.Cartas(i));
        posiciones[static_cast<std::size_t>(i - 1)] =
            FuerzaDe(vale_por_otra ? jugada.ValorComodin : jugada.Cartas(i));
    }
    return posiciones;
}

Long BaseDe(Integer categoria) {
    Long base = 0;
    for (int n = 1; n < categoria; ++n)
        base += poker.CuentaJugada(n);
    return base;
}

Long ValorEscalera(const Medida& m) {
    return Cercano(m.cuenta / (estado.ValoresPorPalo - 3) * (m.v[0] - m.Minimo() - 2) + m.base) -
           m.RebajaDeComodin();
}

Long ValorRepoker(const Medida& m) {
    return m.base + Cercano(m.cuenta / estado.ValoresPorPalo * (m.v[0] - m.Minimo() + 1));
}

Long ValorPoker(const Medida& m) {
    const double por_suelta = kPokersPorSuelta.at(static_cast<std::size_t>(estado.ComodinesBaraja));
    Long suma = Cercano(m.cuenta / estado.ValoresPorPalo * (m.v[0] - m.Minimo()));
    suma = Cercano(por_suelta * (m.v[1] - m.Minimo() + 1) + suma);
    if (m.v[1] > m.v[0])
        suma = Cercano(suma - por_suelta);
    return m.base + suma;
}

Long ValorFiguras(const Medida& m) {
    return Cercano(m.cuenta / m.sumas.TotalFiguras() * m.sumas.Figuras(m.v) + m.base) -
           m.RebajaDeComodin();
}

Long ValorPareja(const Medida& m) {
    const Long valor = m.base + m.Escala(m.sumas.Pareja(m.v));
    return m.jugada.Calidad >= kParejaConComodin ? valor - 1 : valor;
}

// A group with two jokers lacks a loose card; counted as none, it can fall among the hands of the category below.
Long SobreLaBase(const Medida& m, Long valor, int suelta) {
    return m.jugada.Cartas(suelta) == 0 ? std::max(valor, m.base + 1) : valor;
}

} // namespace

Long ValorJugada(Integer categoria, Integer asiento) {
    const EstadoPoker& p = poker;
    const RegistroJugada& jugada = p.Jugadas(asiento, categoria);
    const Medida m{.jugada = jugada,
                   .sumas = SumasDe(estado.CartasBaraja),
                   .categoria = categoria,
                   .v = PosicionesDe(jugada),
                   .cuenta = static_cast<double>(p.CuentaJugada(categoria)),
                   .base = BaseDe(categoria)};
    if (categoria == p.EscaleraColor || categoria == p.Escalera)
        return ValorEscalera(m);
    if (categoria == p.Repoker)
        return ValorRepoker(m);
    if (categoria == p.Poker)
        return SobreLaBase(m, ValorPoker(m), 2);
    if (categoria == p.Color)
        return m.base + m.Escala(kDeColor * m.sumas.SinEscalera(m.v));
    if (categoria == p.CartaMayor)
        return m.base + kDeCartaMayor * m.sumas.SinEscalera(m.v);
    if (categoria == p.Full)
        return m.base + m.Escala(m.sumas.Full(m.v));
    if (categoria == p.Trio)
        return SobreLaBase(m, m.base + m.Escala(m.sumas.Trio(m.v)), 3);
    if (categoria == p.Figuras)
        return ValorFiguras(m);
    if (categoria == p.DoblePareja)
        return m.base + m.sumas.DoblePareja(m.v);
    if (categoria == p.Pareja)
        return ValorPareja(m);
    return 0;
}
