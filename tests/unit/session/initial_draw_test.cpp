#include "session/initial_draw.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "core/random.h"
#include "core/session_state.h"
#include "tests/support/live_table.h"

using namespace prueba;

namespace {

struct Sorteo : MesaViva {
    Sorteo() {
        estado.PartidaEnCurso = true;
        estado.VelocidadJuego = 100;
    }
    // The draw walks the ranks and in each the suits, so its deck is named the same way.
    void SorteoSera(const std::vector<Carta>& orden) {
        const std::size_t cartas = static_cast<std::size_t>(estado.CartasNormales);
        std::size_t siguiente = orden.size();
        std::vector<double> azar;
        for (Integer valor = 1; valor <= 13; ++valor) {
            for (Integer palo = kOros; palo <= kBastos && estado.ValorEnBaraja(valor); ++palo) {
                const auto nombrada = std::ranges::find(orden, Carta{palo, valor});
                const auto lugar = nombrada == orden.end()
                                       ? siguiente++
                                       : static_cast<std::size_t>(nombrada - orden.begin());
                azar.push_back((static_cast<double>(lugar) + 0.5) / static_cast<double>(cartas));
            }
        }
        EncolaAzar(azar);
    }
    std::string UltimoTexto() { return p.mensajes.back().texto; }
};

const Carta kSieteOros{kOros, 7}, kSeis{kOros, 6}, kTresOros{kOros, 3}, kAsOros{kOros, kAs};

} // namespace

TEST_F(Sorteo, ElPrimerAsDaLaManoYEmpiezaPorElAsientoUno) {
    SorteoSera({kAsOros});
    ASSERT_TRUE(SorteoInicial());
    EXPECT_EQ(estado.JugadorMano, 1);
    EXPECT_EQ(estado.JugadorActual, 1);
}

TEST_F(Sorteo, LasCartasVanPorOrdenHastaQueSaleElAs) {
    SorteoSera({kSieteOros, kSeis, kTresOros, {kBastos, 3}, {kBastos, kRey}, kAsOros});
    EmpiezaTraza();
    ASSERT_TRUE(SorteoInicial());
    EXPECT_EQ(estado.JugadorMano, 2);
    const auto vuelos = TrazaDe("MoverCarta");
    ASSERT_EQ(vuelos.size(), 6U);
    // From the middle of the table, face up, to the place of a single card of seats 1 and 2.
    EXPECT_EQ(vuelos[0], "MoverCarta(1, 7, 304, 230, 1, 2, 18, 250, 2, 2, 0)");
    EXPECT_EQ(vuelos[5], "MoverCarta(1, 1, 304, 230, 1, 2, 304, 18, 3, 2, 0)");
}

TEST_F(Sorteo, EnSentidoInversoEmpiezaElTres) {
    estado.SentidoJuego = kInverso;
    estado.PasoSentido = -1;
    SorteoSera({kSieteOros, kAsOros});
    ASSERT_TRUE(SorteoInicial());
    EXPECT_EQ(estado.JugadorMano, 2);
}

TEST_F(Sorteo, LaPilaPierdeLasCartasQueSeDanYHayPausaEntreEllas) {
    SorteoSera({kSieteOros, kAsOros});
    EmpiezaTraza();
    ASSERT_TRUE(SorteoInicial());
    EXPECT_EQ(TrazaDe("DibujarMazo"),
              (std::vector<std::string>{"DibujarMazo(304, 230, 40)", "DibujarMazo(304, 230, 39)",
                                        "DibujarMazo(304, 230, 38)"}));
    const auto pausas = TrazaDe("Pausa");
    EXPECT_EQ(std::ranges::count(pausas, "Pausa(120)"), 1);
}

TEST_F(Sorteo, QuienNoJuegaNoRecibeYSuCartaPasa) {
    estado.JuegoActivo = kBrisca;
    Desactiva({1});
    SorteoSera({kAsOros, kSieteOros, kSeis, kTresOros, {kCopas, kAs}, {kEspadas, kAs}});
    EmpiezaTraza();
    ASSERT_TRUE(SorteoInicial());
    // Places 1 and 5 are seat 1's and nobody's: the As of espadas in place 6 is seat 2's.
    EXPECT_EQ(estado.JugadorMano, 2);
    EXPECT_EQ(TrazaDe("MoverCarta").size(), 4U);
    EXPECT_EQ(TrazaDe("DibujarMazo").back(), "DibujarMazo(304, 230, 32)");
}

