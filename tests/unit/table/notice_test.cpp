// The words on the table while cards are put in order, or dealt, by hand.

#include "table/notice.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "table/hand_order.h"
#include "table/options_menu.h"
#include "table/spread_layout.h"
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

TEST_F(AvisoEnMesa, NoTapaNiElRepartoNiLasManos) {
    for (const Integer juego : {kPoker, kBlackJack, kTute, kBrisca, kSieteYMedia, kCinquillo}) {
        Juega(juego);
        estado.FilasReparto = 5;
        for (const auto& [ancho, alto] : {std::pair{800, 600}, {1280, 720}, {1920, 1080}}) {
            SCOPED_TRACE(testing::Message() << juego << " a " << ancho << 'x' << alto);
            p.Mide(ancho, alto);
            CalcularMesa();
            estado.FilasReparto = juego == kPoker ? 5 : 4;
            estado.ReparteY =
                static_cast<Integer>(estado.AltoMesa / 2 - PasoFila() * estado.FilasReparto / 2);
            estado.RepartoEnCurso = true;
            RefrescaAviso();
            EXPECT_GE(Lugar().y, estado.ReparteY + PasoFila() * estado.FilasReparto);
            for (int asiento = 1; asiento <= 4; ++asiento)
                EXPECT_FALSE(SeCortan(Lugar(), ZonaConRealce(asiento))) << asiento;
            estado.RepartoEnCurso = false;
            estado.ModoOrdenar = true;
            RefrescaAviso();
            for (int asiento = 1; asiento <= 4; ++asiento)
                EXPECT_FALSE(SeCortan(Lugar(), ZonaConRealce(asiento))) << asiento;
            estado.ModoOrdenar = false;
        }
    }
}
