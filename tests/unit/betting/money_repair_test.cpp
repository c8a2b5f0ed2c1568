// Money that a match cannot have, as a damaged file may tell of it.

#include "betting/bet_state.h"
#include "betting/money_repair.h"
#include "core/default_settings.h"

#include <gmock/gmock.h>

#include "storage/settings_repair.h"
#include "tests/support/money.h"

namespace {

using namespace prueba;
using testing::ElementsAre;

constexpr Integer kRestoMaximo = 995;
constexpr MesaConDinero kConBote{.banca = 0, .resto_maximo = kRestoMaximo};

struct ReparaDineroTest : MesaConFichas {
    void SetUp() override {
        MesaConFichas::SetUp();
        PonValoresPorDefecto();
        estado.PartidaEnCurso = true;
        PonRestos(200, 200, 200, 200);
    }
    static void PonRestos(int a, int b, int c, int d) {
        int asiento = 0;
        for (const int resto : {a, b, c, d})
            Tiene(++asiento, resto);
    }
    static void SinAsiento(int asiento) {
        estado.EstadoJugador(asiento) = kDesactivado;
        CuentaJugadores();
    }
    static void PonApuestas(int cantidad) {
        for (int asiento = 1; asiento <= 4; ++asiento)
            apuestas.Apuesta(asiento, 1, kFaseApuestas) = static_cast<Integer>(cantidad);
    }
    // The pot and the seats 1 to 4.
    static std::vector<int> Restos() {
        std::vector<int> restos;
        for (int asiento = 0; asiento <= 4; ++asiento)
            restos.push_back(RestoDe(asiento));
        return restos;
    }
};

TEST_F(ReparaDineroTest, UnaMesaSanaSeQuedaComoEsta) {
    PonRestos(0, 780, 3, 2);
    Tiene(kBote, 15);
    PonApuestas(3);
    const EstadoJuego antes = estado;
    ReparaFichas();
    ReparaPartidaConDinero(kConBote);
    EXPECT_TRUE(estado == antes);
}

// Normas may change it in the middle of the match: it counts for the next one.
TEST_F(ReparaDineroTest, UnRestoInicialCambiadoAMediaPartidaNoCambiaElDinero) {
    PonRestos(500, 300, 700, 500);
    estado.RestoInicial = 50;
    ReparaPartidaConDinero(kConBote);
    EXPECT_THAT(Restos(), ElementsAre(0, 500, 300, 700, 500));
}

TEST_F(ReparaDineroTest, MasDeLoQuePudieronTraerLosAsientosEmpiezaDeNuevo) {
    PonRestos(995, 995, 995, 995);
    ReparaPartidaConDinero(kConBote);
    EXPECT_THAT(Restos(), ElementsAre(0, 995, 995, 995, 995));
    Tiene(kBote, 1);
    ReparaPartidaConDinero(kConBote);
    EXPECT_THAT(Restos(), ElementsAre(0, 200, 200, 200, 200));
}

TEST_F(ReparaDineroTest, UnaMesaSinUnPuntoEmpiezaDeNuevo) {
    PonRestos(0, 0, 0, 0);
    PonApuestas(5);
    SinAsiento(3);
    ReparaPartidaConDinero(kConBote);
    EXPECT_THAT(Restos(), ElementsAre(0, 200, 200, 0, 200));
    EXPECT_EQ(EnApuestas(), 0);
}

TEST_F(ReparaDineroTest, LoDeUnAsientoQueNoJuegaVaAlBote) {
    SinAsiento(1);
    ReparaPartidaConDinero(kConBote);
    EXPECT_THAT(Restos(), ElementsAre(200, 0, 200, 200, 200));
}

TEST_F(ReparaDineroTest, ConBancaLoDeNadieYElBoteSonDeLaBanca) {
    SinAsiento(1);
    Tiene(kBote, 30);
    ReparaPartidaConDinero({.banca = 4, .resto_maximo = kRestoMaximo});
    EXPECT_THAT(Restos(), ElementsAre(0, 0, 200, 200, 430));
}

TEST_F(ReparaDineroTest, UnBoteQueNadiePuedeJugarSeReparte) {
    PonRestos(0, 0, 0, 0);
    Tiene(kBote, 801);
    ReparaPartidaConDinero(kConBote);
    EXPECT_THAT(Restos(), ElementsAre(0, 201, 200, 200, 200));
    PonRestos(0, 0, 0, 0);
    SinAsiento(1);
    Tiene(kBote, 800);
    ReparaPartidaConDinero(kConBote);
    EXPECT_THAT(Restos(), ElementsAre(0, 0, 267, 267, 266));
}

TEST_F(ReparaDineroTest, LasApuestasQueElBoteNoContieneNoSonNinguna) {
    Tiene(kBote, 20);
    PonApuestas(5);
    ReparaPartidaConDinero(kConBote);
    EXPECT_EQ(EnApuestas(), 20);
    Tiene(kBote, 19);
    ReparaPartidaConDinero(kConBote);
    EXPECT_EQ(EnApuestas(), 0);
    EXPECT_EQ(RestoDe(kBote), 19);
}

TEST_F(ReparaDineroTest, TrasUnaManoPagadaLasApuestasSiguenJuntoAlBoteVacio) {
    PonApuestas(25);
    ReparaPartidaConDinero(kConBote);
    EXPECT_EQ(EnApuestas(), 100);
}

TEST_F(ReparaDineroTest, SinPartidaElDineroNoSeMira) {
    estado.JuegoActivo = kPoker;
    estado.PartidaEnCurso = false;
    PonRestos(0, 0, 0, 0);
    ReparaJuego();
    EXPECT_THAT(Restos(), ElementsAre(0, 0, 0, 0, 0));
}

TEST_F(ReparaDineroTest, EnPokerElBoteSigueSiendoElBote) {
    estado.JuegoActivo = kPoker;
    Tiene(kBote, 20);
    ReparaJuego();
    EXPECT_THAT(Restos(), ElementsAre(20, 200, 200, 200, 200));
}

TEST_F(ReparaDineroTest, UnaBancaDeSieteYMediaQueNoJuegaPasaAlSiguiente) {
    estado.JuegoActivo = kSieteYMedia;
    estado.JugadorBanca = 4;
    SinAsiento(4);
    SinAsiento(1);
    ReparaJuego();
    EXPECT_EQ(estado.JugadorBanca, 2);
    EXPECT_THAT(Restos(), ElementsAre(0, 0, 600, 200, 0));
    estado.JugadorBanca = 4;
    estado.SentidoJuego = kInverso;
    ReparaJuego();
    EXPECT_EQ(estado.JugadorBanca, 3);
}

TEST_F(ReparaDineroTest, EnBlackJackLaBancaEsElAsiento2DigaLoQueDigaElArchivo) {
    estado.JuegoActivo = kBlackJack;
    estado.JugadorBanca = 4;
    SinAsiento(3);
    ReparaJuego();
    EXPECT_THAT(Restos(), ElementsAre(0, 200, 400, 0, 200));
}

TEST_F(ReparaDineroTest, UnRestoInicialDe0EsElDeSiempre) {
    estado.JuegoActivo = kPoker;
    estado.RestoInicial = 0;
    PonRestos(0, 0, 0, 0);
    ReparaJuego();
    EXPECT_THAT(Restos(), ElementsAre(0, 200, 200, 200, 200));
}

} // namespace
