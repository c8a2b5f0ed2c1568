#include "tools/simula/runner.h"

#include <gtest/gtest.h>

#include "core/game_state.h"
#include "tools/simula/signature.h"

namespace {

OpcionesSimula Cinquillo(std::int64_t partidas) {
    OpcionesSimula opciones;
    opciones.juego = kCinquillo;
    opciones.partidas = partidas;
    opciones.procesos = 1;
    opciones.firma = true;
    return opciones;
}

TEST(Firma, EsFnv1aDe64Bits) {
    EXPECT_EQ(Firma().Valor(), 0xCBF29CE484222325u);
    Firma a;
    a.Anade("a");
    EXPECT_EQ(a.Valor(), 0xAF63DC4C8601EC8Cu);
    Firma foobar;
    foobar.Anade("foo");
    foobar.Anade("bar");
    EXPECT_EQ(foobar.Valor(), 0x85944171F73967E8u);
}

TEST(Simula, CuentaPartidasManosYGanadores) {
    const Totales totales = Simula(Cinquillo(10));
    EXPECT_EQ(totales.partidas, 10);
    EXPECT_GE(totales.manos, 10 * 3); // three hands at least decide a match
    EXPECT_LE(totales.manos, 10 * 9); // ... and after nine of four seats one has three
    EXPECT_EQ(totales.ganadas[1] + totales.ganadas[2] + totales.ganadas[3] + totales.ganadas[4],
              10);
}

TEST(Simula, NoDependeDeCuantosProcesosLaJueguen) {
    OpcionesSimula opciones = Cinquillo(7);
    const Totales uno = Simula(opciones);
    opciones.procesos = 3;
    EXPECT_TRUE(Simula(opciones) == uno);
    EXPECT_NE(uno.firma, 0u);
}

TEST(Simula, LaSemillaLoDecideTodo) {
    OpcionesSimula opciones = Cinquillo(5);
    opciones.azar = true;
    const Totales primera = Simula(opciones);
    EXPECT_TRUE(Simula(opciones) == primera);
    opciones.semilla = 2;
    EXPECT_NE(Simula(opciones).firma, primera.firma);
}

TEST(Simula, CadaPartidaEsLaMismaSeaCualSeaLaAnterior) {
    OpcionesSimula opciones = Cinquillo(2);
    const Totales dos = Simula(opciones);
    opciones.partidas = 1;
    const Totales primera = Simula(opciones);
    opciones.partidas = 3;
    const Totales tres = Simula(opciones);
    EXPECT_NE(dos.firma, primera.firma);
    EXPECT_NE(tres.firma, dos.firma);
    opciones.procesos = 3; // each match in a process of its own
    EXPECT_TRUE(Simula(opciones) == tres);
}

TEST(Simula, LosNivelesCambianLoQueSeJuega) {
    OpcionesSimula opciones = Cinquillo(5);
    opciones.niveles = {100, 100, 100, 100};
    const auto maestros = Simula(opciones).firma;
    opciones.niveles = {0, 0, 0, 0};
    EXPECT_NE(Simula(opciones).firma, maestros);
}

TEST(Simula, ElSentidoCambiaLoQueSeJuega) {
    OpcionesSimula opciones = Cinquillo(5);
    const auto directo = Simula(opciones).firma;
    opciones.sentido = kInverso;
    EXPECT_NE(Simula(opciones).firma, directo);
}

// Its oldest records are let go, and what they told is checked no more; the hands are counted all the same.
TEST(Simula, UnaPartidaDeMasDeMilManosSeJuegaEntera) {
    OpcionesSimula opciones = Cinquillo(1);
    opciones.limite = 999;
    const Totales totales = Simula(opciones);
    EXPECT_EQ(totales.partidas, 1);
    EXPECT_GT(totales.manos, 1000);
    EXPECT_LE(totales.manos, 999 + 3 * 998);
}

TEST(Simula, SoloAdmiteOpcionesQueHaganUnaPartida) {
    OpcionesSimula opciones = Cinquillo(1);
    opciones.niveles = {50, 50};
    EXPECT_THROW(Simula(opciones), std::invalid_argument);
    opciones = Cinquillo(1);
    opciones.caracteres = {1, 2, 3, 4};
    EXPECT_THROW(Simula(opciones), std::invalid_argument);
    opciones = Cinquillo(0);
    EXPECT_THROW(Simula(opciones), std::invalid_argument);
    opciones = Cinquillo(1);
    opciones.sentido = 0;
    EXPECT_THROW(Simula(opciones), std::invalid_argument);
    opciones = Cinquillo(1);
    opciones.asientos = 3;
    EXPECT_THROW(Simula(opciones), std::invalid_argument);
    opciones = Cinquillo(1);
    opciones.parejas = true;
    EXPECT_THROW(Simula(opciones), std::invalid_argument);
}

} // namespace
