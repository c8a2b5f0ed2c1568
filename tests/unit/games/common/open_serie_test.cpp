// A hand becomes two.

#include <gtest/gtest.h>

#include "betting/bet_state.h"
#include "betting/chips.h"
#include "games/common/series.h"
#include "tests/support/bank_table.h"
#include "tests/support/live_table.h"

using namespace prueba;

namespace {

struct AbrirSerie : MesaViva {
    void Turno(Integer juego, const std::vector<Carta>& cartas) {
        Juega(juego);
        estado.JugadorBanca = 2;
        estado.SeriesJugador(4) = 1;
        PonSerie(4, 1, cartas);
        TocaJugar(4);
        AsignarResto(4, 100);
        series.PuedeAbrir = true;
    }
    // Chips of the seat's serie, by denomination.
    static void Puestas(Integer serie, const std::vector<Integer>& fichas) {
        for (Integer ficha : fichas) {
            const Integer numero = ++apuestas.NumFichasPuestas(4, serie);
            apuestas.FichasPuestas(4, serie, numero) = ficha;
        }
    }
    static Carta CartaDe(Integer serie, int lugar) {
        return {estado.Mano(4, serie, lugar, kPalo), estado.Mano(4, serie, lugar, kValor)};
    }
};

} // namespace

TEST_F(AbrirSerie, LaSegundaCartaPasaConTodoASuSerie) {
    Turno(kBlackJack, {{kOros, 8}, {kCopas, 8}});
    estado.Mano(4, 1, 2, kAltura) = kLevantada;
    AbreSerie();
    EXPECT_EQ(estado.SeriesJugador(4), 2);
    EXPECT_EQ(estado.NumCartas(4, 1), 1);
    EXPECT_EQ(estado.NumCartas(4, 2), 1);
    EXPECT_EQ(CartaDe(1, 1), Carta(kOros, 8));
    EXPECT_EQ(CartaDe(2, 1), Carta(kCopas, 8));
    EXPECT_EQ(estado.Mano(4, 2, 1, kAltura), kLevantada);
    EXPECT_EQ(CartaDe(1, 2), Carta(kSinCarta, 0));
    EXPECT_EQ(estado.Mano(4, 1, 2, kCara), 0);
    EXPECT_FALSE(series.PuedeAbrir);
}

TEST_F(AbrirSerie, LaNuevaEsLaUltimaAunqueSeAbraLaPrimera) {
    Turno(kBlackJack, {{kOros, 8}, {kCopas, 8}});
    PonSerie(4, 2, {{kBastos, 8}, {kBastos, 5}});
    AbreSerie();
    EXPECT_EQ(estado.SeriesJugador(4), 3);
    EXPECT_EQ(CartaDe(3, 1), Carta(kCopas, 8));
    EXPECT_EQ(CartaDe(2, 2), Carta(kBastos, 5));
    EXPECT_EQ(estado.NumCartas(4, 2), 2);
}

TEST_F(AbrirSerie, EnElBlackJackLaNuevaLlevaLaMismaApuestaConSuSeguro) {
    Turno(kBlackJack, {{kOros, 8}, {kCopas, 8}});
    Apuesta(4, 1, 15);
    apuestas.Apuesta(4, 1, 5) = 7;
    Puestas(1, {4, 3, 3, 2});
    AbreSerie();
    EXPECT_EQ(ApuestaTotal(4, 1), 22);
    EXPECT_EQ(apuestas.Apuesta(4, 2, 2), 15);
    EXPECT_EQ(apuestas.Apuesta(4, 2, 3), 0);
    EXPECT_EQ(apuestas.Apuesta(4, 2, 5), 7);
    EXPECT_EQ(apuestas.NumFichasPuestas(4, 2), 4);
    EXPECT_EQ(apuestas.FichasPuestas(4, 2, 1), 4);
    EXPECT_EQ(apuestas.FichasPuestas(4, 2, 4), 2);
    EXPECT_EQ(RestoDe(4), 78);
}

TEST_F(AbrirSerie, ElRestoNuncaBajaDeCero) {
    Turno(kBlackJack, {{kOros, 8}, {kCopas, 8}});
    Apuesta(4, 1, 15);
    AsignarResto(4, 10);
    AbreSerie();
    EXPECT_EQ(RestoDe(4), 0);
}

TEST_F(AbrirSerie, EnLaSieteYMediaLasDosMediasQuedanDescubiertasYNoSeMueveDinero) {
    Turno(kSieteYMedia, {});
    PonSerieTapada(4, 1, {{kOros, kSota}, {kCopas, kRey}});
    Apuesta(4, 1, 15);
    Puestas(1, {4, 3});
    AbreSerie();
    EXPECT_EQ(CartaDe(1, 1), Carta(kOros, kSota));
    EXPECT_EQ(CartaDe(2, 1), Carta(kCopas, kRey));
    for (const Integer serie : std::vector<Integer>{1, 2}) {
        EXPECT_EQ(estado.Mano(4, serie, 1, kCara), kDescubierta);
        EXPECT_EQ(estado.Mano(4, serie, 1, kTapada), 0);
    }
    EXPECT_EQ(ApuestaTotal(4, 2), 0);
    EXPECT_EQ(apuestas.NumFichasPuestas(4, 2), 0);
    EXPECT_EQ(RestoDe(4), 100);
}

TEST_F(AbrirSerie, LasCartasSuenanAlDescubrirse) {
    Turno(kSieteYMedia, {{kOros, kSota}, {kCopas, kRey}});
    EmpiezaTraza();
    AbreSerie();
    EXPECT_EQ(TrazaDe("Sonido"), std::vector<std::string>{"Sonido(0, 25)"});
}

TEST_F(AbrirSerie, NoHayQuintaSerie) {
    Turno(kBlackJack, {{kOros, 8}, {kCopas, 8}});
    PonSerie(4, 4, {{kBastos, 8}});
    EXPECT_THROW(AbreSerie(), IndiceFuera);
    EXPECT_EQ(estado.SeriesJugador(4), 4);
    EXPECT_EQ(estado.NumCartas(4, 1), 2);
}

TEST_F(AbrirSerie, LaTapadaSeBuscaDesdeLaPrimeraCarta) {
    Turno(kSieteYMedia, {{kOros, 2}, {kCopas, 3}});
    EXPECT_EQ(LugarTapada(4, 1), 0);
    estado.Mano(4, 1, 2, kTapada) = kTapadaSi;
    EXPECT_EQ(LugarTapada(4, 1), 2);
}
