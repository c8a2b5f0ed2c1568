#include "games/common/trick_state.h"
#include "games/trick/trick_driver.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "session/match_driver.h"
#include "table/trace.h"
#include "tests/support/trick_table.h"

using namespace prueba;

namespace {

const std::vector<Carta> kReyes = {
    {kOros, kRey}, {kCopas, kRey}, {kEspadas, kRey}, {kBastos, kRey}};
const std::vector<Carta> kCaballos = {
    {kOros, kCaballo}, {kCopas, kCaballo}, {kEspadas, kCaballo}, {kBastos, kCaballo}};

// The deck of a deal of Tute with four seats, seat 2 first: five cards to each of 2, 3, 4, 1, twice.
std::vector<Carta> MazoTuteCuatro(const std::vector<Carta>& del_2,
                                  const std::vector<Carta>& del_3) {
    std::vector<Carta> mazo = del_2;
    mazo.push_back({kOros, 2});
    mazo.insert(mazo.end(), del_3.begin(), del_3.end());
    return mazo;
}

} // namespace

TEST(ManoDeTute, UnTuteAlRepartirAcabaLaManoSinBazas) {
    MesaDeTrick mesa(kTute, 4);
    estado.LimitePartida = 1;
    ApilaBaraja(MazoTuteCuatro(kCaballos, {}));
    ManoTute();
    EXPECT_EQ(estado.NumBaza, 0);
    EXPECT_EQ(estado.GanadorMano, 2);
    EXPECT_EQ(estado.GanadorPartida, 2);
    EXPECT_EQ(estado.Juegos(1).Texto1(2), "0");
    EXPECT_EQ(estado.Juegos(1).Texto2(2), "Tute de Caballos");
    EXPECT_EQ(mesa.plataforma.mensajes.front().texto,
              "Se ha cantado Tute de Caballos\r\n\r\nHa ganado la mano Jugador2");
    EXPECT_FALSE(estado.PartidaEnCurso);
}

TEST(ManoDeTute, LosReyesGananALosCaballosAlRepartir) {
    MesaDeTrick mesa(kTute, 4);
    estado.LimitePartida = 1;
    ApilaBaraja(MazoTuteCuatro(kCaballos, kReyes));
    ManoTute();
    EXPECT_EQ(estado.GanadorMano, 3);
    EXPECT_EQ(estado.Juegos(1).Texto2(3), "Tute de Reyes");
}

namespace {

// A first hand that a Tute at the deal ends, by seat 2 or seat 4, and a second one that seat 4 leads, with the 5
// of Bastos turned up and its 2 in the hand of seat 2. The answer is the rank turned up as the second trick of
// that second hand begins.
Integer PintaTrasLaPrimeraBaza(Integer del_tute) {
    MesaDeTrick mesa(kTute, 2);
    estado.LimitePartida = 2;
    const std::vector<Carta> otras = {{kOros, 2}, {kOros, 4}, {kOros, 5}};
    std::vector<Carta> primera = del_tute == 2 ? kReyes : otras;
    primera.insert(primera.begin() + 3, {{kOros, 6}, {kOros, 7}, {kCopas, 2}});
    if (del_tute == 4) {
        std::copy(kReyes.begin(), kReyes.begin() + 3, primera.begin() + 3);
        primera.insert(primera.end(), {{kCopas, 4}, {kCopas, 5}, {kCopas, 6}, kReyes.back()});
    }
    ApilaBaraja(primera);
    ApilaBaraja({{kOros, 4},
                 {kOros, 5},
                 {kOros, 6},
                 {kBastos, 2},
                 {kCopas, 4},
                 {kCopas, 5},
                 {kOros, 7},
                 {kEspadas, 4},
                 {kEspadas, 5},
                 {kCopas, 6},
                 {kCopas, 7},
                 {kEspadas, 6},
                 {kBastos, 5}});
    Integer pinta = 0;
    EscuchaTraza([&](const std::string& linea) {
        if (estado.JuegosJugados == 2 && estado.NumBaza == 2 && pinta == 0 &&
            linea.starts_with("ResaltarAsiento"))
            pinta = estado.ValorTriunfo;
    });
    ManoTute();
    return pinta;
}

} // namespace

