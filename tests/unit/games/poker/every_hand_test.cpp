// Every hand of every deck, those that are the same but for the names of their suits taken together: how many there are
// of each category, and that no category reaches into the one above.

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "games/poker/hand_reading.h"
#include "games/poker/hand_value.h"
#include "tests/support/poker_hands.h"

using namespace prueba;

namespace {

struct ManosPorClases : testing::TestWithParam<int> {};

using Cuentas = std::map<int, Long>;

Cuentas CuentaCategorias(const BarajaDePoker& baraja) {
    Cuentas cuentas;
    CadaClase(baraja, [&cuentas](int manos) {
        AnalizaJugada(1);
        cuentas[poker.MejorJugada(1)] += manos;
    });
    return cuentas;
}

Cuentas CuentasDeLaTabla() {
    Cuentas cuentas;
    for (int n = poker.CartaMayor; n <= kCategorias; ++n) {
        if (poker.CuentaJugada(n) != 0)
            cuentas[n] = poker.CuentaJugada(n);
    }
    return cuentas;
}

} // namespace

// Without jokers and with one the table of hands is what the hands are.
TEST_P(ManosPorClases, SinComodinYConUnoLasManosSonLasDeLaTabla) {
    for (const Integer comodines : {Integer{1}, Integer{2}}) {
        const BarajaDePoker baraja(static_cast<Integer>(GetParam()), comodines);
        EXPECT_EQ(CuentaCategorias(baraja), CuentasDeLaTabla()) << "comodines " << comodines - 1;
    }
}

// With two the table takes any three figures for Figuras and any three cards of a suit for Color. Three figures are
// three different ones in 256 ways, of which 16 are of one suit and stand under Color, or in a long deck a pair of them
// and another in 288, a Trio to a reading. Of three suited ranks 286 in 52 cards are of one suit: 4 x 286 hands.
TEST_P(ManosPorClases, ConDosComodinesFiguras_Color_ParejaYTrioSeApartanDeLaTabla) {
    constexpr Long kFigurasSueltas = 256 - 16, kParejaYOtra = 288;
    const auto n = static_cast<Integer>(GetParam());
    const BarajaDePoker baraja(n, 3);
    const bool larga = n < 4;
    const Long rangos = 14 - n;
    const Long del_mismo_palo = 4 * rangos * (rangos - 1) * (rangos - 2) / 6;
    Cuentas esperadas = CuentasDeLaTabla();
    esperadas[poker.Color] -= del_mismo_palo;
    if (esperadas[poker.Color] == 0)
        esperadas.erase(poker.Color);
    esperadas[poker.Figuras] -= kFigurasSueltas + (larga ? kParejaYOtra : 0);
    esperadas[poker.Trio] += larga ? kParejaYOtra : 0;
    esperadas[poker.Pareja] += del_mismo_palo + kFigurasSueltas;
    EXPECT_EQ(CuentaCategorias(baraja), esperadas);
}

// The lowest hand of each category is above the highest of the one below, whatever the jokers.
TEST_P(ManosPorClases, UnaCategoriaMasAltaNuncaPierdeNiEmpataConUnaMasBaja) {
    for (const Integer comodines : {Integer{1}, Integer{2}, Integer{3}}) {
        const BarajaDePoker baraja(static_cast<Integer>(GetParam()), comodines);
        std::map<int, std::pair<Long, Long>> extremos;
        CadaClase(baraja, [&extremos](int) {
            AnalizaJugada(1);
            const Long valor = ValorJugada(poker.MejorJugada(1), 1);
            auto& [menor, mayor] =
                extremos.try_emplace(poker.MejorJugada(1), valor, valor).first->second;
            menor = std::min(menor, valor);
            mayor = std::max(mayor, valor);
        });
        Long anterior = 0;
        for (const auto& [categoria, extremo] : extremos) {
            EXPECT_GT(extremo.first, anterior) << "categoria " << categoria;
            anterior = extremo.second;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Barajas, ManosPorClases, testing::Range(1, 7));
