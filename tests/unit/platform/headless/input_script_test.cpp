#include "platform/headless/input_script.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

struct EntradaSinPantalla : testing::Test {
    TableroControles tablero;
    GuionEntrada guion;

    EntradaSinPantalla() {
        tablero.Coloca({Control::Pic_Botonera, 0}, {710, 0, 90, 600});
        for (int i = 1; i <= 8; ++i) {
            tablero.Coloca({Control::Pic_Boton, i}, {20, 5 + 60 * (i - 1), 50, 50});
            tablero.Muestra({Control::Pic_Boton, i}, true);
        }
    }
    std::optional<Evento> Toma() { return guion.Toma(tablero); }
};

TEST_F(EntradaSinPantalla, UnClicEnElTapeteSonCuatroEventosDeMesa) {
    guion.RatonClic(300, 200, 2);
    for (TipoEvento tipo : {TipoEvento::RatonMueve, TipoEvento::RatonPulsa, TipoEvento::RatonSuelta,
                            TipoEvento::RatonClic}) {
        const auto evento = Toma();
        ASSERT_TRUE(evento);
        EXPECT_EQ(evento->tipo, tipo);
        EXPECT_EQ(evento->control, Control::Mesa);
        EXPECT_EQ(evento->x, 300);
        EXPECT_EQ(evento->y, 200);
    }
    EXPECT_TRUE(guion.Vacio());
}

TEST_F(EntradaSinPantalla, ElClicLlevaElBotonDerecho) {
    guion.RatonPulsa(10, 10, 2);
    EXPECT_EQ(Toma()->boton, 2);
}

TEST_F(EntradaSinPantalla, UnClicSobreUnBotonEsSoloElClicDeEseBoton) {
    guion.RatonClic(740, 70, 1);
    EXPECT_FALSE(Toma()); // the move
    EXPECT_FALSE(Toma()); // the press
    EXPECT_FALSE(Toma()); // the release
    const auto evento = Toma();
    ASSERT_TRUE(evento);
    EXPECT_EQ(evento->tipo, TipoEvento::Clic);
    EXPECT_EQ(evento->control, Control::Pic_Boton);
    EXPECT_EQ(evento->indice, 2);
}

TEST_F(EntradaSinPantalla, EntreLosBotonesEstaLaBotoneraEnSusPixeles) {
    guion.RatonMueve(715, 590);
    const auto evento = Toma();
    ASSERT_TRUE(evento);
    EXPECT_EQ(evento->control, Control::Pic_Botonera);
    EXPECT_EQ(evento->x, 5);
    EXPECT_EQ(evento->y, 590);
}

TEST_F(EntradaSinPantalla, UnControlOcultoNoRecibeNada) {
    guion.PulsaControl({Control::Pic_BotContinuar, 0});
    EXPECT_FALSE(Toma());
    EXPECT_TRUE(guion.Vacio());

    tablero.Muestra({Control::Pic_BotContinuar, 0}, true);
    guion.PulsaControl({Control::Pic_BotContinuar, 0});
    EXPECT_EQ(Toma()->control, Control::Pic_BotContinuar);
}

TEST_F(EntradaSinPantalla, NadaSeVeSobreUnPanelOculto) {
    tablero.Coloca({Control::Pic_Sugerencia, 0}, {0, 500, 190, 78});
    tablero.Coloca({Control::Bot_CerrarSuge, 0}, {171, 2, 16, 16});
    tablero.Muestra({Control::Bot_CerrarSuge, 0}, true);
    EXPECT_EQ(tablero.BajoPunto(175, 505).control, Control::Mesa);

    tablero.Muestra({Control::Pic_Sugerencia, 0}, true);
    EXPECT_EQ(tablero.BajoPunto(175, 505).control, Control::Bot_CerrarSuge);
    EXPECT_EQ(tablero.BajoPunto(50, 505).control, Control::Pic_Sugerencia);
}

TEST_F(EntradaSinPantalla, LoQueSeMiraEsElTableroDelMomentoEnQueSeToma) {
    guion.RatonMueve(50, 500);
    tablero.Coloca({Control::Pic_SelOpciones, 0}, {40, 490, 180, 40});
    tablero.Muestra({Control::Pic_SelOpciones, 0}, true);
    const auto evento = Toma();
    ASSERT_TRUE(evento);
    EXPECT_EQ(evento->control, Control::Pic_SelOpciones);
    EXPECT_EQ(evento->x, 10);
    EXPECT_EQ(evento->y, 10);
}

TEST_F(EntradaSinPantalla, ElRatonApretadoEnElTapeteSigueSiendoDelTapete) {
    guion.RatonPulsa(400, 550, 1);
    guion.RatonMueve(740, 70);
    guion.RatonSuelta(740, 70, 1);
    guion.RatonMueve(740, 70);
    EXPECT_EQ(Toma()->control, Control::Mesa);
    EXPECT_EQ(Toma()->control, Control::Mesa);
    EXPECT_EQ(Toma()->control, Control::Mesa);
    EXPECT_FALSE(Toma()); // released: the button lies under the pointer
}

} // namespace
