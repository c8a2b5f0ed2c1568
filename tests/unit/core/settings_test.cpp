// The settings files: what is written, byte by byte, and what reading makes of any file.

#include "core/settings.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "betting/chips.h"
#include "core/between_hands.h"
#include "core/text.h"
#include "tests/support/settings_files.h"
#include "tests/support/valid_settings.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

constexpr int kBote = 0;

std::string Blancos(int n) {
    return std::string(static_cast<std::size_t>(n), ' ');
}

// Columns desde.. of a line, from 1.
std::string Columnas(const std::string& linea, int desde, int ancho) {
    return linea.substr(static_cast<std::size_t>(desde - 1), static_cast<std::size_t>(ancho));
}

std::vector<std::string> Lineas(const std::string& texto) {
    std::vector<std::string> lineas;
    std::size_t desde = 0;
    for (std::size_t fin = 0; (fin = texto.find("\r\n", desde)) != std::string::npos;
         desde = fin + 2)
        lineas.push_back(texto.substr(desde, fin - desde));
    EXPECT_EQ(desde, texto.size()) << "la última línea no acaba en CR LF";
    return lineas;
}

// The lines of a file that a Tute player might have: four seats, the match in its third game.
constexpr const char* kAsientos = "Ana      0501112"
                                  "Luis     0301113"
                                  "Eva      0751111"
                                  "Juan     1001222";
std::string AjustesDeTute() {
    return std::string(kAsientos) + "-1" + "01" + "01" + "1" + "1" + "1" + "4" + "1" + "1" +
           Blancos(13) + "-1" + "0 " + Blancos(3) + "002" + " " + "3" + " " + "4" + " 0 " + "01" +
           "0200" + "005" + "025" + "003" + Blancos(4);
}
std::string SinFichas() {
    return std::string(60, '0');
}
std::string ConJuegosGanados() {
    return "0000001"
           "0000000"
           "0000001"
           "0000000";
}
std::string RegistroDe(const std::string& inicio, const std::string& total) {
    const std::string vacio = "0000" + Blancos(17) + Blancos(15) + "0";
    return inicio + Blancos(9 - static_cast<int>(inicio.size())) + total + "1000" + "62" +
           Blancos(15) + "Tute de reyes  " + "2" + vacio + vacio + vacio + Blancos(8);
}
std::string ArchivoDeTute() {
    return AjustesDeTute() + "\r\n" + SinFichas() + "\r\n" + ConJuegosGanados() + "\r\n" +
           RegistroDe("Ana", "    0") + "\r\n" + RegistroDe("Luis", "  120") + "\r\n";
}

class AjustesTest : public testing::Test {
protected:
    void SetUp() override { mesa.Empieza(kTute); }

    std::vector<std::string> JuegoGrabado() {
        EXPECT_EQ(GrabarIniJuego(), ErrorArchivo::Ninguno);
        return Lineas(mesa.Archivo(NombreIniJuego(estado.JuegoActivo)));
    }

    void LeeTute(const std::string& contenido) {
        mesa.Empieza(kTute);
        mesa.Archivo("ZOV5131.INI") = contenido;
        LeerIniJuego();
    }

    // One field of the first line of a sound file with other bytes.
    void LeeTuteCon(int columna, const std::string& bytes) {
        LeeTute(
            ArchivoDeTute().replace(static_cast<std::size_t>(columna - 1), bytes.size(), bytes));
    }

    void EsperaDanado(const std::string& nombre, const std::string& aviso,
                      const std::string& contenido) {
        ASSERT_THAT(mesa.Mensajes(), SizeIs(1));
        EXPECT_EQ(mesa.Mensajes()[0].texto, aviso);
        EXPECT_TRUE(estado.FicheroNuevo);
        EXPECT_EQ(mesa.Archivo(nombre + ".MAL"), contenido);
        EXPECT_NE(mesa.Archivo(nombre + ".INI"), contenido);
    }

    prueba::SesionConArchivos mesa;
};

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

TEST_F(AjustesGeneralesTest, UnArchivoDanadoDejaLosValoresComoEstabanYSeGuardaAparte) {
    estado.JuegoActivo = kBrisca;
    estado.VelocidadJuego = 80;
    LeeGeneral("70-1xyz\r\n");
    EsperaDanado("ZOV31", "IDC ERROR 13", "70-1xyz\r\n");
    EXPECT_EQ(estado.JuegoActivo, kBrisca);
    EXPECT_FALSE(estado.SonidoActivo);
    EXPECT_EQ(estado.VelocidadJuego, 80);
    EXPECT_EQ(mesa.Archivo("ZOV31.INI"), "580 080" + Blancos(118) + "\r\n");
}

