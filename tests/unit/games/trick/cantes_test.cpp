#include "games/common/trick_state.h"
#include "games/trick/cantes.h"

#include <gtest/gtest.h>

#include "table/trace.h"
#include "tests/support/trick_table.h"

using namespace prueba;

namespace {

const std::vector<Carta> kCuatroReyes = {
    {kOros, kRey}, {kCopas, kRey}, {kEspadas, kRey}, {kBastos, kRey}};
const std::vector<Carta> kCuatroCaballos = {
    {kOros, kCaballo}, {kCopas, kCaballo}, {kEspadas, kCaballo}, {kBastos, kCaballo}};

// Four seats; seat 2 has won the third trick with 11 tantos.
struct Cantes : testing::Test {
    Cantes() {
        Pinta({kBastos, 4});
        estado.GanadorBaza = 2;
        estado.NumBaza = 3;
        bazas.GanadorDeBaza(3) = 2;
        bazas.TantosDeBaza(3) = 11;
        bazas.TantosJugador(2) = 11;
    }
    MesaDeTrick mesa{kTute, 4};
};

std::vector<std::string> PausaYTresParpadeos() {
    std::vector<std::string> pasos{"Pausa(500)"};
    for (int vez = 0; vez < 3; ++vez)
        pasos.insert(pasos.end(), {"Pausa(180)", "Sonido(1, 26)", "Pausa(420)"});
    return pasos;
}

} // namespace

TEST_F(Cantes, VeinteEnPaloYCuarentaEnTriunfo) {
    PonMano(2, {{kOros, kCaballo}, {kCopas, 4}, {kOros, kRey}});
    CantaTrasBaza();
    EXPECT_EQ(bazas.TantosBaza, Currency{20});
    EXPECT_EQ(bazas.TantosJugador(2), Currency{31});
    EXPECT_EQ(bazas.TantosDeBaza(3), Currency{31});
    EXPECT_EQ(bazas.PaloCantado(kOros), 2);
    EXPECT_EQ(bazas.RegistroBazas(2 + 20, 3), kOros);
    EXPECT_EQ(bazas.JugadorCante, 2);
    PonMano(2, {{kBastos, kCaballo}, {kBastos, kRey}});
    CantaTrasBaza();
    EXPECT_EQ(bazas.TantosJugador(2), Currency{71});
}

TEST_F(Cantes, SeCantaElPaloConMenosCartas) {
    PonMano(2, {{kOros, kCaballo}, {kOros, kRey}, {kOros, 4}, {kCopas, kCaballo}, {kCopas, kRey}});
    CantaTrasBaza();
    EXPECT_EQ(bazas.PaloCantado(kCopas), 2);
    EXPECT_EQ(bazas.PaloCantado(kOros), 0);
}

TEST_F(Cantes, AIgualdadElPrimerPaloSalvoElTriunfo) {
    PonMano(2, {{kOros, kCaballo}, {kOros, kRey}, {kCopas, kCaballo}, {kCopas, kRey}});
    CantaTrasBaza();
    EXPECT_EQ(bazas.PaloCantado(kOros), 2);
    PonMano(2, {{kCopas, kCaballo},
                {kCopas, kRey},
                {kEspadas, kCaballo},
                {kEspadas, kRey},
                {kBastos, kCaballo},
                {kBastos, kRey}});
    CantaTrasBaza();
    EXPECT_EQ(bazas.PaloCantado(kBastos), 2);
    EXPECT_EQ(bazas.PaloCantado(kCopas), 0);
}

TEST_F(Cantes, UnTriunfoConMasCartasEspera) {
    PonMano(2,
            {{kOros, kCaballo}, {kOros, kRey}, {kBastos, kCaballo}, {kBastos, kRey}, {kBastos, 5}});
    CantaTrasBaza();
    EXPECT_EQ(bazas.PaloCantado(kOros), 2);
    EXPECT_EQ(bazas.PaloCantado(kBastos), 0);
}

TEST_F(Cantes, UnSoloCantePorBaza) {
    PonMano(2, {{kOros, kCaballo}, {kOros, kRey}, {kCopas, kCaballo}, {kCopas, kRey}});
    CantaTrasBaza();
    EXPECT_EQ(bazas.TantosJugador(2), Currency{31});
}

TEST_F(Cantes, UnPaloYaCantadoNoSeVuelveACantar) {
    PonMano(2, {{kOros, kCaballo}, {kOros, kRey}});
    bazas.PaloCantado(kOros) = 3;
    CantaTrasBaza();
    EXPECT_EQ(bazas.TantosJugador(2), Currency{11});
    EXPECT_EQ(bazas.PaloCantado(kOros), 3);
}

