// The flight of a card.

#include <gtest/gtest.h>

#include <vector>

#include "table/flight.h"
#include "tests/support/live_table.h"

using namespace prueba;

namespace {

// A desktop that remembers where the flying card was seen, and when.
struct Vuelos : PlataformaSinPantalla {
    struct Cuadro {
        int x, y;
        Milisegundos momento;
    };
    std::vector<Cuadro> cuadros;
    Milisegundos coste = 0; // what drawing a frame takes
    bool posada = false;

    void Vuela(int x, int y, const ImagenCarta& carta) override {
        cuadros.push_back({x, y, Reloj()});
        vista = carta;
        DuermeHasta(Reloj() + coste);
    }
    void Posa() override { posada = true; }
    ImagenCarta vista;
};

struct Vuelo : MesaViva {
    Vuelo() {
        UsaPlataforma(vuelos);
        vuelos.UsaLienzosRegistrados();
        estado.SonidoActivo = true;
        vuelos.DuermeHasta(1000);
    }
    ~Vuelo() override { UsaPlataforma(p); }
    void Lleva(int x1, int y1, int x2, int y2) {
        MueveCarta({kCopas, 7}, {x1, y1, 1, kDorso}, {x2, y2, 4});
    }
    std::vector<Punto> Pasos() const {
        std::vector<Punto> pasos;
        for (const auto& cuadro : vuelos.cuadros)
            pasos.push_back({cuadro.x, cuadro.y});
        return pasos;
    }
    Vuelos vuelos;
};

} // namespace

TEST_F(Vuelo, ElCaminoLargoAvanzaVeintiseisYElCortoEnProporcion) {
    Lleva(0, 0, 104, 52);
    EXPECT_EQ(Pasos(), (std::vector<Punto>{{26, 13}, {52, 26}, {78, 39}, {104, 52}}));
}

TEST_F(Vuelo, ElPasoCortoSeRedondea) {
    Lleva(100, 100, 48, 85); // 26 * 15 / 52 = 7.5, half to even
    EXPECT_EQ(Pasos(), (std::vector<Punto>{{74, 92}, {48, 85}}));
}

TEST_F(Vuelo, UnPasoQueSePasaSeQuedaEnElFin) {
    Lleva(0, 0, 60, 60);
    EXPECT_EQ(Pasos(), (std::vector<Punto>{{26, 26}, {52, 52}, {60, 60}}));
}

TEST_F(Vuelo, UnCaminoDemasiadoCortoSeAndaDeUnaVez) {
    Lleva(0, 0, 60, 1);
    EXPECT_EQ(Pasos(), (std::vector<Punto>{{26, 1}, {52, 1}, {60, 1}}));
}

TEST_F(Vuelo, HaciaAtrasVaIgual) {
    Lleva(60, 200, 0, 200);
    EXPECT_EQ(Pasos(), (std::vector<Punto>{{34, 200}, {8, 200}, {0, 200}}));
}

TEST_F(Vuelo, DespegaYSePosaConSuSonido) {
    Lleva(0, 0, 26, 0);
    EXPECT_EQ(vuelos.sonidos, (std::vector<SonidoPedido>{{24, false}, {25, true}}));
    EXPECT_TRUE(vuelos.posada);
}

TEST_F(Vuelo, SinCaminoSoloSePosa) {
    Lleva(50, 60, 50, 60);
    EXPECT_EQ(vuelos.sonidos, (std::vector<SonidoPedido>{{25, true}}));
    EXPECT_TRUE(vuelos.cuadros.empty());
    EXPECT_EQ(vuelos.Dibujado(Control::Mesa).Llamadas().back(),
              "Carta(50, 60; palo 2 valor 7 cara 2 orientación 4)");
}

TEST_F(Vuelo, VuelaYaConLaCaraYLaPosturaDelFin) {
    Lleva(0, 0, 26, 0);
    EXPECT_EQ(vuelos.vista,
              (ImagenCarta{.palo = kCopas, .valor = 7, .cara = kDescubierta, .orientacion = 4}));
}

TEST_F(Vuelo, CadaCuadroDuraDoceMilisegundosAVelocidadCincuenta) {
    Lleva(0, 0, 260, 0);
    ASSERT_EQ(vuelos.cuadros.size(), 10U);
    EXPECT_EQ(vuelos.cuadros[9].momento - vuelos.cuadros[0].momento, 9 * 12);
    EXPECT_EQ(estado.MarcaPausa, 0);
}

TEST_F(Vuelo, LoQueTardaElDibujoCuentaDentroDeLaPausa) {
    vuelos.coste = 7;
    Lleva(0, 0, 260, 0);
    EXPECT_EQ(vuelos.cuadros[9].momento - vuelos.cuadros[0].momento, 9 * 12);
}

TEST_F(Vuelo, AVelocidadCienNoTardaNada) {
    estado.VelocidadJuego = 100;
    const Milisegundos antes = vuelos.Reloj();
    Lleva(0, 0, 500, 300);
    EXPECT_EQ(vuelos.Reloj(), antes);
}
