#include "table/button_column.h"
#include "table/whole_table.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/live_table.h"

using namespace prueba;

namespace {

struct Columna : MesaViva {
    Columna() { p.UsaLienzosRegistrados(); }
    std::string RotuloVerde() { return p.Tablero().NombreDe({Control::Pic_BotContinuar, 0}); }
    // The lines of the green button: height and words.
    std::vector<std::string> Renglones() {
        std::vector<std::string> renglones;
        for (const std::string& texto : Pintado(Control::Pic_BotContinuar, "Texto"))
            renglones.push_back(texto.substr(0, texto.find(';')));
        return renglones;
    }
    Rectangulo Boton(int indice) { return p.Tablero().LugarDe({Control::Pic_Boton, indice}); }
    // The seat's turn, for which the green button is offered.
    void OfreceElTurnoDe(Integer asiento, const std::string& nombre) {
        ManoEmpezada(asiento);
        estado.NombreJugador(asiento) = nombre;
        PedirContinuar(1);
    }
};

} // namespace

TEST_F(Columna, LosBotonesEstanEnSuLugar) {
    EXPECT_EQ(p.Tablero().LugarDe({Control::Pic_Botonera, 0}), (Rectangulo{710, 0, 90, 600}));
    const int y[] = {0, 5, 125, 65, 245, 305, 365, 425, 185};
    for (int boton = 1; boton <= 8; ++boton) {
        EXPECT_EQ(Boton(boton).x, 710 + (boton == 2 ? 24 : 20)) << boton;
        EXPECT_EQ(Boton(boton).y, y[boton]) << boton;
    }
}

TEST_F(Columna, DeshabilitarPoneElPunteroProhibido) {
    HabilitaBoton(kBotonNueva, false);
    EXPECT_EQ(p.PunteroDe(Control::Pic_Boton, kBotonNueva), Puntero::Prohibido);
    EXPECT_FALSE(BotonHabilitado(kBotonNueva));
    HabilitaBoton(kBotonNueva, true);
    EXPECT_EQ(p.PunteroDe(Control::Pic_Boton, kBotonNueva), Puntero::ManoIndice);
}

TEST_F(Columna, UnBotonSinSuVentanaSigueDeshabilitado) {
    p.formas.clear();
    HabilitaBoton(kBotonNormas, true);
    EXPECT_FALSE(BotonHabilitado(kBotonNormas));
    p.formas = {Forma::Normas};
    HabilitaBoton(kBotonNormas, true);
    EXPECT_TRUE(BotonHabilitado(kBotonNormas));
}

TEST_F(Columna, EntreManosElBotonVerdeDiceContinuar) {
    PedirContinuar(1);
    EXPECT_TRUE(estado.EsperandoJugada);
    EXPECT_TRUE(p.EstaVisible(Control::Pic_BotContinuar, 0));
    EXPECT_EQ(p.PunteroDe(Control::Pic_BotContinuar, 0), Puntero::ManoIndice);
    EXPECT_EQ(RotuloVerde(), "Continuar");
    EXPECT_EQ(Renglones(), (std::vector<std::string>{"Texto(43, 10, \"Continuar\""}));
}

TEST_F(Columna, EnElTurnoDeUnaPersonaOfreceJugarPorElla) {
    OfreceElTurnoDe(4, "Ana");
    EXPECT_EQ(Renglones(),
              (std::vector<std::string>{"Texto(43, 3, \"Ana\"", "Texto(43, 18, \"automático\""}));
}

TEST_F(Columna, EnElTurnoAutomaticoDiceQuienJuega) {
    OfreceElTurnoDe(2, "Luis");
    EXPECT_EQ(RotuloVerde(), "Juega Luis");
}

TEST_F(Columna, OcultarQuitaElBotonYLaEspera) {
    PedirContinuar(1);
    OcultarContinuar();
    EXPECT_FALSE(estado.EsperandoJugada);
    EXPECT_FALSE(p.EstaVisible(Control::Pic_BotContinuar, 0));
}

TEST_F(Columna, CalcularLaMesaPintaTodaLaColumna) {
    CalcularMesa();
    // The rim towards the table, in its two colours, and the eight buttons, one of them drawn on the column.
    const std::vector<std::string> columna{
        "Fieltro(0, 0, 90, 600)", "Linea(0, 0, 0, 600; 2040E0, 1)",
        "Linea(1, 0, 1, 600; 6080E0, 1)", "Fieltro(20, 125, 50, 50)", "Lamina(20, 125)"};
    const auto& llamadas = p.Dibujado(Control::Pic_Botonera).Llamadas();
    ASSERT_GE(llamadas.size(), columna.size());
    EXPECT_EQ(std::vector<std::string>(llamadas.end() - static_cast<std::ptrdiff_t>(columna.size()),
                                       llamadas.end()),
              columna);
    for (const int boton : {1, 3, 4, 5, 6, 7, 8})
        EXPECT_FALSE(p.Dibujado(Control::Pic_Boton, boton).Llamadas().empty()) << boton;
}

TEST_F(Columna, ElBotonQueEstaCorridoSePintaEnLaLineaDeLosDemas) {
    CalcularMesa();
    PintaColumna();
    EXPECT_THAT(p.Dibujado(Control::Pic_Botonera).Llamadas(), testing::Contains("Lamina(20, 125)"));
    EXPECT_TRUE(p.Dibujado(Control::Pic_Boton, kBotonPersonal).Llamadas().empty());
}

TEST_F(Columna, ElBotonQueJugariaPorLaPersonaLoDice) {
    OfreceElTurnoDe(4, "Ana");
    EXPECT_EQ(RotuloVerde(), "Ana automático: el programa juega por este jugador");
}

TEST_F(Columna, ConOtroRotuloUnClicDeAntesValeSiNadieJuegaPorLaPersona) {
    ManoEmpezada(2);
    p.DuermeHasta(100);
    PedirContinuar(1);
    EXPECT_TRUE(ValeElClicVerde(50));
}

TEST_F(Columna, UnClicDeAntesDelRotuloDeLaPersonaNoVale) {
    ManoEmpezada(4);
    p.DuermeHasta(100);
    PedirContinuar(1);
    EXPECT_FALSE(ValeElClicVerde(99));
    EXPECT_TRUE(ValeElClicVerde(100));
    EXPECT_TRUE(ValeElClicVerde(std::nullopt));
}

TEST_F(Columna, ElMismoRotuloPedidoDeNuevoNoEmpiezaOtraVez) {
    ManoEmpezada(4);
    p.DuermeHasta(100);
    PedirContinuar(1);
    p.DuermeHasta(300);
    PedirContinuar(2);
    PedirContinuar(1);
    EXPECT_TRUE(ValeElClicVerde(200));
}
