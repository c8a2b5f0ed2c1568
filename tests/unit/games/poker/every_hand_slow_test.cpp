// Every hand of every deck: the names of the suits tell nothing of what it is worth.

#include <gtest/gtest.h>

#include <map>
#include <utility>

#include "games/poker/hand_reading.h"
#include "games/poker/hand_value.h"
#include "tests/support/poker_hands.h"

using namespace prueba;

namespace {

constexpr int kTodas = 1;

struct BarajaEntera : testing::TestWithParam<int> {};

} // namespace

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
