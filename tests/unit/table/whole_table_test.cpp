// The table as a whole, cleared and painted anew.

#include <gtest/gtest.h>

#include <algorithm>

#include "core/session_state.h"
#include "table/whole_table.h"
#include "tests/support/live_table.h"

using namespace prueba;

namespace {

struct Repintado : MesaViva {
    Repintado() {
        p.UsaLienzosRegistrados();
        p.Mide(1200, 760);
        CalcularMesa();
        p.Dibujado(Control::Mesa).Olvida();
    }
    std::string LoPrimero() { return p.Dibujado(Control::Mesa).Llamadas().front(); }
};

} // namespace

// The felt shows through the column's rim: what stood there in a wider window would show too.
TEST_F(Repintado, TambienBajoLaColumnaQuedaFieltro) {
    RedibujarMesa();
    EXPECT_EQ(LoPrimero(), "Fieltro(0, 0, 1200, 760)");
}

TEST_F(Repintado, LimpiarLaMesaLaLimpiaTodaEntera) {
    LimpiarMesa();
    EXPECT_EQ(LoPrimero(), "Fieltro(0, 0, 1200, 760)");
}

TEST_F(MesaViva, LaMesaVaciaDiceAQueSeJuegaYPorDondeSeEmpieza) {
    p.UsaLienzosRegistrados();
    estado.JuegoActivo = kCinquillo;
    RedibujarMesa();
    std::string todo;
    for (const std::string& llamada : p.Dibujado(Control::Mesa).Llamadas())
        todo += llamada + "\n";
    EXPECT_NE(todo.find("Velo("), std::string::npos);
    EXPECT_NE(todo.find("\"Cinquillo\""), std::string::npos);
    EXPECT_NE(
        todo.find("Para empezar, pulse el primer botón de la derecha o la barra espaciadora."),
        std::string::npos);
}

TEST_F(MesaViva, ConLaBarraEspaciadoraSeEmpieza) {
    DespachaEvento({.tipo = TipoEvento::Tecla, .tecla = ' '});
    EXPECT_EQ(sesion.peticion, Peticion::NuevaPartida);
}

// Its place lies in the middle, where the emblem and the name stand.
TEST_F(MesaViva, ElBoteVacioNoBorraElNombreDeLaMesaVacia) {
    p.UsaLienzosRegistrados();
    estado.JuegoActivo = kPoker;
    RedibujarMesa();
    const std::vector<std::string> llamadas = p.Dibujado(Control::Mesa).Llamadas();
    const auto nombre = std::ranges::find_if(llamadas, [](const std::string& llamada) {
        return llamada.find("\"Póker\"") != std::string::npos;
    });
    ASSERT_NE(nombre, llamadas.end());
    EXPECT_TRUE(std::none_of(nombre, llamadas.end(), [](const std::string& llamada) {
        return llamada.starts_with("Fieltro(");
    }));
}

TEST_F(MesaViva, ConPartidaLaMesaNoEstaVacia) {
    p.UsaLienzosRegistrados();
    ManoEmpezada(4);
    RedibujarMesa();
    for (const std::string& llamada : p.Dibujado(Control::Mesa).Llamadas())
        EXPECT_EQ(llamada.find("Para empezar"), std::string::npos);
}