TEST_F(Cantes, QuienGanaLaUltimaBazaYaNoTieneQueCantar) {
    PonMano(2, {});
    PonMano(3, {{kOros, kCaballo}, {kOros, kRey}});
    CantaTrasBaza();
    EXPECT_EQ(bazas.TantosJugador(2), Currency{11});
    EXPECT_EQ(bazas.TantosJugador(3), Currency{0});
}

TEST_F(Cantes, ConTuteNoSeCantaOtraCosa) {
    std::vector<Carta> mano = kCuatroReyes;
    mano.push_back({kOros, kCaballo});
    PonMano(2, mano);
    CantaTrasBaza();
    EXPECT_TRUE(bazas.TuteCantado);
    EXPECT_EQ(bazas.TuteEnMano, kRey);
    EXPECT_EQ(bazas.JugadorCante, 2);
    EXPECT_EQ(bazas.TantosJugador(2), Currency{11});
    EXPECT_EQ(bazas.PaloCantado(kOros), 0);
}

TEST_F(Cantes, LasCartasSeEnsenanTresVecesYVuelvenASuCara) {
    PonMano(2, {{kCopas, 4}, {kOros, kCaballo}, {kOros, kRey}});
    mesa.Escucha({"Sonido", "Pausa"});
    CantaTrasBaza();
    EXPECT_EQ(mesa.traza, PausaYTresParpadeos());
    for (int lugar = 1; lugar <= 3; ++lugar) {
        EXPECT_EQ(estado.Mano(2, 1, lugar, kCara), kDorso);
        EXPECT_EQ(estado.Mano(2, 1, lugar, kAltura), kEnLinea);
    }
}

TEST_F(Cantes, LasCuatroDelTuteSeEnsenanTresVeces) {
    PonMano(2, {{kOros, kRey}, {kCopas, 4}, {kCopas, kRey}, {kEspadas, kRey}, {kBastos, kRey}});
    std::vector<std::string> pasos;
    std::string descubiertas;
    EscuchaTraza([&](const std::string& linea) {
        if (!linea.starts_with("RedibujarAsiento"))
            pasos.push_back(linea);
        for (int lugar = 1; linea == "Sonido(1, 26)" && lugar <= 5; ++lugar)
            descubiertas += estado.Mano(2, 1, lugar, kCara) == kDescubierta ? 'D' : 'd';
    });
    CantaTrasBaza();
    EXPECT_EQ(pasos, PausaYTresParpadeos());
    EXPECT_EQ(descubiertas, "DdDDDDdDDDDdDDD");
    EXPECT_TRUE(bazas.TuteCantado);
}

TEST_F(Cantes, EnParejasCantaTambienElCompanero) {
    PonMano(2, {{kOros, kCaballo}, {kOros, kRey}});
    PonMano(4, {{kCopas, kCaballo}, {kCopas, kRey}});
    PonMano(3, {{kEspadas, kCaballo}, {kEspadas, kRey}});
    CantaTrasBaza();
    EXPECT_EQ(bazas.PaloCantado(kCopas), 0); // each for itself
    estado.ModalidadJuego = kDosParejas;
    CantaTrasBaza();
    EXPECT_EQ(bazas.PaloCantado(kCopas), 4);
    EXPECT_EQ(bazas.PaloCantado(kEspadas), 0);
    EXPECT_EQ(bazas.TantosJugador(4), Currency{20});
    EXPECT_EQ(bazas.RegistroBazas(4 + 20, 3), kCopas);
    EXPECT_EQ(bazas.JugadorCante, 4);
}

TEST_F(Cantes, EnParejasElTuteDelCompaneroTambienAcaba) {
    estado.ModalidadJuego = kDosParejas;
    PonMano(4, kCuatroCaballos);
    CantaTrasBaza();
    EXPECT_TRUE(bazas.TuteCantado);
    EXPECT_EQ(bazas.JugadorCante, 4);
    EXPECT_EQ(bazas.TuteEnMano, kCaballo);
}

TEST_F(Cantes, EnParejasTrasElTuteDelGanadorNoCantaElCompanero) {
    estado.ModalidadJuego = kDosParejas;
    PonMano(2, kCuatroReyes);
    PonMano(4, {{kCopas, kCaballo}, {kCopas, 4}});
    CantaTrasBaza();
    EXPECT_TRUE(bazas.TuteCantado);
    EXPECT_EQ(bazas.JugadorCante, 2);
}

TEST_F(Cantes, AlRepartirLosReyesVanAntesQueLosCaballos) {
    EXPECT_EQ(AsientoConTute(), 0);
    PonMano(1, kCuatroCaballos);
    EXPECT_EQ(AsientoConTute(), 1);
    PonMano(4, kCuatroReyes);
    EXPECT_EQ(AsientoConTute(), 4);
}
