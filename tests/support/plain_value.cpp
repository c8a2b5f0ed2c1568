// The order number by its sums as they are told: every hand below is walked.

#include "games/poker/combinations.h"
#include "tests/support/plain_poker.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "core/game_state.h"
#include "core/numeric.h"
#include "games/poker/deck_counts.h"
#include "games/poker/poker_state.h"

namespace {

constexpr int kTope = 13; // position of the As

struct Mesa {
    const RegistroJugada& j;
    Integer categoria;
    int vpp, cn, min;
    bool larga;
    double cuenta;
    Long base;
    std::array<int, 6> v{};
    int J;
};

Long Cercano(double x) {
    return static_cast<Long>(std::nearbyint(x));
}

Long Escala(const Mesa& m, Long suma) {
    if (estado.ComodinesBaraja == 0)
        return suma;
    const Long n0 = CuentasDe(estado.CartasBaraja, 1).De(m.categoria);
    return Cercano(static_cast<double>(suma) / n0 * m.cuenta);
}

Long OrdinalSinEscalera(const Mesa& m) {
    Long n = 0;
    const int min = m.min;
    for (int a = min + 4; a <= kTope; ++a)
        for (int b = min + 3; b < a; ++b)
            for (int c = min + 2; c < b; ++c)
                for (int d = min + 1; d < c; ++d)
                    for (int e = min; e < d; ++e) {
                        const bool seguidas = a - e == 4;
                        const bool rueda = a == kTope && b == min + 3;
                        if (!seguidas && !rueda)
                            ++n;
                        if (a == m.v[1] && b == m.v[2] && c == m.v[3] && d == m.v[4] && e == m.v[5])
                            return n;
                    }
    return n;
}

Long SumaFull(const Mesa& m) {
    Long suma = 0;
    for (int t = m.min; t <= m.v[1]; ++t)
        for (int p = m.min; p <= kTope; ++p) {
            if (p != t)
                suma += 24;
            if (t == m.v[1] && p == m.v[2])
                return suma;
        }
    return suma;
}

Long SumaTrio(const Mesa& m) {
    Long suma = 0;
    for (int t = m.min; t < m.v[1]; ++t) {
        Long l = Combinaciones(EnteroDe(m.cn - 4), 2) - (m.vpp - 1) * 6;
        if (m.larga && t > 9)
            l -= Combinaciones(12, 2) - 18;
        suma += 4 * l;
    }
    for (int a = m.min; a <= m.v[2]; ++a) {
        if (a == m.v[1])
            continue;
        for (int b = m.min; b <= a; ++b) {
            if (b != m.v[1] && b != a && !(m.larga && m.v[1] > 9 && a > 9 && b > 9))
                suma += 64;
            if (a == m.v[2] && b == m.v[3])
                return suma;
        }
    }
    return suma;
}

Long SumaDoblePareja(const Mesa& m) {
    Long suma = 0;
    for (int a = m.min + 1; a <= m.v[1]; ++a)
        for (int b = m.min; b < a; ++b)
            for (int c = m.min; c <= (a > 9 && b > 9 ? 9 : kTope); ++c) {
                if (c != a && c != b)
                    suma += 144;
                if (a == m.v[1] && b == m.v[2] && c == m.v[3])
                    return suma;
            }
    return suma;
}

Long SumaPareja(const Mesa& m) {
    Long suma = 0;
    for (int t = m.min; t < m.v[1]; ++t) {
        Long l =
            Combinaciones(EnteroDe(m.cn - 4), 3) - (m.vpp - 1) * 4 - (m.vpp - 1) * 6 * (m.cn - 8);
        if (t > 9)
            l -= Combinaciones(12, 3) - 156;
        suma += 6 * l;
    }
    const int v1 = m.v[1];
    for (int a = m.min; a <= m.v[2]; ++a) {
        if (a == v1)
            continue;
        for (int b = m.min; b <= a; ++b) {
            if (b == v1)
                continue;
            for (int c = m.min; c <= b; ++c) {
                const bool distintas = a != b && a != c && b != c && c != v1;
                if (distintas && !(v1 > 9 && a > 9 && b > 9 && c > 9))
                    suma += 384;
                if (a == m.v[2] && b == m.v[3] && c == m.v[4])
                    return suma;
            }
        }
    }
    return suma;
}

Long ValorFiguras(const Mesa& m) {
    int total = 0, orden = 0;
    for (int a = 10; a <= kTope; ++a)
        for (int b = 10; b <= a; ++b)
            for (int c = 10; c <= b; ++c)
                for (int d = 10; d <= c; ++d)
                    for (int e = 10; e <= d; ++e) {
                        std::array<int, 14> n{};
                        for (const int x : {a, b, c, d, e})
                            ++n[x];
                        const int mas = *std::max_element(n.begin(), n.end());
                        const bool dos = std::count(n.begin(), n.end(), 2) > 0;
                        if (!(mas > 3 || (mas == 3 && (!m.larga || dos))))
                            ++total;
                        if (a == m.v[1] && b == m.v[2] && c == m.v[3] && d == m.v[4] && e == m.v[5])
                            orden = total;
                    }
    return Cercano(m.cuenta / total * orden + m.base) - m.J;
}

Long ValorPoker(const Mesa& m) {
    Long s = Cercano(m.cuenta / m.vpp * (m.v[1] - m.min));
    const double k = estado.ComodinesBaraja == 0   ? 4.0
                     : estado.ComodinesBaraja == 1 ? 20.0
                                                   : 36.333;
    s = Cercano(k * (m.v[2] - m.min + 1) + s);
    if (m.v[2] > m.v[1])
        s = Cercano(s - k);
    return m.base + s;
}

} // namespace

