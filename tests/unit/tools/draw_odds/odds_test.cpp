// The maker of the odds of the draw stands by itself.

#include "tools/draw_odds/odds.h"

#include <gtest/gtest.h>

#include "core/game_state.h"
#include "platform/headless/headless_platform.h"
#include "table/game_row.h"

namespace {

// The program has nobody but itself to hand the games down.
TEST(HaceProbabilidades, PoneElMismoLosJuegosDeLaMesa) {
    PlataformaSinPantalla mesa;
    UsaPlataforma(mesa);
    UsaJuegos({});
    PonBarajaDePoker(6, 3);
    EXPECT_EQ(estado.TotalBaraja, 34);
    EXPECT_FALSE(FilasDeJuegos().empty());
}

TEST(HaceProbabilidades, UnaLineaTieneSiempreElAnchoDeUnRegistro) {
    PlataformaSinPantalla mesa;
    UsaPlataforma(mesa);
    PonBarajaDePoker(6, 3);
    RegistroDescarte registro;
    registro.JugadaMantenida = 9;
    registro.CalidadMantenida = 2;
    registro.CasosDescarte = 29;
    registro.CasosResultado(9) = 25;
    registro.CasosResultado(14) = 4;
    const std::string linea = EscribeRegistro(registro);
    EXPECT_EQ(linea.size(), static_cast<std::size_t>(kAnchoRegistro));
    EXPECT_EQ(linea.substr(0, 13), "3220920000029");
    const RegistroDescarte leido = LeeProbabilidades(linea, 32, 2)(1);
    EXPECT_EQ(leido.JugadaMantenida, 9);
    EXPECT_EQ(leido.CasosResultado(14), 4);
}

} // namespace
