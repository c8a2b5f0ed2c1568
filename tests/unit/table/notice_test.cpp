// The words on the table while cards are put in order, or dealt, by hand.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "table/bet_board.h"
#include "table/game_row.h"
#include "table/hand_order.h"
#include "table/notice.h"
#include "table/options_menu.h"
#include "table/score_plate.h"
#include "table/spread_layout.h"
#include "table/table_view.h"
#include "table/whole_table.h"
#include "tests/support/live_table.h"

using namespace prueba;
using testing::HasSubstr;

namespace {

struct AvisoEnMesa : MesaViva {
    std::string Palabras() { return p.Tablero().NombreDe({Control::Pic_Aviso, 0}); }
    Rectangulo Lugar() { return p.Tablero().LugarDe({Control::Pic_Aviso, 0}); }
    bool SeVe() { return p.EstaVisible(Control::Pic_Aviso, 0); }
};

bool SeCortan(const Rectangulo& a, const Rectangulo& b) {
    return a.x < b.x + b.ancho && b.x < a.x + a.ancho && a.y < b.y + b.alto && b.y < a.y + a.alto;
}

} // namespace

TEST_F(AvisoEnMesa, AlOrdenarAManoLaMesaLoDice) {
    PonModoOrdenar(true);
    EXPECT_TRUE(SeVe());
    EXPECT_EQ(Palabras(),
              "Ordenando a mano: arrastre las cartas. Clic en el tapete para terminar.");
    PonModoOrdenar(false);
    EXPECT_FALSE(SeVe());
}

TEST_F(AvisoEnMesa, UnClicEnElTapeteLoQuita) {
    ManoEmpezada(4);
    PonModoOrdenar(true);
    Clic(355, 300);
    EXPECT_FALSE(estado.ModoOrdenar);
    EXPECT_FALSE(SeVe());
}

TEST_F(AvisoEnMesa, ElRepartoAManoDiceQueHacer) {
    estado.SistemaReparto = kRepartoManual;
    NuevaPartida();
    // The script is at its end and the deal was left: the words go with it.
    EXPECT_EQ(Palabras(), "Arrastre cada carta hasta el jugador que la recibe.");
    EXPECT_FALSE(SeVe());
}

TEST_F(AvisoEnMesa, AcabadaLaPartidaDicePorDondeSeEmpiezaOtra) {
    TodoSolo();
    estado.LimitePartida = 1;
    int al_empezar = 0;
    p.al_anunciar = [&](const std::string& que) {
        if (que == "Mano 1")
            al_empezar += SeVe() ? 100 : 1;
    };
    for (int partida = 1; partida <= 2; ++partida) {
        NuevaPartida();
        ASSERT_FALSE(estado.PartidaEnCurso);
        EXPECT_TRUE(SeVe());
        EXPECT_EQ(Palabras(),
                  "Para empezar otra partida, pulse el primer botón o la barra espaciadora.");
        // The next one takes it away.
        EXPECT_EQ(al_empezar, partida);
    }
}

TEST_F(AvisoEnMesa, SigueAlCambiarDeTamanoMientrasQuedenLosNombres) {
    p.UsaLienzosRegistrados();
    vista.nombres = true;
    estado.GanadorPartida = 2;
    RefrescaAviso();
    p.Mide(1000, 700);
    CambiaTamano();
    EXPECT_TRUE(SeVe());
    EXPECT_LT(Lugar().x + Lugar().ancho, estado.AnchoMesa);
    EXPECT_GT(Lugar().x + Lugar().ancho, estado.AnchoMesa - 10);
    LimpiarMesa();
    RefrescaAviso();
    EXPECT_FALSE(SeVe());
}

