// What the bet board offers.

#include "betting/bet_state.h"
#include "betting/board.h"

#include <gmock/gmock.h>

#include "tests/support/money.h"

namespace {

using namespace prueba;
using testing::ElementsAre;

struct ApostadoraTest : MesaConFichas {
    static std::vector<std::string> Botones(const ReglasApuesta& reglas) {
        RotulaApostadora(1, reglas);
        std::vector<std::string> textos;
        for (int boton = 1; boton <= kBotonesApostadora; ++boton)
            textos.push_back(apuestas.TextoBoton(boton));
        return textos;
    }
};

TEST_F(ApostadoraTest, QuienAbreLaRondaPuedeReservarse) {
    Tiene(1, 200);
    EXPECT_THAT(Botones(kComoPoker), ElementsAre("Me reservo", "", "", ""));
}

TEST_F(ApostadoraTest, AnteUnaApuestaSeIgualaONoSeVa) {
    Tiene(1, 200);
    apuestas.MaximaApuesta = 40;
    EXPECT_THAT(Botones(kComoPoker), ElementsAre("No voy", "Igualar a 40", "", ""));
}

TEST_F(ApostadoraTest, Con12PuntosAnteUnaApuestaDe40SeVaConElResto) {
    Tiene(1, 12);
    apuestas.MaximaApuesta = 40;
    EXPECT_THAT(Botones(kComoPoker), ElementsAre("No voy", "Voy con mi resto", "", ""));
    EXPECT_EQ(LoQueIguala(1), 12);
}

TEST_F(ApostadoraTest, ConJustoLoQueFaltaSeVaConElResto) {
    Tiene(1, 30);
    apuestas.Apuesta(1, 1, kFaseApuestas) = 10;
    apuestas.MaximaApuesta = 40;
    EXPECT_EQ(Botones(kComoPoker)[1], "Voy con mi resto");
    Tiene(1, 31);
    EXPECT_EQ(Botones(kComoPoker)[1], "Igualar a 40");
    EXPECT_EQ(LoQueIguala(1), 30);
}

TEST_F(ApostadoraTest, ConFichasPuestasSeFinalizaOSeAnula) {
    Tiene(1, 200);
    apuestas.Apuesta(1, 1, kFaseApuestas) = 15;
    apuestas.ApuestaEnCurso = 15;
    apuestas.MaximaApuesta = 15;
    EXPECT_THAT(Botones(kComoPoker), ElementsAre("", "", "Finalizar apuesta", "Anular apostado"));
    apuestas.MaximaApuesta = 25;
    EXPECT_THAT(Botones(kComoPoker),
                ElementsAre("", "Igualar a 25", "Finalizar apuesta", "Anular apostado"));
}

TEST_F(ApostadoraTest, ConBancaNoSeIgualaNiSePasa) {
    Tiene(1, 200);
    apuestas.MaximaApuesta = 25;
    EXPECT_THAT(Botones(kComoBlackJack), ElementsAre("", "", "", ""));
    apuestas.ApuestaEnCurso = 5;
    EXPECT_THAT(Botones(kComoBlackJack),
                ElementsAre("", "", "Finalizar apuesta", "Anular apostado"));
}

TEST_F(ApostadoraTest, NoBastaConMenosDeLaMaximaMientrasQuedenFichas) {
    Tiene(1, 200);
    apuestas.Apuesta(1, 1, kFaseApuestas) = 10;
    apuestas.MaximaApuesta = 15;
    EXPECT_TRUE(ApuestaInsuficiente(1));
    Tiene(1, 0);
    EXPECT_FALSE(ApuestaInsuficiente(1));
    Tiene(1, 200);
    apuestas.MaximaApuesta = 10;
    EXPECT_FALSE(ApuestaInsuficiente(1));
}

} // namespace