TEST_F(Sorteo, SiNingunAsCaeEnQuienJuegaSeMezclaOtraVez) {
    estado.JuegoActivo = kBrisca;
    Desactiva({1, 3});
    // All four Ases at places of seats 1 and 3; then one at a place of seat 4.
    SorteoSera({{kOros, kAs},
                kSieteOros,
                {kCopas, kAs},
                kSeis,
                {kEspadas, kAs},
                kTresOros,
                {kBastos, kAs}});
    SorteoSera({kSieteOros, kSeis, kTresOros, {kBastos, kAs}});
    ASSERT_TRUE(SorteoInicial());
    EXPECT_EQ(estado.JugadorMano, 4);
    EXPECT_EQ(UltimoTexto(), "Se  ha  sorteado  el  jugador  que  comienza  la  partida.\r\n"
                             "Sale Jugador4.");
}

TEST_F(Sorteo, SinNadieQueJuegueNoSeMezclaSinFin) {
    Desactiva({1, 2, 3, 4});
    estado.JugadorMano = 2;
    EXPECT_THROW(static_cast<void>(SorteoInicial()), std::logic_error);
    EXPECT_EQ(estado.JugadorMano, 2);
    EXPECT_TRUE(p.mensajes.empty());
}

TEST_F(Sorteo, SeDiceQuienSale) {
    estado.NombreJugador(3) = "Eva";
    SorteoSera({kSieteOros, kSeis, kAsOros});
    ASSERT_TRUE(SorteoInicial());
    EXPECT_EQ(Titulos(), (std::vector<std::string>{"Comienza la Partida"}));
    EXPECT_EQ(p.mensajes[0].lineas, 2);
    EXPECT_EQ(UltimoTexto(), "Se  ha  sorteado  el  jugador  que  comienza  la  partida.\r\n"
                             "Sale Eva.");
}

TEST_F(Sorteo, EnSieteYMediaSaleLaBancaYLaPilaVaASuLado) {
    Juega(kSieteYMedia);
    estado.JugadorMano = 2;
    estado.JugadorBanca = 2;
    estado.NombreJugador(3) = "Eva";
    SorteoSera({kSieteOros, kSeis, kAsOros});
    ASSERT_TRUE(SorteoInicial());
    EXPECT_EQ(estado.JugadorBanca, 3);
    EXPECT_EQ(estado.JugadorMano, 2);
    EXPECT_EQ(estado.MazoX, 422);
    EXPECT_EQ(UltimoTexto(), "Se  ha  sorteado  el  jugador  que  comienza  siendo  banca.\r\n"
                             "El primer jugador banca es Eva.");
}

TEST_F(Sorteo, LaPartidaQueSeDejaCortaElSorteo) {
    SorteoSera({kSieteOros, kSeis, kTresOros, kAsOros});
    estado.JugadorMano = 2;
    p.traviesa = true;
    p.guion.PulsaControl({Control::Pic_Boton, kBotonSalir});
    EmpiezaTraza();
    EXPECT_FALSE(SorteoInicial());
    EXPECT_EQ(TrazaDe("MoverCarta").size(), 1U);
    EXPECT_EQ(estado.JugadorMano, 2);
    EXPECT_EQ(sesion.peticion, Peticion::Salir);
}

TEST_F(Sorteo, UnTamanoNuevoEnElSorteoLlevaLaPilaAlMedio) {
    SorteoSera({kSieteOros, kAsOros});
    p.traviesa = true;
    p.Mide(1366, 768);
    p.guion.Encola({.tipo = TipoEvento::Tamano, .x = 1366, .y = 768});
    EmpiezaTraza();
    ASSERT_TRUE(SorteoInicial());
    EXPECT_EQ(TrazaDe("MoverCarta").back(), "MoverCarta(1, 1, 588, 314, 1, 2, 588, 18, 3, 2, 0)");
}

// The game's own place of the pile is another one in Póker.
TEST_F(Sorteo, UnTamanoNuevoNoSacaLaPilaDelMedio) {
    Juega(kPoker);
    SorteoSera({kSieteOros, kAsOros});
    p.UsaLienzosRegistrados();
    p.traviesa = true;
    p.Mide(1366, 768);
    p.guion.Encola({.tipo = TipoEvento::Tamano, .x = 1366, .y = 768});
    EmpiezaTraza();
    ASSERT_TRUE(SorteoInicial());
    ASSERT_NE(estado.MazoX, 588);
    EXPECT_EQ(TrazaDe("DibujarMazo"),
              (std::vector<std::string>{"DibujarMazo(304, 230, 52)", "DibujarMazo(304, 230, 51)",
                                        "DibujarMazo(588, 314, 51)", "DibujarMazo(588, 314, 50)"}));
}