namespace {

constexpr Integer kJuegos[] = {kPoker, kBlackJack, kTute, kBrisca, kSieteYMedia, kCinquillo};

// On the table of a match, at every size.
struct AvisoSobreLaMesa : AvisoEnMesa, testing::WithParamInterface<Integer> {
    template <class Mira>
    void ACadaTamano(Mira mira) {
        Juega(GetParam());
        estado.JuegosJugados = 3;
        estado.JugadorActual = 4;
        for (const auto& [ancho, alto] :
             {std::pair{800, 600}, {1024, 600}, {1280, 720}, {1366, 768}, {1920, 1080}}) {
            SCOPED_TRACE(testing::Message() << ancho << 'x' << alto);
            p.Mide(ancho, alto);
            CalcularMesa();
            vista.nombres = true;
            PintaTanteo();
            mira();
        }
    }
    void NoCorta(const Rectangulo& otro, const char* que) {
        EXPECT_FALSE(SeCortan(Lugar(), otro)) << que << ' ' << otro.x << ',' << otro.y;
    }
    void NoTapaLasFichas(int area) {
        for (int ficha = 1; ficha <= 6; ++ficha) {
            NoCorta({estado.PosFichaX(area, ficha), estado.PosFichaY(area, ficha) - kCreceFicha,
                     kLadoFicha, kLadoFicha + kCreceFicha},
                    "fichas");
        }
    }
    // Hands, plate and the chips that the seats have.
    void NoTapaLosAsientos() {
        ASSERT_TRUE(SeVe());
        ASSERT_TRUE(p.EstaVisible(Control::Pic_Tanteo, 0));
        NoCorta(p.Tablero().LugarDe({Control::Pic_Tanteo, 0}), "placa");
        for (int asiento = 1; asiento <= 4; ++asiento) {
            NoCorta(ZonaConRealce(asiento), "zona");
            if (JuegoEnMesa().dinero.hay)
                NoTapaLasFichas(kAreaRestos + asiento - 1);
        }
    }
    // What lies inside of the seats.
    void NoTapaElCentro() {
        NoCorta({estado.MazoX - 18, estado.MazoY, 133, 155}, "mazo");
        for (int asiento = 1; asiento <= 4; ++asiento) {
            const Punto centro = LugarCentro(asiento);
            NoCorta({centro.x, centro.y, kAltoCarta, kAltoCarta}, "baza");
            if (JuegoEnMesa().dinero.hay)
                NoTapaLasFichas(kAreaApuestas + asiento - 1);
        }
        if (!JuegoEnMesa().dinero.hay)
            return;
        NoTapaLasFichas(kAreaBote);
        MuestraApostadora();
        NoCorta(p.Tablero().LugarDe({Control::Pic_Apostadora, 0}), "apostadora");
    }
};

} // namespace

TEST_P(AvisoSobreLaMesa, AlOrdenarNoTapaNada) {
    ACadaTamano([this] {
        estado.PartidaEnCurso = true;
        estado.ModoOrdenar = true;
        RefrescaAviso();
        NoTapaLosAsientos();
        NoTapaElCentro();
    });
}

TEST_P(AvisoSobreLaMesa, AlAcabarLaPartidaNoTapaNada) {
    estado.GanadorPartida = 2;
    ACadaTamano([this] {
        RefrescaAviso();
        NoTapaLosAsientos();
        NoTapaElCentro();
    });
}

// Bets and pot are not there yet: the spread lies in their places.
TEST_P(AvisoSobreLaMesa, AlRepartirAManoNoTapaNiElRepartoNiLosAsientos) {
    ACadaTamano([this] {
        estado.FilasReparto = GetParam() == kPoker ? 5 : 4;
        const int alto = PasoFila() * estado.FilasReparto;
        estado.ReparteY = static_cast<Integer>(estado.AltoMesa / 2 - alto / 2);
        estado.RepartoEnCurso = true;
        RefrescaAviso();
        EXPECT_GE(Lugar().y, estado.ReparteY + alto);
        NoTapaLosAsientos();
    });
}

INSTANTIATE_TEST_SUITE_P(Juegos, AvisoSobreLaMesa, testing::ValuesIn(kJuegos));
