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
    bool SeDijo(const std::string& que) const { return CuantasVeces(que) > 0; }
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

TEST_F(PartidaDicha, EnElTuteSeDicenTriunfoCartasYBazas) {
    JuegaEntera(kTute, 2);
    EXPECT_GT(cubiertas, 100);
    EXPECT_TRUE(SeDijo("Triunfo: "));
    EXPECT_EQ(CuantasVeces(" gana la baza"), estado.NumBaza);
    EXPECT_EQ(CuantasVeces(" juega "), 2 * estado.NumBaza);
}

TEST_F(PartidaDicha, EnLaBriscaDeCuatroTampocoSeDiceLoTapado) {
    JuegaEntera(kBrisca, 4);
    EXPECT_GT(cubiertas, 100);
    EXPECT_TRUE(SeDijo("Jugador4 roba "));
    EXPECT_TRUE(SeDijo(" gana la baza"));
}

TEST_F(PartidaDicha, EnElCinquilloSeDicenLasCartasYQuienPasa) {
    JuegaEntera(kCinquillo, 4);
    EXPECT_GT(cubiertas, 100);
    EXPECT_TRUE(SeDijo(" juega el Cinco de Oros"));
    EXPECT_TRUE(SeDijo(" pasa"));
}

TEST_F(PartidaDicha, EnElPokerSeDicenApuestasDescartesYQuienCobra) {
    JuegaEntera(kPoker, 4);
    EXPECT_GT(cubiertas, 20);
    EXPECT_TRUE(SeDijo(" pone 5 de salida"));
    EXPECT_TRUE(SeDijo(" cobra "));
}

TEST_F(PartidaDicha, EnSieteYMediaLaTapadaSeDiceAlDescubrirla) {
    JuegaEntera(kSieteYMedia, 4);
    EXPECT_GT(cubiertas, 5);
    EXPECT_TRUE(SeDijo(" apuesta "));
    EXPECT_TRUE(SeDijo(" descubre "));
}

TEST_F(PartidaDicha, EnElBlackJackSeDicenCartasYPagos) {
    JuegaEntera(kBlackJack, 4);
    EXPECT_TRUE(SeDijo(" apuesta "));
    EXPECT_TRUE(SeDijo(" toma "));
    EXPECT_TRUE(SeDijo(" gana ") || SeDijo(" pierde "));
}
