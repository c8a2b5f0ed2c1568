#include "games/common/trick_state.h"
#include "games/trick/trick_view.h"
#include "table/whole_table.h"

#include <gtest/gtest.h>

#include <cstdio>

#include "table/game_row.h"
#include "table/trace.h"
#include "tests/support/trick_table.h"

using namespace prueba;

namespace {

// Brisca with a stock of 20 and the Rey of Bastos turned up; what is drawn is listened to as DibujarCarta.
struct VistaDeTrick : testing::Test {
    VistaDeTrick() {
        Pinta({kBastos, kRey});
        estado.CartasEnMazo = 20;
        estado.ManoEnCurso = true;
        estado.NumBaza = 1;
        mesa.plataforma.UsaLienzosRegistrados();
        mesa.Escucha({"DibujarCarta"});
    }
    static std::string CartaDe(const std::string& linea) {
        int x = 0, y = 0, orientacion = 0, palo = 0, valor = 0;
        std::sscanf(linea.c_str(), "DibujarCarta(%*[^,], %d, %d, %d, %d, %d", &x, &y, &orientacion,
                    &palo, &valor);
        return std::to_string(palo) + "-" + std::to_string(valor) + " o" +
               std::to_string(orientacion);
    }
    // Palo, valor and orientation of the cards drawn, in order.
    std::vector<std::string> Dibujadas(void (*pinta)()) {
        mesa.traza.clear();
        pinta();
        std::vector<std::string> cartas;
        for (const std::string& linea : mesa.traza)
            cartas.push_back(CartaDe(linea));
        return cartas;
    }
    MesaDeTrick mesa{kBrisca, 4};
};

using Cartas = std::vector<std::string>;

} // namespace

TEST_F(VistaDeTrick, LaQuePintaAsomaAcostadaBajoElMazo) {
    EXPECT_EQ(Dibujadas(PintaMazo), Cartas{"4-12 o2"});
}

TEST_F(VistaDeTrick, SinMazoYaNoEsta) {
    estado.CartasEnMazo = 0;
    EXPECT_EQ(Dibujadas(PintaMazo), Cartas{});
}

TEST_F(VistaDeTrick, SinTriunfoNoHayNadaBajoElMazo) {
    estado.PaloTriunfo = kSinCarta;
    EXPECT_EQ(Dibujadas(PintaMazo), Cartas{});
}

TEST_F(VistaDeTrick, LaBazaSePintaEnElOrdenEnQueCayo) {
    EnMesa(3, {kOros, 4});
    EnMesa(4, {kOros, 5});
    EnMesa(1, {kOros, 6});
    EXPECT_EQ(Dibujadas(PintaBaza), (Cartas{"1-4 o4", "1-5 o1", "1-6 o2"}));
    EXPECT_EQ(Dibujadas([] { PintaBazaSin(4); }), (Cartas{"1-4 o4", "1-6 o2"}));
}

TEST_F(VistaDeTrick, ElMazoNoTapaLaBaza) {
    EnMesa(3, {kOros, 4});
    EXPECT_EQ(Dibujadas(PintaMazo), (Cartas{"4-12 o2", "1-4 o4"}));
}

TEST_F(VistaDeTrick, LaBazaRecogidaNoVuelve) {
    EnMesa(3, {kOros, 4});
    bazas.GanadorDeBaza(1) = 3;
    EXPECT_EQ(Dibujadas(PintaBaza), Cartas{});
    EXPECT_EQ(Dibujadas(RecogeMesa), Cartas{"4-12 o2"});
}

TEST_F(VistaDeTrick, FueraDeLaManoNoHayBaza) {
    EnMesa(3, {kOros, 4});
    estado.ManoEnCurso = false;
    EXPECT_EQ(Dibujadas(PintaBaza), Cartas{});
}

TEST_F(VistaDeTrick, AlRepintarLaMesaEstaTodo) {
    PintaMazo();
    EnMesa(3, {kOros, 4});
    EXPECT_EQ(Dibujadas(RedibujarMesa), (Cartas{"4-12 o2", "1-4 o4"}));
}

TEST_F(VistaDeTrick, LaGanadoraDesapareceDosVeces) {
    estado.CartasEnMazo = 0;
    EnMesa(3, {kOros, 4});
    EnMesa(4, {kOros, 5});
    estado.GanadorBaza = 4;
    mesa.Escucha({"Pausa", "Sonido", "DibujarCarta"});
    std::vector<std::string> pasos;
    ParpadeaBaza();
    for (const std::string& linea : mesa.traza)
        pasos.push_back(linea.starts_with("DibujarCarta") ? CartaDe(linea) : linea);
    EXPECT_EQ(pasos, (Cartas{"Pausa(150)", "Pausa(420)", "1-4 o4", "Pausa(180)", "1-4 o4", "1-5 o1",
                             "Sonido(1, 26)", "Pausa(420)", "1-4 o4", "Pausa(180)", "1-4 o4",
                             "1-5 o1", "Sonido(1, 26)", "Pausa(500)"}));
}

// A covered hand shows only what blinks, and covers it again.
TEST(Parpadeo, LasCartasSalenDescubiertasYVuelvenASuCara) {
    MesaDeTrick mesa(kTute, 4);
    PonMano(2, {{kCopas, 4}, {kOros, kCaballo}, {kOros, kRey}});
    std::vector<std::string> pasos;
    EscuchaTraza([&](const std::string& linea) {
        if (linea != "RedibujarAsiento(2)")
            return pasos.push_back(linea);
        std::string mano;
        for (int lugar = 1; lugar <= 3; ++lugar) {
            mano += estado.Mano(2, 1, lugar, kCara) == kDescubierta ? 'D' : 'd';
            mano += estado.Mano(2, 1, lugar, kAltura) == kLevantada ? 'L' : 'l';
        }
        pasos.push_back(mano);
    });
    ParpadeaCartas(2, {2, 3});
    std::vector<std::string> esperados;
    for (int vez = 0; vez < 3; ++vez) {
        for (const char* paso : {"dlDLDL", "Pausa(180)", "Sonido(1, 26)", "Pausa(420)", "dlDlDl"})
            esperados.emplace_back(paso);
    }
    esperados.emplace_back("dldldl");
    EXPECT_EQ(pasos, esperados);
}

// --- What the rows of the table say ---------------------------------------------------------------------

TEST(FilasDeTrick, SoloElTutePoneReparosAUnaCarta) {
    EXPECT_NE(FilaDe(kTute)->entrada.carta_legal, nullptr);
    EXPECT_EQ(FilaDe(kBrisca)->entrada.carta_legal, nullptr);
}

TEST(FilasDeTrick, ElCambioEstaEnElMazoMientrasSeOfrece) {
    for (const Integer juego : {kTute, kBrisca}) {
        bazas.CartaCambio = 7;
        EXPECT_TRUE(FilaDe(juego)->entrada.cambio_en_mazo());
        bazas.CartaCambio = 0;
        EXPECT_FALSE(FilaDe(juego)->entrada.cambio_en_mazo());
    }
}

TEST(FilasDeTrick, LaManoSeOrdenaPorPalosYDeMayorAMenor) {
    MesaDeTrick mesa(kTute, 4);
    const auto clave = FilaDe(kTute)->baraja.clave_orden;
    EXPECT_EQ(clave(kOros, kAs), "100");
    EXPECT_EQ(clave(kOros, kTres), "101");
    EXPECT_EQ(clave(kBastos, 2), "409");
}
