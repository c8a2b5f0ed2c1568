// The printed tables, against the rules in words.

#include "core/game_state.h"
#include "games/blackjack/strategy_tables.h"

#include <gtest/gtest.h>

#include <string>

namespace {

constexpr char kSinFila = 0;

bool Entre(int valor, int desde, int hasta) {
    return valor >= desde && valor <= hasta;
}

char SegunReglaDura(int puntos, Integer banca) {
    if (puntos >= 17)
        return 'P';
    if (puntos >= 13)
        return Entre(banca, 2, 6) ? 'P' : 'C';
    if (puntos == 12)
        return Entre(banca, 4, 6) ? 'P' : 'C';
    if (puntos == 11)
        return banca == kAs ? 'C' : 'D';
    if (puntos == 10)
        return Entre(banca, 2, 9) ? 'D' : 'C';
    return puntos == 9 && Entre(banca, 3, 6) ? 'D' : 'C';
}

char SegunReglaBlanda(int puntos, Integer banca) {
    if (puntos == 18)
        return banca == kAs || banca >= 9 ? 'C' : 'P';
    return puntos > 18 ? 'P' : 'C';
}

bool SeAbre(int carta, Integer banca) {
    switch (carta) {
    case 1:
    case 8:
        return true;
    case 2:
    case 3:
    case 7:
        return Entre(banca, 2, 7);
    case 4:
        return Entre(banca, 5, 6);
    case 6:
        return Entre(banca, 2, 6);
    case 9:
        return Entre(banca, 2, 9) && banca != 7;
    default:
        return false;
    }
}

TEST(TablasDeEstrategia, LaManoDuraVaDeCuatroAVeintiuno) {
    for (int puntos = 4; puntos <= 21; ++puntos) {
        for (Integer banca = 1; banca <= 10; ++banca) {
            EXPECT_EQ(kTablaManoDura.Letra(puntos, banca), SegunReglaDura(puntos, banca))
                << puntos << " contra " << banca;
        }
    }
    EXPECT_EQ(kTablaManoDura.Letra(3, 5), kSinFila);
    EXPECT_EQ(kTablaManoDura.Letra(22, 5), kSinFila);
}

TEST(TablasDeEstrategia, LaManoBlandaVaDeTreceAVeinte) {
    for (int puntos = 13; puntos <= 20; ++puntos) {
        for (Integer banca = 1; banca <= 10; ++banca) {
            EXPECT_EQ(kTablaManoBlanda.Letra(puntos, banca), SegunReglaBlanda(puntos, banca))
                << puntos << " contra " << banca;
        }
    }
    EXPECT_EQ(kTablaManoBlanda.Letra(12, 5), kSinFila);
    EXPECT_EQ(kTablaManoBlanda.Letra(21, 5), kSinFila);
}

TEST(TablasDeEstrategia, LosParesVanDeDosAsesADosDieces) {
    for (int carta = 1; carta <= 10; ++carta) {
        for (Integer banca = 1; banca <= 10; ++banca) {
            EXPECT_EQ(kTablaAbrirElPar.Letra(carta, banca), SeAbre(carta, banca) ? 'S' : 'N')
                << "par de " << carta << " contra " << banca;
        }
    }
    EXPECT_EQ(kTablaAbrirElPar.Letra(0, 5), kSinFila);
    EXPECT_EQ(kTablaAbrirElPar.Letra(11, 5), kSinFila);
}

TEST(TablasDeEstrategia, UnaFiguraDeLaBancaEsUnDiez) {
    for (const Integer figura : std::vector<Integer>{11, 12, 13}) {
        EXPECT_EQ(kTablaManoDura.Letra(10, figura), 'C');
        EXPECT_EQ(kTablaManoDura.Letra(11, figura), 'D');
        EXPECT_EQ(kTablaManoBlanda.Letra(18, figura), 'C');
        EXPECT_EQ(kTablaAbrirElPar.Letra(9, figura), 'N');
    }
}

TEST(TablasDeEstrategia, SinCartaDeLaBancaNoHayLetra) {
    EXPECT_EQ(kTablaManoDura.Letra(10, 0), kSinFila);
}

TEST(TablasDeEstrategia, CadaTablaDiceQueEs) {
    EXPECT_EQ(kTablaManoDura.titulo, "OPCIONES EN MANO DURA");
    EXPECT_EQ(kTablaManoDura.leyenda, "C:Carta   P:Plantarse   D:Doblar");
    EXPECT_EQ(kTablaManoDura.columna, "Puntos");
    EXPECT_EQ(kTablaManoBlanda.titulo, "OPCIONES EN MANO BLANDA");
    EXPECT_EQ(kTablaManoBlanda.leyenda, "C:Carta   P:Plantarse");
    EXPECT_EQ(kTablaManoBlanda.columna, "Juego");
    EXPECT_EQ(kTablaAbrirElPar.titulo, "OPCIONES DE ABRIR EL PAR");
    EXPECT_EQ(kTablaAbrirElPar.leyenda, "S: Si abrir    N: No abrir");
    EXPECT_EQ(kTablaAbrirElPar.columna, "Par");
}

TEST(TablasDeEstrategia, CadaFilaLlevaSuRotulo) {
    for (int fila = 0; fila < 18; ++fila)
        EXPECT_EQ(kTablaManoDura.filas[static_cast<std::size_t>(fila)].rotulo,
                  std::to_string(fila + 4));
    EXPECT_EQ(kTablaManoBlanda.filas.front().rotulo, "(A,2)");
    EXPECT_EQ(kTablaManoBlanda.filas.back().rotulo, "(A,9)");
    EXPECT_EQ(kTablaAbrirElPar.filas.front().rotulo, "(A,A)");
    EXPECT_EQ(kTablaAbrirElPar.filas.back().rotulo, "(10,10)");
}

} // namespace
