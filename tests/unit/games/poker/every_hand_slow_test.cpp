// Every hand of every deck: the reading by tables says of each what the rules say, walked step by step, and the names of
// the suits tell nothing of what a hand is worth.

#include <gtest/gtest.h>

#include <map>
#include <utility>

#include "games/poker/hand_reading.h"
#include "games/poker/hand_value.h"
#include "tests/support/plain_poker.h"
#include "tests/support/poker_hands.h"

using namespace prueba;

namespace {

constexpr int kTodas = 1;

struct BarajaEntera : testing::TestWithParam<int> {};

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

// So that one hand may stand for all that are the same but for their suits.
TEST_P(BarajaEntera, LosNombresDeLosPalosNoCambianLoQueVale) {
    for (const Integer comodines : {Integer{1}, Integer{2}, Integer{3}}) {
        const BarajaDePoker baraja(static_cast<Integer>(GetParam()), comodines);
        std::map<ClaseDeMano, std::pair<Integer, Long>> vistas;
        std::string primera;
        CadaMano(baraja, kTodas, [&] {
            AnalizaJugada(1);
            const Integer mejor = poker.MejorJugada(1);
            const std::pair<Integer, Long> vale{mejor, ValorJugada(mejor, 1)};
            if (vistas.try_emplace(LaClase(), vale).first->second != vale && primera.empty())
                primera = ManoEscrita();
        });
        EXPECT_EQ(primera, "") << "comodines " << comodines - 1;
    }
}

INSTANTIATE_TEST_SUITE_P(Barajas, BarajaEntera, testing::Range(1, 7));