TEST_F(AjustesGeneralesTest, UnArchivoVacioNoTieneLinea) {
    LeeGeneral("");
    EsperaDanado("ZOV31", "IDC ERROR 62", "");
}

TEST_F(AjustesGeneralesTest, UnNumeroQueNoCabeNoDiceNada) {
    estado.VelocidadJuego = 80;
    LeeGeneral("70-19E9");
    EXPECT_EQ(estado.JuegoActivo, kCinquillo);
    EXPECT_EQ(estado.VelocidadJuego, 80);
    EXPECT_THAT(mesa.Mensajes(), IsEmpty());
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

// ---- The file of a game: writing

TEST_F(AjustesTest, ElNombreLlevaElJuegoEnDosCifras) {
    EXPECT_EQ(NombreIniJuego(kPoker), "ZOV0131.INI");
    EXPECT_EQ(NombreIniJuego(kBlackJack), "ZOV3131.INI");
    EXPECT_EQ(NombreIniJuego(kCinquillo), "ZOV7031.INI");
}

// Every line by hand, column by column.
TEST_F(AjustesTest, UnaPartidaDePokerSeEscribeEnSusColumnas) {
    mesa.Empieza(kPoker);
    const char* const nombres[]{"", "Ana", "Íñigo", "Mª José", "Jugador4"};
    for (int asiento = 1; asiento <= 4; ++asiento)
        estado.NombreJugador(asiento) = nombres[asiento];
    estado.NivelJugador(2) = 7;
    estado.EstadoJugador(3) = kDesactivado;
    estado.NumJugadores = 3;
    estado.PausaEntreJugadas = false;
    estado.LeyApertura = 14;
    estado.SentidoJuego = kInverso;
    estado.PasoSentido = -1;
    estado.SistemaReparto = 2;
    estado.ComodinesJuego = 3;
    estado.CartasBaraja = 6;
    estado.VentanaInfo = 2;
    estado.PartidaEnCurso = true;
    estado.JuegosJugados = 1;
    sesion.mano_apuntada = true;
    estado.JugadorMano = 2;
    estado.JugadorBanca = 4;
    estado.RestoInicial = 995;
    estado.ApuestaSalida = 12;
    estado.ApuestaMaxima = 100;
    estado.LimitePartida = 30;
    AsignarResto(kBote, 5);
    AsignarResto(1, 100);
    AsignarResto(4, 88);
    estado.Apuesta(1, 1, 2) = 45;
    estado.Apuesta(4, 1, 2) = 5;
    estado.JuegosGanados(4) = 1;
    RegistroJuego& registro = estado.Juegos(1);
    registro.Inicio = "Íñigo";
    registro.Total = 240;
    registro.Marcas(1, 1) = 2;
    registro.Marcas(4, 1) = 1;
    registro.Texto1(1) = "Pareja de Ases";
    registro.Texto1(3) = "----";
    registro.Texto1(4) = "Póker de Caballos"; // as wide as its columns
    registro.Texto2(1) = "A A K 10 9";
    registro.Texto2(4) = "J J J J #";
    registro.Cifra(4) = 3;

    EXPECT_THAT(
        JuegoGrabado(),
        ElementsAre("Ana      0501112"
                    "\xCD\xF1igo    0071113"
                    "M\xAA Jos\xE9  0502111"
                    "Jugador4 1001222" // columns 49 to 64
                    "0 01142233"      // to 74: pause, mode, opening law, sense, deal, jokers, seats
                    "62             " // to 89: cards, tips, blanks
                    "-10    001 2 4 0 -0" // to 108: match, hand, games, leader, bank, 0, step
                    "0995012100030    ",
                    "010200000000" // the pot: 5 = 1 + 2 x 2
                    "010201020101" // 100
                    "000000000000"
                    "000000000000"
                    "010101010101", // 88
                    "0045000"
                    "0000000"
                    "0000000"
                    "0005001",
                    "\xCD\xF1igo      240"
                    "2000Pareja de Ases   A A K 10 9     0"
                    "0000                                0"
                    "0000----                            0"
                    "1000P\xF3ker de CaballosJ J J J #      3"
                    "        "));
}

TEST_F(AjustesTest, CadaLineaTieneSuAncho) {
    estado.PartidaEnCurso = true;
    estado.JuegosJugados = 2;
    sesion.mano_apuntada = true;
    const auto lineas = JuegoGrabado();
    ASSERT_THAT(lineas, SizeIs(5));
    EXPECT_THAT(lineas[0], SizeIs(125));
    EXPECT_THAT(lineas[1], SizeIs(60));
    EXPECT_THAT(lineas[2], SizeIs(28));
    EXPECT_THAT(lineas[3], SizeIs(170));
    EXPECT_THAT(lineas[4], SizeIs(170));
}

TEST_F(AjustesTest, AlSalirEnElSeptimoJuegoHaySeisRegistrosYSeEscribe006) {
    estado.PartidaEnCurso = estado.ManoEnCurso = true;
    estado.JuegosJugados = 7;
    estado.JugadorMano = 3;
    for (int juego = 1; juego <= 7; ++juego)
        estado.Juegos(juego).Inicio = "Juego" + Numero(juego);
    const auto lineas = JuegoGrabado();
    ASSERT_THAT(lineas, SizeIs(3 + 6));
    EXPECT_EQ(Columnas(lineas[0], 97, 3), "006");
    EXPECT_EQ(Columnas(lineas[0], 101, 1), "2"); // one seat back
    EXPECT_EQ(Columnas(lineas[0], 92, 2), "-1");
    EXPECT_THAT(lineas[3], StartsWith("Juego1"));
    EXPECT_THAT(lineas[8], StartsWith("Juego6"));
}

TEST_F(AjustesTest, UnaManoApuntadaNoSePierdeAunqueNoHayaEmpezadoLaSiguiente) {
    estado.PartidaEnCurso = true;
    estado.JuegosJugados = 7;
    estado.JugadorMano = 3;
    sesion.mano_apuntada = true;
    estado.Juegos(7).Inicio = "Eva";
    const auto lineas = JuegoGrabado();
    ASSERT_THAT(lineas, SizeIs(3 + 7));
    EXPECT_EQ(Columnas(lineas[0], 97, 3), "007");
    EXPECT_EQ(Columnas(lineas[0], 101, 1), "3");
    EXPECT_THAT(lineas[9], StartsWith("Eva"));
}

TEST_F(AjustesTest, EnElPrimerJuegoLaManoNoRetrocede) {
    estado.PartidaEnCurso = true;
    estado.JuegosJugados = 1;
    estado.JugadorMano = 3;
    const auto lineas = JuegoGrabado();
    EXPECT_THAT(lineas, SizeIs(3));
    EXPECT_EQ(Columnas(lineas[0], 97, 3), "000");
    EXPECT_EQ(Columnas(lineas[0], 101, 1), "3");
}

TEST_F(AjustesTest, SinNingunJuegoSeEscribe000) {
    estado.PartidaEnCurso = true;
    estado.JugadorMano = 1;
    const auto lineas = JuegoGrabado();
    EXPECT_THAT(lineas, SizeIs(3));
    EXPECT_EQ(Columnas(lineas[0], 97, 3), "000");
    EXPECT_EQ(Columnas(lineas[0], 101, 1), "1");
}

// One back and then forward over the seats that do not play comes to the same seat, both ways round.
TEST_F(AjustesTest, LaManoGuardadaLlevaOtraVezAlMismoAsiento) {
    for (Integer sentido : {kDirecto, kInverso}) {
        for (Integer mano = 1; mano <= 4; ++mano) {
            for (int inactivo = 1; inactivo <= 4; ++inactivo) {
                if (inactivo == mano)
                    continue;
                mesa.Empieza(kTute);
                estado.PartidaEnCurso = true;
                estado.SentidoJuego = sentido;
                estado.PasoSentido = sentido == kDirecto ? 1 : -1;
                estado.EstadoJugador(inactivo) = kDesactivado;
                estado.JuegosJugados = 2;
                estado.JugadorMano = mano;
                ASSERT_EQ(GrabarIniJuego(), ErrorArchivo::Ninguno);
                LeerIniJuego();
                do
                    SiguienteAsiento(estado.JugadorMano);
                while (estado.EstadoJugador(estado.JugadorMano) != kActivado);
                EXPECT_EQ(estado.JugadorMano, mano) << "sentido " << sentido;
            }
        }
    }
}

TEST_F(AjustesTest, DeUnaManoAMediasSeGuardaElDineroDelPrincipio) {
    mesa.Empieza(kPoker);
    estado.PartidaEnCurso = estado.ManoEnCurso = true;
    estado.JuegosJugados = 3;
    estado.JugadorMano = 1;
    for (int asiento = 1; asiento <= 4; ++asiento)
        AsignarResto(asiento, 200);
    AsignarResto(kBote, 20);
    for (int asiento = 1; asiento <= 4; ++asiento)
        estado.Apuesta(asiento, 1, 2) = 5;
    AnotaDineroPrevio();
    AsignarResto(1, 150); // bets of the hand in play
    AsignarResto(kBote, 70);
    estado.Apuesta(1, 1, 2) = 10;
    estado.Apuesta(1, 1, 3) = 45;
    const EstadoJuego antes = estado;
    const auto lineas = JuegoGrabado();
    EXPECT_TRUE(estado == antes);

    EXPECT_EQ(Columnas(lineas[1], 1, 12), "010201010000");  // 20
    EXPECT_EQ(Columnas(lineas[1], 13, 12), "010201020103"); // 200
    EXPECT_EQ(lineas[2], "0005000"
                         "0005000"
                         "0005000"
                         "0005000");
    LeerIniJuego();
    EXPECT_EQ(RestoDe(kBote), 20);
    EXPECT_EQ(RestoDe(1), 200);
    EXPECT_EQ(estado.Apuesta(1, 1, 2), 5);
    EXPECT_EQ(estado.Apuesta(1, 1, 3), 0);
}

// A game without money has none when the hand begins.
TEST_F(AjustesTest, SinDineroAlEmpezarLaManoSeGuardaElQueHay) {
    estado.PartidaEnCurso = true;
    estado.JuegosJugados = 2;
    estado.JugadorMano = 1;
    AsignarResto(3, 5);
    estado.Apuesta(3, 1, 2) = 7;
    const auto lineas = JuegoGrabado();
    EXPECT_EQ(Columnas(lineas[1], 37, 12), "010200000000");
    EXPECT_EQ(Columnas(lineas[2], 15, 7), "0007000");
}

TEST_F(AjustesTest, UnaManoDePokerSinApuestasAcabadaGuardaElBoteConSusApuestas) {
    mesa.Empieza(kPoker);
    estado.PartidaEnCurso = true;
    estado.JuegosJugados = 1;
    for (int asiento = 1; asiento <= 4; ++asiento)
        AsignarResto(asiento, 200);
    AnotaDineroPrevio();
    for (int asiento = 1; asiento <= 4; ++asiento) {
        AsignarResto(asiento, 195);
        estado.Apuesta(asiento, 1, 2) = 5;
    }
    AsignarResto(kBote, 20);
    sesion.mano_apuntada = true;
    ASSERT_EQ(GrabarIniJuego(), ErrorArchivo::Ninguno);
    mesa.Empieza(kPoker);
    LeerIniJuego();
    EXPECT_EQ(estado.JuegosJugados, 1);
    EXPECT_EQ(RestoDe(kBote), 20);
    EXPECT_EQ(RestoDe(2), 195);
    EXPECT_EQ(estado.Apuesta(2, 1, 2), 5);
}

TEST_F(AjustesTest, MasDe99FichasDeUnaClaseSeGuardanAgrupadasSinPerderUnPunto) {
    mesa.Empieza(kPoker);
    estado.Fichas(kBote, 2) = 131; // antes of four, hand after hand
    estado.Fichas(kBote, 1) = 3;
    estado.Fichas(4, 6) = 99;
    const auto lineas = JuegoGrabado();
    EXPECT_EQ(Columnas(lineas[1], 1, 12), "000001010005"); // 265 = 5 + 10 + 250
    EXPECT_EQ(Columnas(lineas[1], 49, 12), "000000000099");
    LeerIniJuego();
    EXPECT_EQ(RestoDe(kBote), 265);
}

TEST_F(AjustesTest, DeMasDe999JuegosSeGuardanLosUltimos999) {
    estado.PartidaEnCurso = true;
    estado.JuegosJugados = 1001;
    sesion.mano_apuntada = true;
    for (int juego = 1; juego <= 1001; ++juego)
        estado.Juegos(juego).Total = static_cast<Integer>(juego);
    const auto lineas = JuegoGrabado();
    ASSERT_THAT(lineas, SizeIs(3 + 999));
    EXPECT_EQ(Columnas(lineas[0], 97, 3), "999");
    EXPECT_EQ(Columnas(lineas[3], 10, 5), "    3");
    EXPECT_EQ(Columnas(lineas.back(), 10, 5), " 1001");
    LeerIniJuego();
    EXPECT_EQ(estado.JuegosJugados, 999);
    EXPECT_EQ(estado.Juegos(999).Total, 1001);
}

TEST_F(AjustesTest, LasMarcasYLaCifraOcupanUnaColumna) {
    estado.JuegosJugados = 1;
    sesion.mano_apuntada = true;
    estado.Juegos(1).Inicio = "Ana";
    estado.Juegos(1).Marcas(1, 1) = 12;
    estado.Juegos(1).Marcas(1, 2) = -1;
    estado.Juegos(1).Cifra(1) = 34;
    const auto lineas = JuegoGrabado();
    EXPECT_EQ(Columnas(lineas[3], 15, 4), "1000");
    EXPECT_EQ(Columnas(lineas[3], 51, 1), "3");
}

TEST_F(AjustesTest, GrabarElJuegoContestaConElNumeroDelError) {
    mesa.Archivo("ZOV5131.INI") = "lo de antes";
    mesa.Memoria().de_solo_lectura = {"juego"};
    EXPECT_EQ(GrabarIniJuego(), ErrorArchivo::SinPermiso);
    EXPECT_EQ(mesa.Archivo("ZOV5131.INI"), "lo de antes");
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
    ASSERT_EQ(GrabarIniJuego(), ErrorArchivo::Ninguno);
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

TEST_F(AjustesTest, LaLeyDeAperturaNoBajaDeLasCartasDeLaBaraja) {
    LeeTuteCon(69, "02"
                   "1114"
                   "6");
    EXPECT_EQ(estado.CartasBaraja, 6);
    EXPECT_EQ(estado.LeyApertura, 6);
    LeeTuteCon(69, "14"
                   "1114"
                   "6");
    EXPECT_EQ(estado.LeyApertura, 14);
}

TEST_F(AjustesTest, ElPasoSaleDelSentidoYNoDeSuColumna) {
    LeeTuteCon(71, "2");
    EXPECT_EQ(estado.PasoSentido, -1);
    LeeTuteCon(107, "-0");
    EXPECT_EQ(estado.PasoSentido, 1);
}

TEST_F(AjustesTest, UnaReglaDeDineroFueraDeLimitesVuelveASuValorPorDefecto) {
    LeeTuteCon(109, "0996"
                    "999"
                    "996"
                    "000");
    EXPECT_EQ(estado.RestoInicial, 200);
    EXPECT_EQ(estado.ApuestaSalida, 999);
    EXPECT_EQ(estado.ApuestaMaxima, 25);
    EXPECT_EQ(estado.LimitePartida, 3);
    LeeTuteCon(109, "0004"
                    "-01"
                    "004"
                    "-05");
    EXPECT_EQ(estado.RestoInicial, 200);
    EXPECT_EQ(estado.ApuestaSalida, 5);
    EXPECT_EQ(estado.ApuestaMaxima, 25);
    EXPECT_EQ(estado.LimitePartida, 3);
    LeeTuteCon(109, "0995"
                    "000"
                    "005"
                    "999");
    EXPECT_EQ(estado.RestoInicial, 995);
    EXPECT_EQ(estado.ApuestaSalida, 0);
    EXPECT_EQ(estado.ApuestaMaxima, 5);
    EXPECT_EQ(estado.LimitePartida, 999);
}

TEST_F(AjustesTest, UnaReglaQueNoCabeEn16BitsDejaLaQueHabia) {
    LeeTuteCon(109, "9E99");
    EXPECT_EQ(estado.RestoInicial, 200);
    EXPECT_TRUE(estado.PartidaEnCurso);
    EXPECT_THAT(mesa.Mensajes(), IsEmpty());
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
    EXPECT_EQ(estado.Fichas(kBote, 1), 0);
    EXPECT_EQ(estado.Fichas(kBote, 2), 0);
    EXPECT_EQ(estado.Fichas(kBote, 3), 5);
    EXPECT_EQ(estado.Apuesta(1, 1, 2), 0);
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
    EXPECT_EQ(estado.RestoPrevio(1), 200);
}

TEST_F(AjustesTest, MasApuestasDeLasQueCabenEnUnaCantidadSonNinguna) {
    LeeTute(AjustesDeTute() + "\n" + SinFichas() + "\n" +
            "9999000"
            "9999000"
            "9999000"
            "9999000" +
            "\n" + RegistroDe("Ana", "    0") + "\n" + RegistroDe("Eva", "    0"));
    EXPECT_THAT(mesa.Mensajes(), IsEmpty());
    EXPECT_EQ(estado.Apuesta(2, 1, 2), 0);
    EXPECT_EQ(estado.ApuestaPrevia(2, 2), 0);
}

TEST_F(AjustesTest, UnNumeroDeJuegosNegativoEsNinguno) {
    LeeTuteCon(97, "-02");
    EXPECT_TRUE(estado.PartidaEnCurso);
    EXPECT_EQ(estado.JuegosJugados, 0);
    EXPECT_THAT(mesa.Mensajes(), IsEmpty());
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
