// The file of the odds of the draw.

#include "games/poker/draw_odds.h"

#include <gtest/gtest.h>

#include "core/game_state.h"
#include "table/deck.h"
#include "tests/support/poker_hands.h"

using namespace prueba;

namespace {

// 52 cards without jokers, a Trio of Calidad 2 kept, 1081 draws of which 1000 stay as they are.
std::string Registro(const std::string& baraja = "520", const std::string& jugada = "10",
                     const std::string& casos = "0001081") {
    std::string linea = baraja + jugada + "2" + casos;
    for (int n = 7; n <= 17; ++n)
        linea += n == 10 ? "0001000" : n == 14 ? "0000081" : "0000000";
    return linea + "\r\n";
}

TablaDeDescartes Lee(const std::string& contenido) {
    return LeeProbabilidades(contenido, 52, 0);
}

int Cuantos(const TablaDeDescartes& tabla) {
    int n = 0;
    for (const RegistroDescarte& registro : tabla)
        n += registro.CasosDescarte > 0 ? 1 : 0;
    return n;
}

} // namespace

TEST(ProbabilidadesDelDescarte, UnRegistroTraeSusCasosYSusPorcentajes) {
    const TablaDeDescartes tabla = Lee(Registro());
    EXPECT_EQ(tabla(1).JugadaMantenida, 10);
    EXPECT_EQ(tabla(1).CalidadMantenida, 2);
    EXPECT_EQ(tabla(1).CasosDescarte, 1081);
    EXPECT_EQ(tabla(1).CasosResultado(10), 1000);
    EXPECT_EQ(tabla(1).CasosResultado(14), 81);
    EXPECT_DOUBLE_EQ(tabla(1).PorcResultado(10), 1000.0 / 1081 * 100);
    EXPECT_EQ(Cuantos(tabla), 1);
}

TEST(ProbabilidadesDelDescarte, LosDeOtraBarajaSePasanPorAlto) {
    const TablaDeDescartes tabla = Lee(Registro("480") + Registro("521") + Registro("520", "15"));
    EXPECT_EQ(Cuantos(tabla), 1);
    EXPECT_EQ(tabla(1).JugadaMantenida, 15);
}

TEST(ProbabilidadesDelDescarte, LoQueNoSeLeeSePasaPorAlto) {
    std::string rota = Registro();
    rota[50] = 'x';
    EXPECT_EQ(Cuantos(Lee(rota + Registro("520", "00") + Registro("520", "18") +
                          Registro("520", "10", "0000000") + std::string(92, '\0') + Registro())),
              1);
}

TEST(ProbabilidadesDelDescarte, ElUltimoPuedeIrSinFinDeLineaPeroNoSinCifras) {
    const std::string linea = Registro();
    EXPECT_EQ(Cuantos(Lee(linea + linea.substr(0, 90))), 2);
    EXPECT_EQ(Cuantos(Lee(linea + linea.substr(0, 89))), 1);
    EXPECT_EQ(Cuantos(Lee("")), 0);
}

TEST(ProbabilidadesDelDescarte, SeGuardan180DeLaBarajaAunqueAntesVayanOtros) {
    std::string contenido;
    for (int i = 0; i < 200; ++i)
        contenido += Registro("480") + Registro();
    const TablaDeDescartes tabla = Lee(contenido);
    EXPECT_EQ(Cuantos(tabla), 180);
    EXPECT_EQ(tabla(180).CasosDescarte, 1081);
}

TEST(ProbabilidadesDelDescarte, SeBuscaElPrimeroDeLaCategoriaYSuCalidad) {
    poker = {};
    poker.TablaDescartes = Lee(Registro("520", "15") + Registro() + Registro());
    EXPECT_EQ(ProbabilidadDe(10, 2), &poker.TablaDescartes(2));
    EXPECT_EQ(ProbabilidadDe(10, 1), nullptr);
    EXPECT_EQ(ProbabilidadDe(9, 2), nullptr);
}

TEST(ProbabilidadesDelDescarte, ConstruirLaBarajaLasCargaDeLaCarpetaDeTrabajo) {
    PlataformaSinPantalla mesa;
    UsaPlataforma(mesa);
    estado = {};
    estado.JuegoActivo = kPoker;
    estado.CartasBaraja = estado.ComodinesJuego = 1;
    estado.CarpetaTrabajo = "/mesa";
    mesa.EnMemoria().contenidos["/mesa/PkFDes.ZOV"] = Registro();
    ConstruirBaraja();
    EXPECT_EQ(poker.TablaDescartes(1).CasosDescarte, 1081);
    estado.ComodinesJuego = 2;
    ConstruirBaraja();
    EXPECT_EQ(Cuantos(poker.TablaDescartes), 0);
}

TEST(ProbabilidadesDelDescarte, SiFaltaElFicheroElProgramaNoSigueYLaConsolaSi) {
    PlataformaSinPantalla mesa;
    UsaPlataforma(mesa);
    estado = {};
    estado.JuegoActivo = kPoker;
    estado.CartasBaraja = estado.ComodinesJuego = 1;
    estado.CarpetaTrabajo = "/mesa";
    EXPECT_NO_THROW(ConstruirBaraja());
    EXPECT_EQ(Cuantos(poker.TablaDescartes), 0);
    mesa.exige_ficheros = true;
    try {
        ConstruirBaraja();
        FAIL() << "no se echa en falta";
    } catch (const FalloGrave& fallo) {
        EXPECT_NE(std::string(fallo.what()).find("/mesa/PkFDes.ZOV"), std::string::npos);
    }
}
