// What reading a file of a game makes of values that cannot be.

#include "betting/bet_state.h"
#include "storage/settings_repair.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "betting/chips.h"
#include "storage/settings.h"
#include "tests/support/settings_table.h"

namespace {

using namespace prueba;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr int kBote = 0;

TEST_F(AjustesTest, ElBlackJackTieneSiempreALaBancaEnElAsiento2) {
    mesa.Empieza(kBlackJack);
    std::string contenido = ArchivoDeTute();
    contenido.replace(16, 16, "Luis     0302121");
    contenido.replace(71, 1, "2"); // manual deal
    mesa.Archivo("ZOV3131.INI") = contenido;
    LeerIniJuego();
    EXPECT_THAT(mesa.Mensajes(), IsEmpty());
    EXPECT_EQ(estado.NombreJugador(2), "Banca");
    EXPECT_EQ(estado.EstadoJugador(2), kActivado);
    EXPECT_EQ(estado.NivelJugador(2), 100);
    EXPECT_EQ(estado.ControlJugador(2), kAutomatico);
    EXPECT_EQ(estado.CaracterJugador(2), kConservador);
    for (int asiento = 1; asiento <= 4; ++asiento)
        EXPECT_EQ(estado.CartasJugador(asiento), kVisibles);
    EXPECT_EQ(estado.SistemaReparto, kAutomatico);
    EXPECT_EQ(estado.NumJugadores, 4);
}

TEST_F(AjustesTest, TambienSinArchivoElBlackJackTieneSuBanca) {
    mesa.Empieza(kBlackJack);
    LeerIniJuego();
    EXPECT_EQ(estado.NombreJugador(2), "Banca");
    EXPECT_THAT(mesa.Archivo("ZOV3131.INI"), HasSubstr("Banca    1001213"));
}

TEST_F(AjustesTest, LosAjustesDeUnAsientoFueraDeLimitesSeArreglan) {
    LeeTuteCon(10, "101"
                   "3"
                   "0"
                   "9"
                   "4");
    EXPECT_EQ(estado.NivelJugador(1), 50);
    EXPECT_EQ(estado.EstadoJugador(1), kActivado);
    EXPECT_EQ(estado.CartasJugador(1), kOcultas);
    EXPECT_EQ(estado.ControlJugador(1), kAutomatico);
    EXPECT_EQ(estado.CaracterJugador(1), kMedio);
    EXPECT_THAT(mesa.Mensajes(), IsEmpty());
}

TEST_F(AjustesTest, UnAsientoManualTieneSusCartasVisibles) {
    LeeTuteCon(13, "1"
                   "1"
                   "2");
    EXPECT_EQ(estado.ControlJugador(1), kManual);
    EXPECT_EQ(estado.CartasJugador(1), kVisibles);
}

TEST_F(AjustesTest, LasReglasFueraDeLimitesSeArreglan) {
    LeeTuteCon(65, "7 "
                   "03"
                   "15"
                   "3"
                   "0"
                   "4"
                   "9"
                   "7"
                   "3");
    EXPECT_TRUE(estado.PausaEntreJugadas);
    EXPECT_EQ(estado.ModalidadJuego, kIndividual);
    EXPECT_EQ(estado.LeyApertura, 1);
    EXPECT_EQ(estado.SentidoJuego, kDirecto);
    EXPECT_EQ(estado.SistemaReparto, 1);
    EXPECT_EQ(estado.ComodinesJuego, 1);
    EXPECT_EQ(estado.NumJugadores, 4);
    EXPECT_EQ(estado.CartasBaraja, 1);
    EXPECT_EQ(estado.VentanaInfo, 1);
    EXPECT_THAT(mesa.Mensajes(), IsEmpty());
}

// Only the form keeps the law from falling below the deck: in a file each stands for itself.
TEST_F(AjustesTest, LaLeyDeAperturaSeLeeComoEstaTambienPorDebajoDeLaBaraja) {
    LeeTuteCon(69, "02"
                   "1114"
                   "6");
    EXPECT_EQ(estado.CartasBaraja, 6);
    EXPECT_EQ(estado.LeyApertura, 2);
    LeeTuteCon(69, "15"
                   "1114"
                   "6");
    EXPECT_EQ(estado.LeyApertura, 1);
}

TEST_F(AjustesTest, ElPasoSaleDelSentidoYNoDeSuColumna) {
    LeeTuteCon(71, "2");
    EXPECT_EQ(estado.PasoSentido, -1);
    LeeTuteCon(107, "-0");
    EXPECT_EQ(estado.PasoSentido, 1);
}

TEST_F(AjustesTest, UnaReglaDeDineroFueraDeLimitesVuelveASuValorPorDefecto) {
    const auto leidas = [this](const std::string& bytes) {
        LeeTuteCon(109, bytes);
        return std::vector<Integer>{estado.RestoInicial, estado.ApuestaSalida, estado.ApuestaMaxima,
                                    estado.LimitePartida};
    };
    EXPECT_THAT(leidas("0996"
                       "999"
                       "000"
                       "000"),
                ElementsAre(200, 999, 25, 3));
    EXPECT_THAT(leidas("0000"
                       "-01"
                       "-05"
                       "-05"),
                ElementsAre(200, 5, 25, 3));
    EXPECT_THAT(leidas("0995"
                       "000"
                       "005"
                       "999"),
                ElementsAre(995, 0, 5, 999));
}

// The forms would not let them be so small, or so large; a file may.
TEST_F(AjustesTest, UnRestoYUnaApuestaMaximaConLosQueSePuedeJugarSeQuedan) {
    LeeTuteCon(109, "0004"
                    "000"
                    "004");
    EXPECT_EQ(estado.RestoInicial, 4);
    EXPECT_EQ(estado.ApuestaMaxima, 4);
    LeeTuteCon(116, "999");
    EXPECT_EQ(estado.ApuestaMaxima, 999);
}

TEST_F(AjustesTest, UnaReglaQueNoCabeEn16BitsDejaLaQueHabia) {
    LeeTuteCon(109, "9E99");
    EXPECT_EQ(estado.RestoInicial, 200);
    EXPECT_TRUE(estado.PartidaEnCurso);
    EXPECT_EQ(estado.JuegosJugados, 2);
    EXPECT_THAT(mesa.Mensajes(), IsEmpty());
    EXPECT_TRUE(estado.FicheroNuevo);
    EXPECT_EQ(mesa.Archivo("ZOV5131.INI"), ArchivoDeTute());
}

TEST_F(AjustesTest, QuienSaleYQuienEsBancaEstanEnLaMesa) {
    LeeTuteCon(101, "0 9");
    EXPECT_EQ(estado.JugadorMano, 4);
    EXPECT_EQ(estado.JugadorBanca, 4);
}

TEST_F(AjustesTest, ConUnSoloAsientoActivoSeActivanLosCuatro) {
    std::string contenido = ArchivoDeTute();
    for (std::size_t asiento = 1; asiento <= 3; ++asiento)
        contenido.replace(16 * (asiento - 1) + 12, 1, "2");
    LeeTute(contenido);
    EXPECT_EQ(estado.NumJugadores, 4);
    for (int asiento = 1; asiento <= 4; ++asiento)
        EXPECT_EQ(estado.EstadoJugador(asiento), kActivado);
}

TEST_F(AjustesTest, ConTresAsientosNoHayParejas) {
    std::string contenido = ArchivoDeTute().replace(12, 1, "2").replace(66, 2, "02");
    LeeTute(contenido);
    EXPECT_EQ(estado.NumJugadores, 3);
    EXPECT_EQ(estado.ModalidadJuego, kIndividual);
    LeeTuteCon(67, "02");
    EXPECT_EQ(estado.ModalidadJuego, kDosParejas);
}

TEST_F(AjustesTest, ElCinquilloSeJuegaConCuatro) {
    mesa.Empieza(kCinquillo);
    mesa.Archivo("ZOV7031.INI") = ArchivoDeTute().replace(12, 1, "2");
    LeerIniJuego();
    EXPECT_EQ(estado.NumJugadores, 4);
    EXPECT_EQ(estado.EstadoJugador(1), kActivado);
}

TEST_F(AjustesTest, LasFichasYApuestasNegativasSonNinguna) {
    LeeTute(AjustesDeTute() + "\n-1-905" + std::string(54, '0') + "\n-005-03" +
            std::string(21, '0') + "\n" + RegistroDe("Ana", "    0") + "\n" +
            RegistroDe("Eva", "  -45"));
    EXPECT_THAT(mesa.Mensajes(), IsEmpty());
    EXPECT_EQ(apuestas.Fichas(kBote, 1), 0);
    EXPECT_EQ(apuestas.Fichas(kBote, 2), 0);
    EXPECT_EQ(apuestas.Fichas(kBote, 3), 5);
    EXPECT_EQ(apuestas.Apuesta(1, 1, 2), 0);
    EXPECT_EQ(estado.JuegosGanados(1), 0);
    EXPECT_EQ(estado.Juegos(2).Total, -45);
}

TEST_F(AjustesTest, MasDineroDelQueCabeEnUnaCantidadSeRepartePorIgual) {
    LeeTute(AjustesDeTute() + "\n" + std::string(60, '9') + "\n" + ConJuegosGanados() + "\n" +
            RegistroDe("Ana", "    0") + "\n" + RegistroDe("Eva", "    0"));
    EXPECT_THAT(mesa.Mensajes(), IsEmpty());
    EXPECT_EQ(RestoDe(kBote), 0);
    for (int asiento = 1; asiento <= 4; ++asiento)
        EXPECT_EQ(RestoDe(asiento), 200);
    EXPECT_EQ(apuestas.RestoPrevio(1), 200);
}

TEST_F(AjustesTest, MasApuestasDeLasQueCabenEnUnaCantidadSonNinguna) {
    LeeTute(AjustesDeTute() + "\n" + SinFichas() + "\n" +
            "9999000"
            "9999000"
            "9999000"
            "9999000" +
            "\n" + RegistroDe("Ana", "    0") + "\n" + RegistroDe("Eva", "    0"));
    EXPECT_THAT(mesa.Mensajes(), IsEmpty());
    EXPECT_EQ(apuestas.Apuesta(2, 1, 2), 0);
    EXPECT_EQ(apuestas.ApuestaPrevia(2, 2), 0);
}

TEST_F(AjustesTest, UnNumeroDeJuegosNegativoEsNinguno) {
    LeeTuteCon(97, "-02");
    EXPECT_TRUE(estado.PartidaEnCurso);
    EXPECT_EQ(estado.JuegosJugados, 0);
    EXPECT_THAT(mesa.Mensajes(), IsEmpty());
}

} // namespace
