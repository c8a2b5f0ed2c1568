// The table of the cards laid.

#include "games/cinquillo/cinquillo_table.h"
#include "table/whole_table.h"

#include <gtest/gtest.h>

#include "games/cinquillo/cinquillo.h"
#include "games/common/trick_state.h"
#include "table/table_view.h"
#include "tests/support/live_table.h"

using namespace prueba;

namespace {

constexpr Integer kRangos[] = {1, 2, 3, 4, 5, 6, 7, 10, 11, 12};

struct Tendido : MesaViva {
    void Mide(int ancho, int alto) {
        p.Mide(ancho, alto);
        CalcularMesa();
    }
};

} // namespace

TEST_F(Tendido, UnaColumnaPorPaloConElReyArribaYElAsAbajo) {
    for (Integer palo = kOros; palo <= kBastos; ++palo) {
        for (std::size_t i = 1; i < std::size(kRangos); ++i) {
            const Punto alto = LugarTendido(palo, kRangos[i]);
            const Punto bajo = LugarTendido(palo, kRangos[i - 1]);
            EXPECT_EQ(alto.x, bajo.x);
            EXPECT_LT(alto.y, bajo.y);
        }
    }
    for (Integer palo = kCopas; palo <= kBastos; ++palo) {
        const auto anterior = static_cast<Integer>(palo - 1);
        EXPECT_GT(LugarTendido(palo, 5).x, LugarTendido(anterior, 5).x);
    }
}

TEST_F(Tendido, ElSieteYLaSotaSonVecinos) {
    const int fila = LugarTendido(kOros, 6).y - LugarTendido(kOros, 7).y;
    EXPECT_EQ(LugarTendido(kOros, 7).y - LugarTendido(kOros, 10).y, fila);
}

TEST_F(Tendido, LasColumnasNoPasanDeCientoSeisNiLasCartasSeSalen) {
    for (const auto& [ancho, alto] :
         {std::pair{800, 600}, {1366, 768}, {1920, 1080}, {3840, 2160}}) {
        Mide(ancho, alto);
        const int columna = LugarTendido(kCopas, 5).x - LugarTendido(kOros, 5).x;
        EXPECT_GT(columna, 0);
        EXPECT_LE(columna, 106);
        for (Integer palo = kOros; palo <= kBastos; ++palo) {
            for (Integer valor : kRangos) {
                const Punto lugar = LugarTendido(palo, valor);
                EXPECT_GT(lugar.x, estado.MesaDerecha(1));
                EXPECT_LT(lugar.x + kAnchoCarta, estado.MesaIzquierda(3));
                EXPECT_GT(lugar.y, estado.MesaAbajo(2));
                EXPECT_LT(lugar.y + kAltoCarta, estado.MesaArriba(4));
            }
        }
    }
}

TEST_F(Tendido, SePintanSoloLasTendidasDeArribaAbajo) {
    Mide(1280, 800);
    p.UsaLienzosRegistrados();
    bazas.CartaJugada(kOros, 5) = 1;
    bazas.CartaJugada(kOros, 6) = 2;
    bazas.CartaJugada(kBastos, 5) = 3;
    p.Dibujado(Control::Mesa).Olvida();
    PintaTendido();
    const auto& llamadas = p.Dibujado(Control::Mesa).Llamadas();
    ASSERT_EQ(llamadas.size(), 5U); // the felt of two columns first
    EXPECT_NE(llamadas[2].find("palo 1 valor 6 cara 2 orientación 1"), std::string::npos);
    EXPECT_NE(llamadas[3].find("palo 1 valor 5 cara 2 orientación 1"), std::string::npos);
    EXPECT_NE(llamadas[4].find("palo 4 valor 5 cara 2 orientación 1"), std::string::npos);
}

// A round corner painted twice over itself would be less smooth than at first.
TEST_F(Tendido, PintarloOtraVezEmpiezaPorElFieltroDeLasColumnasConCartas) {
    Mide(1280, 800);
    p.UsaLienzosRegistrados();
    for (Integer valor : {Integer{5}, Integer{6}, Integer{7}})
        bazas.CartaJugada(kCopas, valor) = 1;
    PintaTendido();
    const Punto siete = LugarTendido(kCopas, 7);
    const int alto = LugarTendido(kCopas, 5).y + kAltoCarta - siete.y;
    const auto llamadas = p.Dibujado(Control::Mesa).Llamadas();
    ASSERT_EQ(llamadas.size(), 4U);
    EXPECT_EQ(llamadas[0], "Fieltro(" + std::to_string(siete.x) + ", " + std::to_string(siete.y) +
                               ", 101, " + std::to_string(alto) + ")");
}

namespace {

struct TendidoPintado : Tendido {
    TendidoPintado() {
        p.UsaLienzosRegistrados();
        vista.nombres = true;
        estado.CartasEnMazo = 0;
    }
};

} // namespace

TEST_F(TendidoPintado, LosSitiosDeLosCincosSeVenVeladosMientrasEstanVacios) {
    PintaTendido();
    EXPECT_EQ(Pintado(Control::Mesa, "Velo").size(), 4U);
    bazas.CartaJugada(kCopas, 5) = 2;
    p.Dibujado(Control::Mesa).Olvida();
    PintaTendido();
    EXPECT_EQ(Pintado(Control::Mesa, "Velo").size(), 3U);
    EXPECT_EQ(Pintado(Control::Mesa, "Carta").size(), 4U);
}

TEST_F(TendidoPintado, MientrasSeReparteNoSeVen) {
    estado.CartasEnMazo = 12;
    PintaTendido();
    EXPECT_TRUE(Pintado(Control::Mesa, "Velo").empty());
}

// At 800 by 600 a strip of 12 pixels is to be seen of a card: its number is written into that.
TEST_F(TendidoPintado, ElNumeroDeUnaCartaCubiertaSeLeeEntero) {
    for (const Integer valor : {Integer{5}, Integer{6}, Integer{7}, Integer{10}})
        bazas.CartaJugada(kOros, valor) = 1;
    PintaTendido();
    EXPECT_EQ(Pintado(Control::Mesa, "Texto").size(), 3U); // the 5 is whole
    Mide(1280, 800);
    p.Dibujado(Control::Mesa).Olvida();
    PintaTendido();
    EXPECT_TRUE(Pintado(Control::Mesa, "Texto").empty());
}
