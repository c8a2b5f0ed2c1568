// Who gets what of the pot.

#include "betting/bet_state.h"
#include "betting/prizes.h"

#include <gmock/gmock.h>

#include "tests/support/money.h"

namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

struct PremiosTest : prueba::MesaConFichas {
    // Ranks of the seats 1 to 4 at a showdown where the pot holds just the bets.
    static std::vector<int> Premios(std::initializer_list<int> puestos) {
        return PremiosConBote(puestos, EnApuestas());
    }
    static std::vector<int> PremiosConBote(std::initializer_list<int> puestos, int bote) {
        Tiene(kBote, bote);
        Integer asiento = 1;
        for (const int puesto : puestos)
            apuestas.PuestoJugador(asiento++) = static_cast<Integer>(puesto);
        RepartePremios();
        std::vector<int> premios;
        for (int i = 1; i <= 4; ++i)
            premios.push_back(apuestas.PremioJugador(i));
        return premios;
    }
    // Seat 1, all in, shares the first rank with seats 2 and 3, who have bet more; seat 4 has folded.
    static std::vector<int> UnCortoYDosPlenos(int corto, int pleno, int retirado) {
        Juega(1, 0, corto);
        Juega(2, 50, pleno);
        Juega(3, 50, pleno);
        SeRetira(4, 50, retirado);
        return Premios({1, 1, 1, 0});
    }
};

TEST_F(PremiosTest, ElUnicoGanadorSeLlevaElBote) {
    Juega(2, 100, 25);
    Juega(4, 80, 25);
    EXPECT_THAT(Premios({0, 1, 0, 2}), ElementsAre(0, 50, 0, 0));
}

TEST_F(PremiosTest, DeUnBoteDe31DosGanadoresCobran15YElPrimero16) {
    SeRetira(1, 50, 11);
    Juega(2, 50, 10);
    Juega(4, 50, 10);
    EXPECT_THAT(Premios({0, 1, 0, 1}), ElementsAre(0, 16, 0, 15));
}

TEST_F(PremiosTest, GanaElQueFueConSuRestoDe10YLoDemasEsDelSegundo) {
    Juega(1, 0, 10);
    Juega(2, 0, 20);
    Juega(3, 0, 40);
    EXPECT_THAT(Premios({1, 2, 3, 0}), ElementsAre(30, 40, 0, 0));
}

TEST_F(PremiosTest, ElGanadorCortoCobraSoloSuCuotaYElPlenoTambienLoDemas) {
    Juega(1, 0, 10);
    Juega(2, 60, 30);
    Juega(3, 60, 30);
    EXPECT_THAT(Premios({1, 1, 2, 0}), ElementsAre(15, 55, 0, 0));
}

// The part beyond is 3 for two: 2 each, and a point comes back from the first winner, short or not.
TEST_F(PremiosTest, CuandoElRepartoRedondeaHaciaArribaElPrimeroCobraUnoMenos) {
    EXPECT_THAT(UnCortoYDosPlenos(10, 11, 10), ElementsAre(12, 15, 15, 0));
}

TEST_F(PremiosTest, QuienNoCobraNadaTampocoPierdeElPunto) {
    EXPECT_THAT(UnCortoYDosPlenos(0, 1, 1), ElementsAre(0, 1, 2, 0));
}

// The half of 5 is 2.5, to the even neighbour: 2, and the odd point goes to the first.
TEST_F(PremiosTest, LaMitadRedondeaAlPar) {
    EXPECT_THAT(UnCortoYDosPlenos(10, 12, 10), ElementsAre(14, 15, 15, 0));
}

TEST_F(PremiosTest, TambienEsPlenoElQueConservaFichasAunqueUnRetiradoPusieraMas) {
    Juega(1, 30, 10);
    Juega(2, 0, 5);
    SeRetira(3, 0, 25);
    EXPECT_THAT(Premios({1, 1, 0, 0}), ElementsAre(33, 7, 0, 0));
}

TEST_F(PremiosTest, DosSegundosSeRepartenElRestoYElImparEsDelPrimero) {
    Juega(1, 0, 5);
    Juega(2, 10, 20);
    Juega(3, 10, 21);
    EXPECT_THAT(Premios({1, 2, 2, 0}), ElementsAre(15, 16, 15, 0));
}

TEST_F(PremiosTest, SinSegundosElRestoEsDelPrimerGanador) {
    SeRetira(1, 100, 20);
    SeRetira(2, 100, 20);
    Juega(3, 0, 5);
    Juega(4, 0, 5);
    EXPECT_THAT(Premios({0, 0, 1, 1}), ElementsAre(0, 0, 40, 10));
}

TEST_F(PremiosTest, ElBoteDeManosAnterioresTambienSeCobra) {
    Juega(1, 100, 5);
    Juega(2, 100, 5);
    EXPECT_THAT(PremiosConBote({1, 2, 0, 0}, 90), ElementsAre(90, 0, 0, 0));
}

TEST_F(PremiosTest, NadieCobraMasDeLoQueHayEnElBote) {
    Juega(1, 0, 50);
    Juega(2, 0, 80);
    EXPECT_THAT(PremiosConBote({1, 2, 0, 0}, 30), ElementsAre(30, 0, 0, 0));
}

TEST_F(PremiosTest, LosPremiosDeAntesSeOlvidanYSinGanadorNoHayNinguno) {
    apuestas.PremioJugador(3) = 70;
    EXPECT_THAT(PremiosConBote({0, 0, 0, 0}, 31), Each(0));
}

TEST_F(PremiosTest, PagarElBoteEnsenaUnaFichaPorGanadorYClaseYPagaElPremio) {
    apuestas.Fichas(kBote, 1) = 3;
    apuestas.Fichas(kBote, 5) = 2;
    Tiene(1, 4);
    apuestas.PremioJugador(1) = 22;
    apuestas.PremioJugador(3) = 21;
    std::vector<std::vector<int>> botes;
    PagaBote(Anota(), [&] { botes.push_back(FichasDe(kBote)); });

    const LugarDeFichas bote{kBote}, primero{1}, tercero{3};
    EXPECT_THAT(movidas, ElementsAre(FichaMovida{1, bote, primero}, FichaMovida{1, bote, tercero},
                                     FichaMovida{5, bote, primero}, FichaMovida{5, bote, tercero}));
    EXPECT_THAT(botes, ElementsAre(ElementsAre(0, 0, 0, 0, 2, 0), Each(0)));
    EXPECT_THAT(FichasDe(1), ElementsAre(2, 2, 0, 0, 1, 0)); // 4 = 2 + 1 + 1, and 22 on top
    EXPECT_THAT(FichasDe(3), ElementsAre(1, 0, 0, 0, 1, 0));
}

TEST_F(PremiosTest, SinPremiosElBoteSeQueda) {
    Tiene(kBote, 31);
    PagaBote(Anota(), [] { FAIL(); });
    EXPECT_EQ(RestoDe(kBote), 31);
    EXPECT_THAT(movidas, IsEmpty());
}

} // namespace
