// Whose turn it is, told by the lit name, in all games: at every moment in which the table waits.

#include <gtest/gtest.h>

#include "core/session_state.h"
#include "games/common/trick_state.h"
#include "games/common/trick_values.h"
#include "games/game_rows.h"
#include "games/trick/cantes.h"
#include "table/table_view.h"
#include "table/waiting.h"
#include "tests/support/live_table.h"

using namespace prueba;

namespace {

int esperas = 0; // waits of a hand that were looked at
int sin_luz = 0; // those in which the seat on turn was not lit
int de_mas = 0;  // waits between hands with a name still lit
constexpr int kBastantes = 120;

void MiraYSigue(const Evento& evento) {
    if (evento.tipo == TipoEvento::Clic && evento.control == Control::Pic_BotContinuar) {
        const bool en_turno =
            vista.asiento_encendido == estado.JugadorActual && vista.luz == Luz::Turno;
        ++esperas;
        if (estado.ManoEnCurso && !en_turno)
            ++sin_luz;
        if (!estado.ManoEnCurso && vista.asiento_encendido != 0)
            ++de_mas;
        if (esperas >= kBastantes)
            sesion.peticion = Peticion::Salir;
    }
    DespachaEvento(evento);
}

struct NombresEncendidos : MesaViva, testing::WithParamInterface<Integer> {
    NombresEncendidos() {
        esperas = sin_luz = de_mas = 0;
        RegistraDespacho(MiraYSigue);
    }
};

} // namespace

TEST_P(NombresEncendidos, ElAsientoDelTurnoLoEstaMientrasSeLeEspera) {
    Juega(GetParam());
    p.siempre_continua = true;
    NuevaPartida();
    EXPECT_GT(esperas, 10);
    EXPECT_EQ(sin_luz, 0);
    EXPECT_EQ(de_mas, 0);
}

INSTANTIATE_TEST_SUITE_P(Juegos, NombresEncendidos,
                         testing::Values(kPoker, kBlackJack, kTute, kBrisca, kSieteYMedia,
                                         kCinquillo));

namespace {

struct BazaGanada : MesaViva {
    BazaGanada() {
        p.UsaLienzosRegistrados();
        EmpiezaTraza();
    }
    // Whether a lit name was drawn with this sign.
    bool Dibujado(const std::string& senal) {
        for (const std::string& llamada : p.Dibujado(Control::Mesa).Llamadas()) {
            if (llamada.find('"' + senal + '"') != std::string::npos)
                return true;
        }
        return false;
    }
};

} // namespace

TEST_F(BazaGanada, ElNombreDelGanadorSeEnciendeYLuegoNadie) {
    Juega(kBrisca);
    TodoSolo();
    estado.LimitePartida = 1;
    NuevaPartida();
    EXPECT_TRUE(Dibujado("★"));
    EXPECT_EQ(vista.asiento_encendido, 0);
}

namespace {

struct CanteEnMesa : MesaViva {
    CanteEnMesa() {
        p.UsaLienzosRegistrados();
        Juega(kTute);
        ManoEmpezada(4);
        estado.PaloTriunfo = kBastos;
        estado.GanadorBaza = 2;
        estado.NumBaza = 3;
        bazas.GanadorDeBaza(3) = 2;
        p.Dibujado(Control::Mesa).Olvida();
    }
    // The letters that were drawn, in their order.
    std::string Letras() {
        std::string letras;
        for (const std::string& llamada : p.Dibujado(Control::Mesa).Llamadas()) {
            const auto abre = llamada.find('"');
            if (llamada.starts_with("Texto("))
                letras += llamada.substr(abre + 1, llamada.rfind('"') - abre - 1);
        }
        return letras;
    }
};

} // namespace

TEST_F(CanteEnMesa, ElVeinteDiceSuPalo) {
    PonMano(2, {{kOros, kCaballo}, {kOros, kRey}});
    CantaTrasBaza();
    EXPECT_NE(Letras().find("Veinte en Oros"), std::string::npos);
}

TEST_F(CanteEnMesa, ElDelTriunfoEsCuarenta) {
    PonMano(2, {{kBastos, kCaballo}, {kBastos, kRey}});
    CantaTrasBaza();
    EXPECT_NE(Letras().find("Cuarenta"), std::string::npos);
}

TEST_F(CanteEnMesa, ElTuteTambienSeDice) {
    PonMano(2, {{kOros, kRey}, {kCopas, kRey}, {kEspadas, kRey}, {kBastos, kRey}});
    CantaTrasBaza();
    EXPECT_NE(Letras().find("Tute"), std::string::npos);
}

TEST_F(CanteEnMesa, SinCanteNoSeDiceNada) {
    PonMano(2, {{kOros, kRey}, {kCopas, kCaballo}});
    CantaTrasBaza();
    EXPECT_EQ(Letras(), "");
}
