// The table as a whole, cleared and painted anew.

#include <gtest/gtest.h>

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
    EXPECT_NE(todo.find("Para empezar"), std::string::npos);
}

TEST_F(MesaViva, ConPartidaLaMesaNoEstaVacia) {
    p.UsaLienzosRegistrados();
    ManoEmpezada(4);
    RedibujarMesa();
    for (const std::string& llamada : p.Dibujado(Control::Mesa).Llamadas())
        EXPECT_EQ(llamada.find("Para empezar"), std::string::npos);
}
