#include "reports/estadis.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "forms/form.h"
#include "games/common/series.h"
#include "platform/headless/headless_platform.h"
#include "session/main_buttons.h"
#include "table/button_column.h"
#include "table/deck.h"
#include "table/game_row.h"
#include "tests/support/bank_table.h"
#include "tests/support/printed_text.h"
#include "tools/common/fresh_table.h"

using namespace prueba;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

struct Estadis : testing::Test {
    Estadis() {
        UsaPlataforma(p);
        PonMesaNueva();
    }
    ~Estadis() override { estadis::Deja(); }

    static void Juega(Integer juego) {
        estado.JuegoActivo = juego;
        ConstruirBaraja();
    }

    PlataformaSinPantalla p;
};

} // namespace

TEST_F(Estadis, CadaJuegoTieneLaSuya) {
    const std::vector<std::pair<Integer, std::string>> titulos{
        {kPoker, "Cartas normales:     Comodines:     Total cartas baraja:      Combinaciones "
                 "posibles:"},
        {kBlackJack, "Jugador  Serie  Apuesta  Seguro     Jugada"},
        {kTute, "Baza"},
        {kBrisca, "Baza"},
        {kSieteYMedia, "Jugador   Serie  Apuesta    Jugada"},
        {kCinquillo, "Vuelta"}};
    ASSERT_EQ(titulos.size(), FilasDeJuegos().size());
    for (const auto& [juego, titulo] : titulos) {
        Juega(juego);
        const PaginaImpresa pagina = estadis::Pagina();
        ASSERT_FALSE(pagina.Impresos().empty());
        EXPECT_EQ(pagina.Impresos()[0].texto, titulo);
    }
}

TEST_F(Estadis, SinJuegoLaPaginaEstaVacia) {
    estado.JuegoActivo = 2;
    EXPECT_THAT(estadis::Pagina().Impresos(), IsEmpty());
}

// A hard pair that can be opened prints two tables, one below the other.
TEST_F(Estadis, LaHojaEsTanAltaComoLoQueLleva) {
    Juega(kBlackJack);
    estado.JugadorBanca = 2;
    TocaJugar(4);
    const int corta = estadis::Pagina().Alto();
    PonSerie(4, 1, {{kOros, 8}, {kCopas, 8}});
    series.PuedeAbrir = true;
    const PaginaImpresa larga = estadis::Pagina();
    EXPECT_GT(larga.Alto(), corta);
    for (const Impreso& impreso : larga.Impresos()) {
        EXPECT_LT(impreso.y2, larga.Alto()) << impreso.texto;
        EXPECT_LE(impreso.x2, larga.Ancho()) << impreso.texto;
    }
}

TEST_F(Estadis, SeCierraConElSonidoDeUnBoton) {
    const MandosForma* mandos = MandosDe(Forma::Estadis);
    ASSERT_NE(mandos, nullptr);
    estado.SonidoActivo = true;
    mandos->abre();
    EXPECT_TRUE(estadis::Abierta());
    EXPECT_TRUE(mandos->cierra());
    EXPECT_FALSE(estadis::Abierta());
    EXPECT_THAT(p.sonidos, ElementsAre(SonidoPedido{9, true}));
}

TEST_F(Estadis, CerradaDesdeFueraCalla) {
    estado.SonidoActivo = true;
    estadis::Abre();
    estadis::Deja();
    EXPECT_FALSE(estadis::Abierta());
    EXPECT_THAT(p.sonidos, IsEmpty());
}

TEST_F(Estadis, SoloTieneAyudaYSalida) {
    const MandosForma* mandos = MandosDe(Forma::Estadis);
    EXPECT_TRUE(mandos->pulsa("Pic_BotAyuda", 0));
    EXPECT_THAT(p.temas_ayuda, ElementsAre(kAyudaEstadis));
    EXPECT_FALSE(mandos->pulsa("Pic_Selector", 1));
    EXPECT_FALSE(mandos->escribe("Txt_Nombre", 1, "Ana"));
    EXPECT_FALSE(mandos->desliza("Pic_Potenciometro", 0, 5));
}

TEST_F(Estadis, ElBotonOchoLaAbreConUnJuegoEmpezado) {
    HabilitaBoton(kBotonEstadis, true);
    PulsaBoton(kBotonEstadis);
    EXPECT_THAT(p.formas_abiertas, IsEmpty());
    estado.JuegosJugados = 1;
    PulsaBoton(kBotonEstadis);
    EXPECT_THAT(p.formas_abiertas, ElementsAre(Forma::Estadis));
}
