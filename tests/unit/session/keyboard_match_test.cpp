// A whole match of each game by the keys that are no characters: from F2 over every choice of the person to F9.

#include <gtest/gtest.h>

#include "betting/chips.h"
#include "core/random.h"
#include "core/session_state.h"
#include "platform/headless/headless_platform.h"
#include "session/main_buttons.h"
#include "session/match_driver.h"
#include "table/deck.h"
#include "table/keyboard_walk.h"
#include "table/layout.h"
#include "table/waiting.h"
#include "tests/support/person_by_keys.h"
#include "tools/common/fresh_table.h"

using namespace prueba;

namespace {

constexpr int kDemasiadasTeclas = 200'000;

// At every wait one key, and nothing else.
class MesaConTeclas : public PlataformaSinPantalla {
public:
    PersonaConTeclas persona;
    int teclas = 0;
    bool SeHaPerdido() const { return teclas > kDemasiadasTeclas; }

    void Bombea() override { servido_ = false; }
    bool EsperaEvento() override { return !SeHaPerdido(); }
    std::optional<Evento> SiguienteEvento(Pase pase) override {
        if (pase == Pase::DePaso || servido_ || SeHaPerdido())
            return std::nullopt;
        servido_ = true;
        ++teclas;
        return persona.SiguienteTecla();
    }

private:
    bool servido_ = false; // one key a pass
};

struct Partida {
    Integer juego;
    int cartas; // that the person chooses at least
    bool con_fichas;
};

class ConTeclas : public testing::TestWithParam<Partida> {
protected:
    ConTeclas() {
        UsaPlataforma(mesa);
        RegistraDespacho(DespachaEvento);
        mesa.UsaLienzosRegistrados();
        PonMesaNueva();
        FijaSemilla(31);
        estado.JuegoActivo = GetParam().juego;
        estado.VelocidadJuego = 100;
        estado.LimitePartida = 1;
        estado.RestoInicial = 40;
        estado.ApuestaSalida = 1;
        ConstruirBaraja();
        ColocarMazo();
    }
    ~ConTeclas() override { OlvidaMarco(); }
    MesaConTeclas mesa;
};

} // namespace

TEST_P(ConTeclas, SeJuegaUnaPartidaEntera) {
    BucleSesion();
    ASSERT_FALSE(mesa.SeHaPerdido());
    EXPECT_TRUE(mesa.persona.acabada);
    EXPECT_EQ(sesion.peticion, Peticion::Salir);
    EXPECT_GE(estado.JuegosJugados, 1);
    EXPECT_NE(estado.GanadorPartida, 0);
    EXPECT_GE(mesa.persona.cartas, GetParam().cartas);
    EXPECT_EQ(mesa.persona.fichas > 0, GetParam().con_fichas);
    EXPECT_GT(mesa.persona.botones, 0);
}

INSTANTIATE_TEST_SUITE_P(Juegos, ConTeclas,
                         testing::Values(Partida{kPoker, 1, true}, Partida{kBlackJack, 1, true},
                                         Partida{kTute, 10, false}, Partida{kBrisca, 10, false},
                                         Partida{kSieteYMedia, 1, true},
                                         Partida{kCinquillo, 5, false}),
                         [](const testing::TestParamInfo<Partida>& caso) {
                             return "Juego" + std::to_string(caso.param.juego);
                         });
