// What blinks on the bet places.

#include "games/common/bank_marks.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "betting/bet_state.h"
#include "games/common/bank_hands.h"
#include "table/bet_board.h"
#include "tests/support/bet_table.h"

using namespace prueba;
using testing::ElementsAre;

namespace {

struct MarcasDeBanca : MesaDeApuestas {
    MarcasDeBanca() {
        p.UsaLienzosRegistrados();
        Apuestan(kBlackJack);
        estado.JugadorActual = 4;
        estado.SerieActual = 1;
    }

    // The last picture that a drawing puts on the felt.
    template <class F>
    std::string UltimaLamina(F&& dibujo) {
        const auto& llamadas = p.Dibujado(Control::Mesa).Llamadas();
        const auto antes = static_cast<std::ptrdiff_t>(llamadas.size());
        dibujo();
        std::string ultima;
        for (auto i = llamadas.begin() + antes; i != llamadas.end(); ++i) {
            if (i->starts_with("Lamina"))
                ultima = *i;
        }
        return ultima;
    }
    std::vector<std::string> SonidosYPausas() const {
        std::vector<std::string> suyos;
        for (const std::string& linea : traza) {
            if (linea.starts_with("Sonido") || linea.starts_with("Pausa"))
                suyos.push_back(linea);
        }
        return suyos;
    }
};

} // namespace

TEST_F(MarcasDeBanca, ElSitioDeApuestaParpadeaDosVecesSinRuido) {
    EmpiezaTraza();
    ParpadeaApuesta();
    EXPECT_THAT(SonidosYPausas(),
                ElementsAre("Pausa(180)", "Pausa(380)", "Pausa(180)", "Pausa(380)"));
}

TEST_F(MarcasDeBanca, QuienSePasaDestellaDosVecesConSonidoOnce) {
    EmpiezaTraza();
    DestellaBust(4);
    EXPECT_THAT(SonidosYPausas(), ElementsAre("Sonido(1, 11)", "Pausa(420)", "Pausa(180)",
                                              "Sonido(1, 11)", "Pausa(420)", "Pausa(180)"));
}

// The mark stays where it was: painted anew it is the same.
TEST_F(MarcasDeBanca, LaMarcaSeQuedaIgualAlRepintar) {
    const std::string al_destellar = UltimaLamina([] { DestellaBust(4); });
    PierdeAlPasarse();
    EXPECT_EQ(UltimaLamina([] { RedibujaApuesta(4); }), al_destellar);
    EXPECT_TRUE(estado.SerieTerminada(4, 1));
}
