// Every hand of every deck: how many there are of each category, and that the reading by tables says of each what the
// rules say, walked step by step.

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

struct BarajaEntera : testing::TestWithParam<int> {};
struct BarajaConDosComodines : testing::TestWithParam<int> {};

using Cuentas = std::map<int, Long>;

Cuentas CuentaCategorias(const BarajaDePoker& baraja) {
    Cuentas cuentas;
    CadaMano(baraja, kTodas, [&] {
        AnalizaJugada(1);
        ++cuentas[poker.MejorJugada(1)];
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
TEST_P(BarajaEntera, SinComodinYConUnoLasManosSonLasDeLaTabla) {
    for (const Integer comodines : {Integer{1}, Integer{2}}) {
        const BarajaDePoker baraja(static_cast<Integer>(GetParam()), comodines);
        EXPECT_EQ(CuentaCategorias(baraja), CuentasDeLaTabla()) << "comodines " << comodines - 1;
    }
}

TEST_P(BarajaEntera, LaLecturaPorTablasEsLaDeLasReglas) {
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

INSTANTIATE_TEST_SUITE_P(Barajas, BarajaEntera, testing::Range(1, 7));
