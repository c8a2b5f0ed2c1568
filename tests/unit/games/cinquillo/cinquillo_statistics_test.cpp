#include "games/cinquillo/cinquillo_statistics.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "games/common/trick_state.h"
#include "platform/headless/headless_platform.h"
#include "table/deck.h"
#include "tests/support/printed_text.h"
#include "tests/support/trick_hands.h"
#include "tools/common/fresh_table.h"

using namespace prueba;
using testing::ElementsAre;

namespace {

// Ana, Luis, Eva and Iñigo; Eva leads the hand.
struct EstadisticaDeCinquillo : testing::Test {
    EstadisticaDeCinquillo() {
        UsaPlataforma(p);
        PonMesaNueva();
        const char* const nombres[] = {"", "Ana", "Luis", "Eva", "Iñigo"};
        for (int asiento = 1; asiento <= 4; ++asiento)
            estado.NombreJugador(asiento) = nombres[asiento];
        estado.JuegoActivo = kCinquillo;
        ConstruirBaraja();
        estado.JugadorMano = 3;
        estado.ManoEnCurso = true;
    }

    static void Tiende(Integer vuelta, Integer asiento, Carta carta) {
        bazas.RegistroBazas(asiento + 5, vuelta) = carta.palo;
        bazas.RegistroBazas(asiento + 10, vuelta) = carta.valor;
        bazas.CartaJugada(carta.palo, carta.valor) = asiento;
        estado.NumBaza = vuelta;
    }
    static PaginaImpresa Pagina() {
        PaginaImpresa pagina(750, 300);
        EstadisC(pagina);
        return pagina;
    }

    PlataformaSinPantalla p;
};

} // namespace

TEST_F(EstadisticaDeCinquillo, LasColumnasEmpiezanPorQuienEsMano) {
    EXPECT_EQ(RenglonesDe(Pagina())[0], "Vuelta | Eva | Iñigo | Ana | Luis");
    estado.PasoSentido = -1;
    EXPECT_EQ(RenglonesDe(Pagina())[0], "Vuelta | Eva | Luis | Ana | Iñigo");
}

TEST_F(EstadisticaDeCinquillo, CadaVueltaDiceLoQueTendioCadaUno) {
    Tiende(1, 3, {kOros, 5});
    Tiende(1, 4, {kOros, 6});
    Tiende(1, 1, {kBastos, 5});
    Tiende(1, 2, {kOros, 4});
    Tiende(2, 3, {kOros, 7});
    const std::vector<std::string> renglones = RenglonesDe(Pagina());
    EXPECT_EQ(renglones[1], "1 | Cinco de Oros | Seis de Oros | Cinco de Bastos | Cuatro de Oros");
    EXPECT_EQ(renglones[2], "2 | Siete de Oros"); // the round in play
}

// Iñigo's card stands in his own column: Eva, who leads, has passed.
TEST_F(EstadisticaDeCinquillo, QuienPasaDejaSuLugarEnBlanco) {
    Tiende(1, 4, {kCopas, 5});
    const PaginaImpresa pagina = Pagina();
    EXPECT_EQ(RenglonesDe(pagina)[1], "1 | Cinco de Copas");
    int x_nombre = 0, x_carta = -1;
    for (const Impreso& impreso : pagina.Impresos()) {
        if (impreso.texto == "Iñigo")
            x_nombre = impreso.x;
        if (impreso.texto == "Cinco de Copas")
            x_carta = impreso.x;
    }
    EXPECT_EQ(x_carta, x_nombre);
}

TEST_F(EstadisticaDeCinquillo, LaBarajaMarcaLasTendidas) {
    Tiende(1, 3, {kEspadas, 5});
    const PaginaImpresa pagina = Pagina();
    EXPECT_EQ(RenglonesDe(pagina).size(), 13U);
    EXPECT_THAT(TintasDe(pagina, "5"),
                ElementsAre(Tinta::Negro, Tinta::Negro, Tinta::RojoOscuro, Tinta::Negro));
}

TEST_F(EstadisticaDeCinquillo, MasVueltasDeLasQueSeApuntanNoSeCuentan) {
    estado.NumBaza = 45;
    EXPECT_EQ(RenglonesDe(Pagina())[40], "40");
    EXPECT_EQ(RenglonesDe(Pagina())[41], "Oros | Copas | Espadas | Bastos");
}