// The Tute makes its seat the winner of the last trick, and so the right of the next hand's first trick is its,
// though the other seat leads.
TEST(ManoDeTute, ElDerechoDeCambioPasaALaManoSiguiente) {
    EXPECT_EQ(PintaTrasLaPrimeraBaza(2), 2);
    EXPECT_EQ(PintaTrasLaPrimeraBaza(4), 5);
}

TEST(ManoDeBrisca, UnaManoReparteCientoVeinteTantos) {
    MesaDeTrick mesa(kBrisca, 4);
    estado.LimitePartida = 1;
    ManoBrisca();
    Currency total;
    for (int asiento = 1; asiento <= 4; ++asiento)
        total += bazas.TantosJugador(asiento);
    EXPECT_EQ(total, Currency{120});
    EXPECT_EQ(estado.NumBaza, 10);
    EXPECT_EQ(estado.Juegos(1).Inicio, "Jugador2");
}

TEST(ManoDeTute, UnaManoReparteCientoTreintaTantosYLosCantes) {
    MesaDeTrick mesa(kTute, 3);
    estado.LimitePartida = 1;
    ManoTute();
    Currency total;
    Currency debido = 130;
    for (int i = 1; i <= 4; ++i) {
        total += bazas.TantosJugador(i);
        if (bazas.PaloCantado(i) != 0)
            debido += i == estado.PaloTriunfo ? 40 : 20;
    }
    ASSERT_FALSE(bazas.TuteCantado);
    EXPECT_EQ(total, debido);
    EXPECT_EQ(estado.NumBaza, 12);
}

TEST(ManoDeBrisca, LosTantosNoPasanDeUnaManoAOtra) {
    MesaDeTrick mesa(kBrisca, 2);
    estado.LimitePartida = 2;
    ManoBrisca();
    EXPECT_EQ(bazas.TantosJugador(2) + bazas.TantosJugador(4), Currency{120});
    EXPECT_EQ(estado.JuegosGanados(estado.GanadorPartida), 2);
    EXPECT_EQ(estado.JuegosGanados(2) + estado.JuegosGanados(4), estado.JuegosJugados);
}

TEST(ManoDeBrisca, LaManoPasaAlAsientoActivoSiguiente) {
    MesaDeTrick mesa(kBrisca, 3);
    estado.LimitePartida = 2;
    ManoBrisca();
    const char* const sale[] = {"", "Jugador2", "Jugador3", "Jugador1", "Jugador2", "Jugador3"};
    for (int mano = 1; mano <= estado.JuegosJugados; ++mano)
        EXPECT_EQ(estado.Juegos(mano).Inicio, sale[mano]);
}

TEST(ManoDeBrisca, UnaPartidaYaGanadaSoloSeCierra) {
    MesaDeTrick mesa(kBrisca, 2);
    estado.LimitePartida = 1;
    estado.JuegosGanados(4) = 1;
    ManoBrisca();
    EXPECT_EQ(estado.JuegosJugados, 0);
    EXPECT_EQ(estado.GanadorPartida, 4);
    EXPECT_FALSE(estado.PartidaEnCurso);
}

TEST(ManoDeBrisca, SiSeDejaEnUnaEsperaElConductorVuelve) {
    MesaDeTrick mesa(kBrisca, 2);
    estado.ControlJugador(4) = kManual;
    mesa.plataforma.siempre_continua = false;
    ManoBrisca();
    EXPECT_EQ(estado.JuegosGanados(2) + estado.JuegosGanados(4), 0);
    EXPECT_TRUE(estado.ManoEnCurso);
    EXPECT_TRUE(mesa.plataforma.mensajes.empty());
}

// A new match: the right to exchange does not outlive the match before.
TEST(ManoDeBrisca, UnaPartidaNuevaEmpiezaSinDerechoDeCambio) {
    MesaDeTrick mesa(kBrisca, 2);
    estado.LimitePartida = 1;
    NuevaPartida();
    ASSERT_NE(estado.GanadorBaza, 0);
    estado.ControlJugador(2) = kManual;
    estado.ControlJugador(4) = kManual;
    mesa.plataforma.siempre_continua = false;
    NuevaPartida();
    EXPECT_EQ(estado.NumBaza, 1);
    EXPECT_EQ(estado.GanadorBaza, 0);
}
