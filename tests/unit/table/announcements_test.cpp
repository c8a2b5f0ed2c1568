// Words for who does not see the table.

#include "table/announcements.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "table/button_column.h"
#include "table/side_buttons.h"
#include "tests/support/live_table.h"

using namespace prueba;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr Integer kDiez = 10, kJota = 11, kDama = 12, kReyFrances = 13;

struct Anuncios : MesaViva {
    static void PonVista(Integer asiento, int lugar, Carta carta, Integer cara) {
        estado.Mano(asiento, 1, lugar, kPalo) = carta.palo;
        estado.Mano(asiento, 1, lugar, kValor) = carta.valor;
        estado.Mano(asiento, 1, lugar, kCara) = cara;
    }
};

} // namespace

TEST_F(Anuncios, LaSotaLaJotaYLaDamaLlevanLa) {
    EXPECT_EQ(ConArticulo({kOros, kSota}), "la Sota de Oros");
    EXPECT_EQ(ConArticulo({kCopas, kCaballo}), "el Caballo de Copas");
    Juega(kPoker);
    EXPECT_EQ(ConArticulo({kEspadas, kJota}).substr(0, 8), "la Jota ");
    EXPECT_EQ(ConArticulo({kEspadas, kDama}).substr(0, 8), "la Dama ");
    EXPECT_EQ(ConArticulo({kEspadas, kReyFrances}).substr(0, 7), "el Rey ");
    EXPECT_EQ(ConArticulo({kEspadas, kDiez}).substr(0, 8), "el Diez ");
}

TEST_F(Anuncios, LasCartasSeEnumeran) {
    EXPECT_EQ(Enumera({}), "");
    EXPECT_EQ(Enumera({{kOros, 7}}), "el Siete de Oros");
    EXPECT_EQ(Enumera({{kOros, 7}, {kCopas, 1}}), "el Siete de Oros y el As de Copas");
    EXPECT_EQ(Enumera({{kOros, 7}, {kCopas, 1}, {kBastos, kSota}}),
              "el Siete de Oros, el As de Copas y la Sota de Bastos");
}

TEST_F(Anuncios, DeUnaCartaCubiertaNoSeDiceCualEs) {
    PonVista(2, 1, {kOros, 1}, kDorso);
    PonVista(2, 2, {kCopas, 5}, kDescubierta);
    EXPECT_THAT(ALaVista(2, 1, 3), ElementsAre(Carta(kCopas, 5)));
    EXPECT_THAT(ALaVista(2, 1, 1), IsEmpty());
}

TEST_F(Anuncios, AlEsperarAUnaPersonaSeDiceAQuienLeToca) {
    ManoEmpezada(4);
    estado.NombreJugador(4) = "Eva";
    DiAQuienSeEspera();
    EXPECT_THAT(p.anuncios, ElementsAre("Le toca a Eva"));
}

TEST_F(Anuncios, LosPuntosDeLaPlacaVanConElTurno) {
    Juega(kBlackJack);
    ManoEmpezada(4);
    estado.NombreJugador(4) = "Eva";
    PonVista(4, 1, {kOros, kReyFrances}, kDescubierta);
    PonVista(4, 2, {kCopas, 7}, kDescubierta);
    estado.NumCartas(4, 1) = 2;
    MostrarPuntos(4);
    DiAQuienSeEspera();
    EXPECT_THAT(p.anuncios, ElementsAre("Le toca a Eva, con 17"));
}

// With a pause between moves it is waited for too.
TEST_F(Anuncios, DeUnAsientoQueJuegaSoloSeDiceLoQueDiceElBotonVerde) {
    ManoEmpezada(2);
    estado.NombreJugador(2) = "Luis";
    PedirContinuar(1);
    DiAQuienSeEspera();
    EXPECT_THAT(p.anuncios, ElementsAre("Juega Luis"));
}

TEST_F(Anuncios, SinPausaEntreJugadasDeQuienJuegaSoloNoSeDiceElTurno) {
    TodoSolo();
    estado.LimitePartida = 1;
    NuevaPartida();
    EXPECT_THAT(p.anuncios, testing::Not(testing::Contains(testing::StartsWith("Juega "))));
}

TEST_F(Anuncios, ConPausaEntreJugadasSeDiceEnCadaUna) {
    TodoSolo();
    estado.PausaEntreJugadas = true;
    estado.LimitePartida = 1;
    p.siempre_continua = true;
    NuevaPartida();
    const auto juega = [](const std::string& que) { return que.starts_with("Juega "); };
    EXPECT_GT(std::ranges::count_if(p.anuncios, juega), 20);
}

TEST_F(Anuncios, EntreDosManosSeDiceQueHayQueContinuar) {
    ManoEmpezada(4);
    estado.ManoEnCurso = false;
    DiAQuienSeEspera();
    EXPECT_THAT(p.anuncios, ElementsAre("Pulse Continuar"));
}
