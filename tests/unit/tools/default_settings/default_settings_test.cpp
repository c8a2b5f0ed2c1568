#include "tools/default_settings/default_settings.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

#include "core/game_state.h"
#include "platform/headless/headless_platform.h"
#include "storage/settings.h"
#include "table/game_row.h"
#include "tests/support/live_table.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

// A folder on the disk, and a table that reads it afterwards.
struct AjustesQueVienen : prueba::MesaViva {
    AjustesQueVienen() {
        std::string molde = testing::TempDir() + "zovin_ajustes_XXXXXX";
        carpeta = mkdtemp(molde.data());
    }
    ~AjustesQueVienen() override { std::filesystem::remove_all(carpeta); }

    void Pon() {
        puestos = PonAjustesQueFaltan(carpeta);
        p.UsaCarpeta(carpeta);
        UsaPlataforma(p);
        estado.CarpetaTrabajo = carpeta;
        estado.CarpetaPrograma = carpeta;
        p.mensajes.clear();
    }

    std::string carpeta;
    std::vector<std::string> puestos;
};

} // namespace

TEST_F(AjustesQueVienen, SonElGeneralYUnoPorJuegoYSeLeenSinDecirNada) {
    std::vector<std::string> esperados{"ZOV31.INI"};
    for (const FilaJuego* fila : FilasDeJuegos())
        esperados.push_back(NombreIniJuego(fila->id));
    Pon();
    EXPECT_EQ(puestos, esperados);
    LeerIniGeneral();
    EXPECT_FALSE(estado.FicheroNuevo);
    for (const FilaJuego* fila : FilasDeJuegos()) {
        estado.JuegoActivo = fila->id;
        LeerIniJuego();
        EXPECT_FALSE(estado.FicheroNuevo) << fila->nombre;
    }
    EXPECT_THAT(p.mensajes, IsEmpty());
}

TEST_F(AjustesQueVienen, TraenLosValoresDelPrincipio) {
    Pon();
    estado.JuegoActivo = kBrisca;
    estado.SonidoActivo = true;
    estado.VelocidadJuego = 3;
    LeerIniGeneral();
    EXPECT_EQ(estado.JuegoActivo, kPoker);
    EXPECT_FALSE(estado.SonidoActivo);
    EXPECT_EQ(estado.VelocidadJuego, 50);
    estado.JuegoActivo = kTute;
    LeerIniJuego();
    EXPECT_EQ(estado.NombreJugador(1), "Jugador1");
    EXPECT_EQ(estado.NombreJugador(2), "Jugador2"); // not the bank of the game before
    EXPECT_EQ(estado.LimitePartida, 3);
    EXPECT_EQ(estado.RestoInicial, 200);
    EXPECT_FALSE(estado.PartidaEnCurso);
    estado.JuegoActivo = kBlackJack;
    LeerIniJuego();
    EXPECT_EQ(estado.NombreJugador(2), "Banca");
}

// What a game whose file was lost is given is what came with the program.
TEST_F(AjustesQueVienen, SonLosQueElProgramaHariaSiFaltaran) {
    Pon();
    const std::string ruta = carpeta + "/" + NombreIniJuego(kCinquillo);
    const std::string traido = p.LosArchivos().Lee(ruta).contenido;
    p.LosArchivos().Borra(ruta);
    estado.JuegoActivo = kCinquillo;
    LeerIniJuego();
    EXPECT_EQ(p.mensajes.size(), 1U);
    EXPECT_EQ(p.LosArchivos().Lee(ruta).contenido, traido);
}

TEST_F(AjustesQueVienen, LoQueYaEstaNoSeToca) {
    ArchivosDisco disco;
    const std::string ruta = carpeta + "/" + NombreIniJuego(kCinquillo);
    disco.Escribe(ruta, "una partida a medias");
    Pon();
    EXPECT_EQ(puestos.size(), 6U);
    EXPECT_EQ(disco.Lee(ruta).contenido, "una partida a medias");
    Pon();
    EXPECT_THAT(puestos, IsEmpty());
}

TEST_F(AjustesQueVienen, UnaCarpetaQueNoHaySeDice) {
    EXPECT_THROW(PonAjustesQueFaltan(carpeta + "/ninguna"), std::runtime_error);
}
