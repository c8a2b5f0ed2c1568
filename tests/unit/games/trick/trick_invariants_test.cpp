// A hand that was really played passes; each thing that may not happen is then made to have happened.

#include "games/common/trick_state.h"
#include "games/trick/trick_invariants.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "core/invariant.h"
#include "session/state_blocks.h"
#include "tools/simula/match.h"

namespace {

class ManoJugada : public testing::TestWithParam<OpcionesSimula> {
protected:
    ManoJugada() : simulacion_(GetParam()) { simulacion_.Juega(3); }

    static void NoPasa() { EXPECT_THROW(RevisaManoBazas(), InvarianteRoto); }

private:
    Simulacion simulacion_;
};

OpcionesSimula De(int juego, int asientos, bool parejas) {
    OpcionesSimula opciones;
    opciones.juego = juego;
    opciones.asientos = asientos;
    opciones.parejas = parejas;
    opciones.limite = 1;
    return opciones;
}

} // namespace

TEST_P(ManoJugada, Pasa) {
    EXPECT_NO_THROW(RevisaManoBazas());
    EXPECT_NO_THROW(RevisaPartidaBazas(1));
}

TEST_P(ManoJugada, UnaCartaSinJugarNoPasa) {
    bazas.CartaJugada(kOros, 7) = 0;
    NoPasa();
}

TEST_P(ManoJugada, UnTantoDeMasNoPasa) {
    bazas.TantosJugador(2) += 1;
    NoPasa();
}

TEST_P(ManoJugada, UnaBazaDeOtroNoPasa) {
    Integer& ganador = bazas.GanadorDeBaza(2);
    ganador = ganador == 1 ? Integer{2} : Integer{1};
    NoPasa();
}

TEST_P(ManoJugada, UnaCartaQueFaltaEnElRegistroNoPasa) {
    bazas.RegistroBazas(2 + 5, 3) = 0;
    NoPasa();
}

TEST_P(ManoJugada, OtroGanadorNoPasa) {
    estado.GanadorMano = estado.GanadorMano == 1 ? Integer{2} : Integer{1};
    NoPasa();
}

TEST_P(ManoJugada, UnRegistroSinGanadorNoPasa) {
    estado.Juegos(1).Marcas.Borra();
    EXPECT_THROW(RevisaPartidaBazas(1), InvarianteRoto);
}

INSTANTIATE_TEST_SUITE_P(Variantes, ManoJugada,
                         testing::Values(De(kTute, 2, false), De(kTute, 3, false),
                                         De(kTute, 4, false), De(kTute, 4, true),
                                         De(kBrisca, 2, false), De(kBrisca, 3, false),
                                         De(kBrisca, 4, false), De(kBrisca, 4, true)));

namespace {

struct SinSeguir : testing::Test {
    SinSeguir() : simulacion_(De(kTute, 4, false)) { simulacion_.Juega(3); }
    Simulacion simulacion_;
};

} // namespace

// Two cards of a follower change places in the log: the one that was due then falls later.
TEST_F(SinSeguir, UnaCartaIlegalNoPasa) {
    int rotas = 0;
    const Tabla<Integer, 25, 41> registro = bazas.RegistroBazas;
    for (int asiento = 1; asiento <= 4; ++asiento) {
        for (int baza = 1; baza < estado.NumBaza; ++baza) {
            std::swap(bazas.RegistroBazas(asiento + 5, baza),
                      bazas.RegistroBazas(asiento + 5, baza + 1));
            std::swap(bazas.RegistroBazas(asiento + 10, baza),
                      bazas.RegistroBazas(asiento + 10, baza + 1));
            try {
                RevisaManoBazas();
            } catch (const InvarianteRoto& fallo) {
                const std::string porque = fallo.what();
                rotas += porque.find("no sigue como debe") != std::string::npos ? 1 : 0;
            }
            bazas.RegistroBazas = registro;
        }
    }
    EXPECT_GT(rotas, 0);
}
