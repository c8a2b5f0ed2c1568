// The pile of cards.

#include <gtest/gtest.h>

#include <string>

#include "table/pile.h"
#include "tests/support/live_table.h"

using namespace prueba;

namespace {

struct Pila : MesaViva {
    Pila() { p.UsaLienzosRegistrados(); }
    const std::vector<std::string>& Pinta(int n) {
        p.Dibujado(Control::Mesa).Olvida();
        DibujarMazo(304, 230, n);
        return p.Dibujado(Control::Mesa).Llamadas();
    }
};

std::string Dorso(int x, int y) {
    return "Carta(" + std::to_string(x) + ", " + std::to_string(y) +
           "; palo 0 valor 0 cara 1 orientación 1)";
}

} // namespace

TEST_F(Pila, UnDorsoPorCadaCuatroCartasSubiendoHaciaLaDerecha) {
    const auto& dibujado = Pinta(40);
    ASSERT_EQ(dibujado.size(), 11U);
    EXPECT_EQ(dibujado[0], "Fieltro(286, 230, 133, 155)");
    EXPECT_EQ(dibujado[1], Dorso(304, 243));
    EXPECT_EQ(dibujado[2], Dorso(305, 242));
    EXPECT_EQ(dibujado[10], Dorso(313, 234));
}

TEST_F(Pila, LaQuintaCartaEmpiezaOtroDorso) {
    EXPECT_EQ(Pinta(4).size(), 2U);
    EXPECT_EQ(Pinta(5).size(), 3U);
}

TEST_F(Pila, UnaSolaCartaEsUnDorso) {
    EXPECT_EQ(Pinta(1).size(), 2U);
}

TEST_F(Pila, UnaPilaVaciaSoloDejaFieltro) {
    EXPECT_EQ(Pinta(0), (std::vector<std::string>{"Fieltro(286, 230, 133, 155)"}));
}

TEST_F(Pila, ConSeisBarajasUnDorsoSonVeinticuatroCartas) {
    Juega(kBlackJack);
    EXPECT_EQ(Pinta(312).size(), 1U + 13U);
    EXPECT_EQ(Pinta(25).size(), 3U);
}