namespace prueba {

Long ValorLlano(Integer n, Integer asiento) {
    const RegistroJugada& j = poker.Jugadas(asiento, n);
    Mesa m{j,
           n,
           estado.ValoresPorPalo,
           estado.CartasNormales,
           14 - estado.ValoresPorPalo,
           estado.CartasBaraja < 4,
           static_cast<double>(poker.CuentaJugada(n)),
           0,
           {},
           0};
    for (int i = 1; i < n; ++i)
        m.base += poker.CuentaJugada(i);
    for (int i = 1; i <= 5; ++i) {
        Integer valor = j.Cartas(i);
        if (i < 5 && valor > 13)
            valor = j.ValorComodin;
        m.v[i] = valor == 1 ? 13 : valor - 1;
    }
    m.J = j.ValorComodin == 1 ? 14 : j.ValorComodin;
    const auto& p = poker;
    Long valor = 0;
    if (n == p.EscaleraColor || n == p.Escalera)
        valor = Cercano(m.cuenta / (m.vpp - 3) * (m.v[1] - m.min - 2) + m.base) - m.J;
    else if (n == p.Repoker)
        valor = m.base + Cercano(m.cuenta / m.vpp * (m.v[1] - m.min + 1));
    else if (n == p.Poker)
        valor = ValorPoker(m);
    else if (n == p.Color)
        valor = m.base + Escala(m, 4 * OrdinalSinEscalera(m));
    else if (n == p.CartaMayor)
        valor = m.base + 1020 * OrdinalSinEscalera(m);
    else if (n == p.Full)
        valor = m.base + Escala(m, SumaFull(m));
    else if (n == p.Trio)
        valor = m.base + Escala(m, SumaTrio(m));
    else if (n == p.Figuras)
        valor = ValorFiguras(m);
    else if (n == p.DoblePareja)
        valor = m.base + SumaDoblePareja(m);
    else if (n == p.Pareja)
        valor = m.base + Escala(m, SumaPareja(m)) - (j.Calidad >= 3 ? 1 : 0);
    const bool falta = (n == p.Poker && j.Cartas(2) == 0) || (n == p.Trio && j.Cartas(3) == 0);
    return falta ? std::max(valor, m.base + 1) : valor;
}

} // namespace prueba
