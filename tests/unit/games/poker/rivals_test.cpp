// The other seats of a hand of Póker that still hold cards.

#include "games/poker/rivals.h"

#include <gtest/gtest.h>

#include "betting/chips.h"
#include "tests/support/poker_seats.h"

using namespace prueba;

namespace {

class RivalesDePoker : public AsientosDePoker {
protected:
    static Integer ActitudCon(const std::vector<Integer>& caracteres) {
        Da(1, "Ko Jc 8e 5b 2o");
        estado.CaracterJugador(1) = kAgresivo; // its own does not count
        for (Integer asiento = 2; asiento <= 4; ++asiento)
            Da(asiento, "");
        for (std::size_t i = 0; i < caracteres.size(); ++i)
            Rivales({static_cast<Integer>(i + 2)}, caracteres[i]);
        return ActitudMesa();
    }
};

} // namespace

TEST_F(RivalesDePoker, LaActitudEsLaMediaDeQuienesTienenCartas) {
    EXPECT_EQ(ActitudCon({kConservador}), 1);
    EXPECT_EQ(ActitudCon({kConservador, kAgresivo}), 2);
    EXPECT_EQ(ActitudCon({kConservador, kConservador, kMedio}), 1) << "1.33";
    EXPECT_EQ(ActitudCon({kMedio, kAgresivo, kAgresivo}), 3) << "2.67";
}

TEST_F(RivalesDePoker, LasMitadesVanAlPar) {
    EXPECT_EQ(ActitudCon({kConservador, kMedio}), 2) << "1.5";
    EXPECT_EQ(ActitudCon({kMedio, kAgresivo}), 2) << "2.5";
}

TEST_F(RivalesDePoker, QuienTiroSusCartasNoCuenta) {
    EXPECT_EQ(ActitudCon({kConservador, kAgresivo, kAgresivo}), 2);
    Da(2, "");
    EXPECT_EQ(ActitudMesa(), 3);
}

TEST_F(RivalesDePoker, DeTresCaracteresNoSaleLaActitudCero) {
    for (Integer uno = 1; uno <= 3; ++uno) {
        for (Integer otro = 1; otro <= 3; ++otro)
            EXPECT_GE(ActitudCon({uno, otro}), 1);
    }
}

TEST_F(RivalesDePoker, SinRivalesNoHayActitud) {
    EXPECT_EQ(ActitudCon({}), 0);
}

TEST_F(RivalesDePoker, EstanSinRestoCuandoNingunoTieneFichas) {
    Rivales({1, 2, 3}, kMedio);
    AsignarResto(2, 0);
    EXPECT_FALSE(RivalesSinResto());
    AsignarResto(3, 1);
    EXPECT_FALSE(RivalesSinResto());
    AsignarResto(3, 0);
    EXPECT_TRUE(RivalesSinResto()) << "seat 4 has chips and no cards, seat 1 is the one that asks";
}

TEST_F(RivalesDePoker, SinRivalesNadieTieneResto) {
    Da(1, "Ko Jc 8e 5b 2o");
    EXPECT_TRUE(RivalesSinResto());
}
