// Whole matches by ear: all is told, and nothing that is covered.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "table/card_names.h"
#include "table/game_row.h"
#include "tests/support/live_table.h"

using namespace prueba;
using testing::HasSubstr;
using testing::Not;

namespace {

struct PartidaDicha : MesaViva {
    // One hand wins, who has no chips left loses soon. Seat 4's cards lie open, nobody else's do but in Black Jack.
    void JuegaEntera(Integer juego, Integer asientos) {
        Juega(juego);
        TodoSolo();
        estado.VelocidadJuego = 100;
        estado.LimitePartida = 1;
        estado.RestoInicial = 20;
        estado.ApuestaSalida = 5;
        for (int asiento = 1; asiento <= 3; ++asiento)
            estado.CartasJugador(asiento) = juego == kBlackJack ? kDescubierta : kDorso;
        estado.CartasJugador(4) = kDescubierta;
        if (const Integer banca = JuegoEnMesa().asientos.banca; banca != 0)
            estado.JugadorBanca = banca;
        if (asientos == 2)
            Desactiva({1, 3});
        p.siempre_continua = true;
        p.al_anunciar = [this](const std::string& texto) { Oye(texto); };
        NuevaPartida();
    }

    long CuantasVeces(const std::string& que) const {
        return std::ranges::count_if(p.anuncios, [&](const std::string& anuncio) {
            return anuncio.find(que) != std::string::npos;
        });
    }
    int cubiertas = 0; // hands that lay covered while something was said

private:
    // The turned trump may be named for good: it lay open, also when it has gone into a covered hand.
    void Oye(const std::string& texto) {
        const bool triunfo = texto.starts_with("Triunfo: ");
        for (int asiento = 1; asiento <= 4; ++asiento) {
            for (int lugar = 1; lugar <= estado.NumCartas(asiento, 1); ++lugar) {
                const auto campo = [&](int cual) { return estado.Mano(asiento, 1, lugar, cual); };
                if (campo(kCara) == kDescubierta || campo(kPalo) == kComodin)
                    continue;
                ++cubiertas;
                const std::string nombre = NombreDeCarta({campo(kPalo), campo(kValor)});
                if (triunfo)
                    continue;
                if (std::ranges::count(triunfos_, nombre) == 0) {
                    EXPECT_THAT(texto, Not(HasSubstr(nombre)));
                }
            }
        }
        const std::size_t cambia = texto.find(" cambia el ");
        if (triunfo)
            triunfos_.push_back(texto.substr(9));
        else if (cambia != std::string::npos)
            triunfos_.push_back(texto.substr(cambia + 11, texto.find(" por ") - cambia - 11));
    }
    std::vector<std::string> triunfos_;
};

} // namespace

TEST_F(PartidaDicha, EnElTuteSeDiceCadaCartaYCadaBaza) {
    JuegaEntera(kTute, 2);
    EXPECT_EQ(CuantasVeces(" gana la baza"), estado.NumBaza);
    EXPECT_EQ(CuantasVeces(" juega "), 2 * estado.NumBaza);
}

namespace {

struct Dicho {
    std::string nombre;
    Integer juego, asientos;
    int cubiertas; // at least; in Black Jack all hands lie open
    std::vector<std::string> frases;
};

const std::vector<Dicho> kDichos = {
    {"Tute", kTute, 2, 100, {"Triunfo: ", " juega ", " gana la baza"}},
    {"BriscaDeCuatro", kBrisca, 4, 100, {"Jugador4 roba ", " gana la baza"}},
    {"Cinquillo", kCinquillo, 4, 100, {" juega el Cinco de Oros", " pasa"}},
    {"Poker", kPoker, 4, 20, {" pone 5 de salida", " cobra "}},
    {"SieteYMedia", kSieteYMedia, 4, 5, {" apuesta ", " descubre "}},
    {"BlackJack", kBlackJack, 4, 0, {" apuesta ", " toma ", " gana "}},
};

struct LoDichoEn : PartidaDicha, testing::WithParamInterface<Dicho> {};

} // namespace

TEST_P(LoDichoEn, CadaJuegoSeOyeYNadaDeLoTapado) {
    const Dicho& dicho = GetParam();
    JuegaEntera(dicho.juego, dicho.asientos);
    EXPECT_GE(cubiertas, dicho.cubiertas);
    for (const std::string& frase : dicho.frases)
        EXPECT_GT(CuantasVeces(frase), 0) << frase;
}

INSTANTIATE_TEST_SUITE_P(LosJuegos, LoDichoEn, testing::ValuesIn(kDichos),
                         [](const auto& caso) { return caso.param.nombre; });
