// Every hand of every deck, those that are the same but for the names of their suits taken together: how many there are
// of each category, and that no category reaches into the one above. And, hand by hand, that the reading by tables says
// what the rules say, walked step by step.

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "games/poker/hand_reading.h"
#include "games/poker/hand_value.h"
#include "tests/support/plain_poker.h"
#include "tests/support/poker_hands.h"

using namespace prueba;

namespace {

constexpr int kTodas = 1;

struct ManosDeBaraja : testing::TestWithParam<int> {};

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

template <class Lee, class Valora>
void LeeMano(std::vector<RegistroJugada>& registros, std::vector<Long>& numeros, Lee&& lee,
             Valora&& valora) {
    poker.JugadaOrdenada.Borra();
    poker.CartasClave = 0;
    lee(Integer{1});
    registros.clear();
    numeros.clear();
    for (Integer n = 1; n <= kCategorias; ++n) {
        registros.push_back(poker.Jugadas(1, n));
        numeros.push_back(poker.Jugadas(1, n).Activa != 0 ? valora(n, Integer{1}) : 0);
    }
    numeros.push_back(poker.MejorJugada(1));
    numeros.push_back(poker.CartasClave);
    for (const Integer carta : poker.JugadaOrdenada)
        numeros.push_back(carta);
}

// The hands that the two readings see differently, at most the first.
std::string PrimeraDiferencia(const BarajaDePoker& baraja, int una_de_cada) {
    std::string primera;
    std::vector<RegistroJugada> registros, llanos;
    std::vector<Long> numeros, numeros_llanos;
    CadaMano(baraja, una_de_cada, [&] {
        if (!primera.empty())
            return;
        LeeMano(registros, numeros, AnalizaJugada, ValorJugada);
        LeeMano(llanos, numeros_llanos, AnalizaLlano, ValorLlano);
        if (registros != llanos || numeros != numeros_llanos)
            primera = ManoEscrita();
    });
    return primera;
}

} // namespace

// Without jokers and with one the table of hands is what the hands are.
TEST_P(ManosDeBaraja, SinComodinYConUnoLasManosSonLasDeLaTabla) {
    for (const Integer comodines : {Integer{1}, Integer{2}}) {
        const BarajaDePoker baraja(static_cast<Integer>(GetParam()), comodines);
        EXPECT_EQ(CuentaCategorias(baraja), CuentasDeLaTabla()) << "comodines " << comodines - 1;
    }
}

// With two the table takes any three figures for Figuras and any three cards of a suit for Color. Three figures are
// three different ones in 256 ways, of which 16 are of one suit and stand under Color, or in a long deck a pair of them
// and another in 288, a Trio to a reading. Of three suited ranks 286 in 52 cards are of one suit: 4 x 286 hands.
TEST_P(ManosDeBaraja, ConDosComodinesFiguras_Color_ParejaYTrioSeApartanDeLaTabla) {
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
TEST_P(ManosDeBaraja, UnaCategoriaMasAltaNuncaPierdeNiEmpataConUnaMasBaja) {
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

TEST_P(ManosDeBaraja, LaLecturaPorTablasEsLaDeLasReglas) {
    // All hands of two decks; of the others one in a prime number, so that no card is favoured.
    constexpr int kMuestra = 53;
    for (const Integer comodines : {Integer{1}, Integer{2}, Integer{3}}) {
        const auto n = static_cast<Integer>(GetParam());
        const bool entera = (n == 6 && comodines == 3) || (n == 4 && comodines == 2);
        const BarajaDePoker baraja(n, comodines);
        EXPECT_EQ(PrimeraDiferencia(baraja, entera ? kTodas : kMuestra), "")
            << "comodines " << comodines - 1;
    }
}

INSTANTIATE_TEST_SUITE_P(Barajas, ManosDeBaraja, testing::Range(1, 7));
