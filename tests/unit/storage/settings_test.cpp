// The settings files: both are written and read, and what reading makes of a damaged one.

#include "storage/settings.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "betting/chips.h"
#include "core/text.h"
#include "tests/support/settings_table.h"
#include "tests/support/valid_settings.h"

namespace {

using namespace prueba;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class AjustesGeneralesTest : public AjustesTest {
protected:
    void LeeGeneral(const std::string& contenido) {
        mesa.Archivo("ZOV31.INI") = contenido;
        LeerIniGeneral();
    }
};

// ---- ZOV31.INI

TEST_F(AjustesGeneralesTest, SeEscribeUnaLineaDe125Columnas) {
    estado.JuegoActivo = kPoker;
    estado.SonidoActivo = true;
    estado.VelocidadJuego = 7;
    ASSERT_EQ(GrabarIniGeneral(), ErrorArchivo::Ninguno);
    EXPECT_EQ(mesa.Archivo("ZOV31.INI"), "01-1007" + Blancos(118) + "\r\n");

    estado.SonidoActivo = false;
    ASSERT_EQ(GrabarIniGeneral(), ErrorArchivo::Ninguno);
    EXPECT_EQ(mesa.Archivo("ZOV31.INI"), "010 007" + Blancos(118) + "\r\n");
}

TEST_F(AjustesGeneralesTest, SeLeeLoQueSeEscribio) {
    LeeGeneral("70-1100" + Blancos(118) + "\r\n");
    EXPECT_EQ(estado.JuegoActivo, kCinquillo);
    EXPECT_TRUE(estado.SonidoActivo);
    EXPECT_EQ(estado.VelocidadJuego, 100);
    EXPECT_FALSE(estado.FicheroNuevo);
    EXPECT_THAT(mesa.Mensajes(), IsEmpty());
}

TEST_F(AjustesGeneralesTest, LaLineaPuedeAcabarDeCualquierModo) {
    for (const char* contenido : {"65-1030\r\n", "65-1030\n", "65-1030", "   65-1030\n\n\n"}) {
        mesa.Empieza(kPoker);
        LeeGeneral(contenido);
        EXPECT_EQ(estado.JuegoActivo, kSieteYMedia);
        EXPECT_EQ(estado.VelocidadJuego, 30);
        EXPECT_THAT(mesa.Mensajes(), IsEmpty());
    }
}

TEST_F(AjustesGeneralesTest, SinArchivoSeAvisaYSeHaceUnoConLosValoresDelPrincipio) {
    estado.JuegoActivo = 0;
    LeerIniGeneral();
    ASSERT_THAT(mesa.Mensajes(), SizeIs(1));
    const CajaMensaje& caja = mesa.Mensajes()[0];
    EXPECT_EQ(caja.titulo, "Error en la carga de datos iniciales");
    EXPECT_EQ(caja.texto,
              "No se encuentra el fichero de inicialización ZOV31.INI. Se ha  procedido  "
              "a  crearlo automáticamente  con  los  valores establecidos por defecto.");
    EXPECT_EQ(caja.lineas, 3);
    EXPECT_EQ(caja.modo, 1);
    EXPECT_TRUE(estado.FicheroNuevo);
    EXPECT_EQ(estado.JuegoActivo, kPoker);
    EXPECT_EQ(mesa.Archivo("ZOV31.INI"), "010 050" + Blancos(118) + "\r\n");
    EXPECT_FALSE(mesa.Hay("ZOV31.MAL"));
}

TEST_F(AjustesGeneralesTest, LoQueEstaFueraDeSusLimitesSeArregla) {
    LeeGeneral("02"
               "5 "
               "101");
    EXPECT_EQ(estado.JuegoActivo, kPoker);
    EXPECT_TRUE(estado.SonidoActivo);
    EXPECT_EQ(estado.VelocidadJuego, 50);
    EXPECT_THAT(mesa.Mensajes(), IsEmpty());

    LeeGeneral("51"
               "0 "
               "-01");
    EXPECT_EQ(estado.JuegoActivo, kTute);
    EXPECT_FALSE(estado.SonidoActivo);
    EXPECT_EQ(estado.VelocidadJuego, 50);
}

// One bad field costs no other: the game last played and the sound come back beside a speed that is no number.
TEST_F(AjustesGeneralesTest, DeUnArchivoDanadoSoloSePierdeElCampoMaloYElArchivoSeGuardaAparte) {
    estado.JuegoActivo = kBrisca;
    estado.VelocidadJuego = 80;
    LeeGeneral("70-1xyz\r\n");
    EsperaDanado("ZOV31", "IDC ERROR 13", "70-1xyz\r\n");
    EXPECT_EQ(estado.JuegoActivo, kCinquillo);
    EXPECT_TRUE(estado.SonidoActivo);
    EXPECT_EQ(estado.VelocidadJuego, 80);
    EXPECT_EQ(mesa.Archivo("ZOV31.INI"), "70-1080" + Blancos(118) + "\r\n");
}

TEST_F(AjustesGeneralesTest, DetrasDeUnCampoMaloSeSigueLeyendo) {
    estado.JuegoActivo = kBrisca;
    LeeGeneral("x?-1020\r\n");
    EsperaDanado("ZOV31", "IDC ERROR 13", "x?-1020\r\n");
    EXPECT_EQ(estado.JuegoActivo, kBrisca);
    EXPECT_TRUE(estado.SonidoActivo);
    EXPECT_EQ(estado.VelocidadJuego, 20);
}

TEST_F(AjustesGeneralesTest, UnArchivoVacioNoTieneLinea) {
    LeeGeneral("");
    EsperaDanado("ZOV31", "IDC ERROR 62", "");
}

TEST_F(AjustesGeneralesTest, UnNumeroQueNoCabeNoDiceNadaYElArchivoSeHaceDeNuevo) {
    estado.VelocidadJuego = 80;
    LeeGeneral("70-19E9");
    EXPECT_EQ(estado.JuegoActivo, kCinquillo);
    EXPECT_EQ(estado.VelocidadJuego, 80);
    EXPECT_THAT(mesa.Mensajes(), IsEmpty());
    EXPECT_TRUE(estado.FicheroNuevo);
    EXPECT_EQ(mesa.Archivo("ZOV31.INI"), "70-1080" + Blancos(118) + "\r\n");
    EXPECT_EQ(mesa.Archivo("ZOV31.MAL"), "70-19E9");

    LeerIniGeneral();
    EXPECT_FALSE(estado.FicheroNuevo);
}

TEST_F(AjustesGeneralesTest, SeLeeDeLaCarpetaDeTrabajoYSeEscribeEnLaDelPrograma) {
    estado.CarpetaTrabajo = "temporal";
    LeerIniGeneral();
    EXPECT_TRUE(mesa.Hay("ZOV31.INI"));
    EXPECT_FALSE(mesa.Memoria().contenidos.contains("temporal/ZOV31.INI"));

    mesa.Memoria().contenidos["temporal/ZOV31.INI"] = "31-1020";
    LeerIniGeneral();
    EXPECT_EQ(estado.JuegoActivo, kBlackJack);
}

TEST_F(AjustesGeneralesTest, SiNoSePuedeEscribirSeContestaConElNumero) {
    mesa.Archivo("ZOV31.INI") = "lo de antes";
    mesa.Memoria().de_solo_lectura = {"juego"};
    EXPECT_EQ(GrabarIniGeneral(), ErrorArchivo::SinPermiso);
    EXPECT_EQ(mesa.Archivo("ZOV31.INI"), "lo de antes");
    EXPECT_THAT(mesa.Mensajes(), IsEmpty());
}

TEST_F(AjustesGeneralesTest, SinPoderEscribirElAvisoSigueSiendoUno) {
    mesa.Memoria().de_solo_lectura = {"juego"};
    LeerIniGeneral();
    EXPECT_THAT(mesa.Mensajes(), SizeIs(1));
    EXPECT_FALSE(mesa.Hay("ZOV31.INI"));
}

// A folder in the place of the file, on a real disk.
TEST_F(AjustesGeneralesTest, LoQueNoSePuedeAbrirDiceSuNumeroYSeAparta) {
    namespace fs = std::filesystem;
    std::string carpeta = (fs::temp_directory_path() / "ajustes.XXXXXX").string();
    ASSERT_NE(mkdtemp(carpeta.data()), nullptr);
    mesa.LaPlataforma().UsaCarpeta(carpeta);
    estado.CarpetaTrabajo = estado.CarpetaPrograma = carpeta;
    fs::create_directory(carpeta + "/ZOV31.INI");
    LeerIniGeneral();
    ASSERT_THAT(mesa.Mensajes(), SizeIs(1));
    EXPECT_EQ(mesa.Mensajes()[0].texto, "IDC ERROR 75");
    EXPECT_TRUE(fs::is_directory(carpeta + "/ZOV31.MAL"));
    EXPECT_EQ(fs::file_size(carpeta + "/ZOV31.INI"), 127U);
    fs::remove_all(carpeta);
}

// ---- The file of a game: reading

TEST_F(AjustesTest, SinElArchivoDeTuteSeAvisaConSuNombreYSeHaceConLosValoresPorDefecto) {
    estado.LimitePartida = 77;
    estado.NombreJugador(2) = "Otro";
    estado.PartidaEnCurso = true;
    estado.JuegosJugados = 4;
    estado.Juegos(3).Inicio = "Otro";
    AsignarResto(1, 100);
    LeerIniJuego();
    ASSERT_THAT(mesa.Mensajes(), SizeIs(1));
    EXPECT_EQ(mesa.Mensajes()[0].titulo, "Error en la carga de datos iniciales");
    EXPECT_EQ(
        mesa.Mensajes()[0].texto,
        "No se encuentra el fichero de inicialización ZOV5131.INI. Se ha  procedido  a  crearlo "
        "automáticamente  con  los  valores establecidos por defecto.");
    EXPECT_TRUE(estado.FicheroNuevo);
    for (int asiento = 1; asiento <= 4; ++asiento)
        EXPECT_EQ(estado.NombreJugador(asiento), "Jugador" + Numero(asiento));
    EXPECT_EQ(estado.RestoInicial, 200);
    EXPECT_EQ(estado.LimitePartida, 3);
    EXPECT_FALSE(estado.PartidaEnCurso);
    EXPECT_EQ(estado.JuegosJugados, 0);
    EXPECT_EQ(estado.Juegos(3).Inicio, "");
    EXPECT_EQ(RestoDe(1), 0);
    EXPECT_FALSE(mesa.Hay("ZOV5131.MAL"));

    const auto lineas = Lineas(mesa.Archivo("ZOV5131.INI"));
    EXPECT_THAT(lineas, ElementsAre("Jugador1 0501112"
                                    "Jugador2 0501113"
                                    "Jugador3 0501111"
                                    "Jugador4 1001222"
                                    "-10101111411" +
                                        Blancos(13) + "0 0    000 4 4 0 010200005025003    ",
                                    std::string(60, '0'), std::string(28, '0')));
}

TEST_F(AjustesTest, UnArchivoSanoSeLeeEntero) {
    LeeTute(ArchivoDeTute());
    EXPECT_THAT(mesa.Mensajes(), IsEmpty());
    EXPECT_FALSE(estado.FicheroNuevo);
    EXPECT_EQ(estado.NombreJugador(2), "Luis");
    EXPECT_EQ(estado.NivelJugador(3), 75);
    EXPECT_EQ(estado.CaracterJugador(2), kAgresivo);
    EXPECT_EQ(estado.ControlJugador(4), kManual);
    EXPECT_TRUE(estado.PausaEntreJugadas);
    EXPECT_TRUE(estado.PartidaEnCurso);
    EXPECT_EQ(estado.JuegosJugados, 2);
    EXPECT_TRUE(sesion.mano_apuntada);
    EXPECT_EQ(estado.JugadorMano, 3);
    EXPECT_EQ(estado.JuegosGanados(1), 1);
    EXPECT_EQ(estado.JuegosGanados(3), 1);
    const RegistroJuego& segundo = estado.Juegos(2);
    EXPECT_EQ(segundo.Inicio, "Luis");
    EXPECT_EQ(segundo.Total, 120);
    EXPECT_EQ(segundo.Marcas(1, 1), 1);
    EXPECT_EQ(segundo.Texto1(1), "62");
    EXPECT_EQ(segundo.Texto2(1), "Tute de reyes");
    EXPECT_EQ(segundo.Cifra(1), 2);
}

TEST_F(AjustesTest, LasLineasPuedenAcabarSoloEnLfYSinBlancosAlFinal) {
    std::string texto;
    for (const std::string& linea : Lineas(ArchivoDeTute()))
        texto += "  " + linea.substr(0, linea.find_last_not_of(' ') + 1) + "\n";
    texto.pop_back();
    LeeTute(texto);
    EXPECT_THAT(mesa.Mensajes(), IsEmpty());
    EXPECT_EQ(estado.JuegosJugados, 2);
    EXPECT_EQ(estado.Juegos(2).Texto2(1), "Tute de reyes");
}

TEST_F(AjustesTest, LosNombresVuelvenConMayusculaEnCadaPalabra) {
    LeeTuteCon(1, "aNA mARI ");
    EXPECT_EQ(estado.NombreJugador(1), "Ana Mari");
    LeeTuteCon(1, "\xD1O\xD1O     ");
    EXPECT_EQ(estado.NombreJugador(1), "Ñoño");
}

TEST_F(AjustesTest, UnaComaEnUnNombreAcabaLaLinea) {
    LeeTuteCon(1, "Ana, Mari");
    EXPECT_EQ(estado.NombreJugador(1), "Ana");
    EXPECT_EQ(estado.NivelJugador(1), 0);
    EXPECT_EQ(estado.NombreJugador(2), "");
    EXPECT_FALSE(estado.PartidaEnCurso);
    EXPECT_EQ(estado.RestoInicial, 200);
    EXPECT_THAT(mesa.Mensajes(), IsEmpty());
}

TEST_F(AjustesTest, UnAsientoSinNombreNoDescolocaLaLinea) {
    LeeTute(ArchivoDeTute());
    estado.NombreJugador(1) = "";
    estado.Juegos(1).Inicio = "";
    const auto grabado = JuegoGrabado();
    EXPECT_EQ(Columnas(grabado[0], 1, 16), Blancos(9) + "0501112");
    EXPECT_EQ(Columnas(grabado[3], 1, 14), Blancos(9) + "    0");
    LeerIniJuego();
    EXPECT_THAT(mesa.Mensajes(), IsEmpty());
    EXPECT_EQ(estado.NombreJugador(1), "");
    EXPECT_EQ(estado.NombreJugador(2), "Luis");
    EXPECT_EQ(estado.Juegos(1).Inicio, "");
    EXPECT_EQ(estado.Juegos(1).Texto1(1), "62");
}

TEST_F(AjustesTest, SinPartidaEnCursoNoHayJuegosNiSeLeeNingunRegistro) {
    LeeTuteCon(90, "0 ");
    EXPECT_FALSE(estado.PartidaEnCurso);
    EXPECT_EQ(estado.JuegosJugados, 0);
    EXPECT_EQ(estado.Juegos(1).Inicio, "");
    EXPECT_FALSE(sesion.mano_apuntada);
    EXPECT_THAT(mesa.Mensajes(), IsEmpty());

    const std::string tres_lineas = ArchivoDeTute().replace(89, 2, "0 ").substr(0, 127 + 62 + 30);
    LeeTute(tres_lineas);
    EXPECT_THAT(mesa.Mensajes(), IsEmpty());
}

TEST_F(AjustesTest, UnaManoEnCursoSeLeeComoNoEmpezada) {
    LeeTuteCon(92, "-1");
    EXPECT_FALSE(estado.ManoEnCurso);
    EXPECT_TRUE(estado.PartidaEnCurso);
}

// ---- The file of a game: damage

TEST_F(AjustesTest, UnNumeroQueNoLoEsHaceNuevoElArchivoYGuardaElDanado) {
    const std::string danado = ArchivoDeTute().replace(9, 3, "5x0");
    LeeTute(danado);
    EsperaDanado("ZOV5131", "IDCS ERROR 13", danado);
    EXPECT_EQ(mesa.Mensajes()[0].lineas, 1);
    EXPECT_EQ(estado.NombreJugador(1), "Jugador1");
    EXPECT_FALSE(estado.PartidaEnCurso);
    EXPECT_EQ(estado.JuegosJugados, 0);

    LeerIniJuego();
    EXPECT_THAT(mesa.Mensajes(), SizeIs(1)) << "el archivo nuevo se lee sin aviso";
    EXPECT_FALSE(estado.FicheroNuevo);
}

TEST_F(AjustesTest, UnErrorEnElUltimoRegistroTampocoDejaNadaDelArchivo) {
    const std::string danado = ArchivoDeTute().replace(127 + 62 + 30 + 172 + 9, 5, "  1x0");
    LeeTute(danado);
    EsperaDanado("ZOV5131", "IDCS ERROR 13", danado);
    EXPECT_EQ(estado.NombreJugador(2), "Jugador2");
    EXPECT_EQ(estado.Juegos(1).Inicio, "");
    EXPECT_EQ(estado.JuegosGanados(1), 0);
}

TEST_F(AjustesTest, LasLineasQueFaltanSonUnArchivoDanado) {
    const std::string entero = ArchivoDeTute();
    for (int quedan = 0; quedan < 5; ++quedan) {
        std::string corto;
        for (int i = 0; i < quedan; ++i)
            corto += Lineas(entero)[static_cast<std::size_t>(i)] + "\r\n";
        mesa.Memoria().contenidos.clear();
        LeeTute(corto);
        EsperaDanado("ZOV5131", "IDCS ERROR 62", corto);
        EXPECT_FALSE(estado.PartidaEnCurso);
    }
}

TEST_F(AjustesTest, LoQueSobraDetrasDeLosRegistrosNoSeMira) {
    LeeTute(ArchivoDeTute() + std::string(10000, 'x') + "\r\n\r\n");
    EXPECT_THAT(mesa.Mensajes(), IsEmpty());
    EXPECT_EQ(estado.JuegosJugados, 2);
}

TEST_F(AjustesTest, UnTotalQueNoCabeQuedaEnCero) {
    LeeTute(ArchivoDeTute().replace(127 + 62 + 30 + 9, 5, "99999"));
    EXPECT_THAT(mesa.Mensajes(), IsEmpty());
    EXPECT_EQ(estado.Juegos(1).Total, 0);
    EXPECT_EQ(estado.Juegos(1).Inicio, "Ana");
    EXPECT_EQ(estado.JuegosJugados, 2);
    EXPECT_TRUE(estado.FicheroNuevo);
    EXPECT_EQ(mesa.Archivo("ZOV5131.INI"), ArchivoDeTute());
}

TEST_F(AjustesTest, UnaSolaLineaDeMuchosMegasNoSeTraga) {
    LeeTute(std::string(std::size_t{8} << 20, ' ') + ArchivoDeTute());
    EXPECT_THAT(mesa.Mensajes(), IsEmpty());
    EXPECT_EQ(estado.NombreJugador(1), "Ana");
    LeeTute(std::string(std::size_t{8} << 20, '\xFF'));
    EXPECT_THAT(mesa.Mensajes(), SizeIs(1));
    EXPECT_EQ(prueba::FalloDeAjustesDeJuego(), "");
}

// ---- Both ways

TEST_F(AjustesTest, CadaJuegoRecuerdaSuPartida) {
    LeeTute(ArchivoDeTute());
    estado.JuegoActivo = kBrisca;
    LeerIniJuego();
    estado.NombreJugador(1) = "Otra";
    ASSERT_EQ(GrabarIniJuego(), ErrorArchivo::Ninguno);
    estado.JuegoActivo = kTute;
    LeerIniJuego();
    EXPECT_EQ(estado.NombreJugador(1), "Ana");
    EXPECT_EQ(estado.JuegosJugados, 2);
    EXPECT_EQ(mesa.Archivo("ZOV5131.INI"), ArchivoDeTute());
}

TEST_F(AjustesTest, LoLeidoSeVuelveAEscribirByteAByte) {
    LeeTute(ArchivoDeTute());
    ASSERT_EQ(GrabarIniJuego(), ErrorArchivo::Ninguno);
    EXPECT_EQ(mesa.Archivo("ZOV5131.INI"), ArchivoDeTute());
}

} // namespace
