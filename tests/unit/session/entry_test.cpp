#include "session/entry.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

#include "core/session_state.h"
#include "tests/support/live_table.h"

using namespace prueba;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

constexpr const char* kPrograma = "/programa";
constexpr const char* kUsuario = "/casa/ana/zovin";

// In the order in which they are copied.
constexpr const char* kFicheros[]{"ZOV31.INI",   "ZOV0131.INI",  "ZOV3131.INI",  "ZOV5131.INI",
                                  "ZOV5831.INI", "ZOV6531.INI",  "ZOV7031.INI",  "ZOV0131.HIS",
                                  "ZOV3131.HIS", "ZOV5131.HIS",  "ZOV5831.HIS",  "ZOV6531.HIS",
                                  "ZOV7031.HIS", "Baraja01.bmp", "Baraja02.bmp", "PkFDes.ZOV"};

// A desktop with folders of its own, a screen that can be too small, and a splash.
struct Escritorio : PlataformaSinPantalla {
    std::string CarpetaDelPrograma() const override { return kPrograma; }
    std::string CarpetaUsuario() const override { return usuario; }
    int AnchoEscritorio() const override { return ancho; }
    int AltoEscritorio() const override { return alto; }
    void MuestraCareta() override { sucesos.push_back("careta"); }
    void MuestraMesa() override {
        sucesos.push_back("mesa a los " + std::to_string(Reloj()));
        de_primera_vez = estado.PrimeraVez;
    }
    std::string usuario = kUsuario;
    int ancho = 800, alto = 600;
    bool de_primera_vez = false;
    std::vector<std::string> sucesos;
};

// Files that note which ones were asked for, and which were written.
struct ArchivosAnotados : ArchivosMemoria {
    Lectura Lee(const std::string& ruta) override {
        leidos.push_back(ruta);
        return ArchivosMemoria::Lee(ruta);
    }
    ErrorArchivo Escribe(const std::string& ruta, std::string_view contenido) override {
        const ErrorArchivo error = ArchivosMemoria::Escribe(ruta, contenido);
        if (error == ErrorArchivo::Ninguno)
            escritos.push_back(ruta);
        return error;
    }
    std::vector<std::string> leidos, escritos;
};

struct EscritorioAnotado : Escritorio {
    Archivos& LosArchivos() override { return anotados; }
    ArchivosAnotados anotados;
};

struct Arranque : MesaViva {
    Arranque() {
        UsaPlataforma(escritorio);
        estado = {};
        sesion = {};
        estado.CarpetaPrograma = kPrograma;
        estado.CarpetaTrabajo = kPrograma;
        estado.SaltoLinea = "\r\n";
        Archivos().contenidos.clear();
    }
    ~Arranque() override { UsaPlataforma(p); }
    ArchivosMemoria& Archivos() { return escritorio.EnMemoria(); }
    void ProgramaDeSoloLectura() { Archivos().de_solo_lectura.insert(kPrograma); }
    bool Hay(const std::string& ruta) { return Archivos().contenidos.contains(ruta); }
    static std::string EnUsuario(const std::string& nombre) {
        return std::string(kUsuario) + "/" + nombre;
    }
    static std::string EnPrograma(const std::string& nombre) {
        return std::string(kPrograma) + "/" + nombre;
    }
    std::vector<std::string> TitulosDichos() {
        std::vector<std::string> titulos;
        for (const CajaMensaje& caja : escritorio.mensajes)
            titulos.push_back(caja.titulo);
        return titulos;
    }
    Escritorio escritorio;
};

} // namespace

TEST_F(Arranque, EnUnaCarpetaQueSePuedeEscribirNoQuedaRastroDeLaPrueba) {
    PruebaCarpeta();
    EXPECT_EQ(estado.CarpetaTrabajo, kPrograma);
    EXPECT_THAT(Archivos().contenidos, IsEmpty());
}

TEST_F(Arranque, DondeNoSePuedeSeTrabajaEnLaDelUsuarioConUnaCopia) {
    ProgramaDeSoloLectura();
    Archivos().contenidos[EnPrograma("ZOV5831.INI")] = "brisca";
    Archivos().contenidos[EnPrograma("Baraja02.bmp")] = "dibujos";
    Archivos().contenidos[EnPrograma("PkFDes.ZOV")] = "tabla";
    Archivos().contenidos[EnPrograma("otro")] = "nada";
    PruebaCarpeta();
    EXPECT_EQ(estado.CarpetaTrabajo, kUsuario);
    EXPECT_EQ(Archivos().contenidos[EnUsuario("ZOV5831.INI")], "brisca");
    EXPECT_EQ(Archivos().contenidos[EnUsuario("Baraja02.bmp")], "dibujos");
    EXPECT_EQ(Archivos().contenidos[EnUsuario("PkFDes.ZOV")], "tabla");
    EXPECT_FALSE(Hay(EnUsuario("otro")));
    EXPECT_FALSE(Hay(EnUsuario("ZOV31.INI")));
    EXPECT_FALSE(Hay(EnUsuario("CSCD.WRK")));
}

TEST_F(Arranque, LosDieciseisFicherosSeCopian) {
    ProgramaDeSoloLectura();
    for (const char* nombre : kFicheros)
        Archivos().contenidos[EnPrograma(nombre)] = nombre;
    PruebaCarpeta();
    EXPECT_EQ(Archivos().contenidos.size(), 32U);
    EXPECT_EQ(Archivos().contenidos[EnUsuario("ZOV7031.HIS")], "ZOV7031.HIS");
}

TEST_F(Arranque, LosFicherosSeBuscanYSeCopianEnSuOrden) {
    EscritorioAnotado anotado;
    UsaPlataforma(anotado);
    std::vector<std::string> de_programa, de_usuario;
    for (const char* nombre : kFicheros) {
        de_programa.push_back(EnPrograma(nombre));
        de_usuario.push_back(EnUsuario(nombre));
        anotado.anotados.contenidos[EnPrograma(nombre)] = nombre;
    }
    anotado.anotados.de_solo_lectura.insert(kPrograma);
    PruebaCarpeta();
    EXPECT_EQ(anotado.anotados.leidos, de_programa);
    EXPECT_EQ(anotado.anotados.escritos, de_usuario);
}

TEST_F(Arranque, LaSegundaVezNoSeCopiaNada) {
    ProgramaDeSoloLectura();
    Archivos().contenidos[EnPrograma("ZOV31.INI")] = "del programa";
    Archivos().contenidos[EnPrograma("ZOV5831.INI")] = "del programa";
    Archivos().contenidos[EnUsuario("ZOV31.INI")] = "del usuario";
    PruebaCarpeta();
    EXPECT_EQ(estado.CarpetaTrabajo, kUsuario);
    EXPECT_EQ(Archivos().contenidos[EnUsuario("ZOV31.INI")], "del usuario");
    EXPECT_FALSE(Hay(EnUsuario("ZOV5831.INI")));
}

// On a real disk, where a folder that is not there is none.
TEST_F(Arranque, LaCarpetaDelUsuarioSeHaceConTodoSuCamino) {
    namespace fs = std::filesystem;
    std::string carpeta = (fs::temp_directory_path() / "arranque.XXXXXX").string();
    ASSERT_NE(mkdtemp(carpeta.data()), nullptr);
    escritorio.UsaCarpeta(carpeta);
    estado.CarpetaPrograma = estado.CarpetaTrabajo = carpeta + "/no-esta";
    escritorio.usuario = carpeta + "/casa/ana/zovin";
    PruebaCarpeta();
    EXPECT_EQ(estado.CarpetaTrabajo, escritorio.usuario);
    EXPECT_TRUE(fs::is_directory(escritorio.usuario));
    EXPECT_TRUE(fs::is_empty(escritorio.usuario)) << "there was nothing to copy";
    EXPECT_FALSE(fs::exists(estado.CarpetaPrograma));
    fs::remove_all(carpeta);
}

TEST_F(Arranque, UnaPantallaAnchaYBajaVale) {
    escritorio.ancho = 1024;
    escritorio.alto = 500;
    EXPECT_TRUE(CompruebaPantalla());
    EXPECT_THAT(escritorio.mensajes, IsEmpty());
}

TEST_F(Arranque, UnaPantallaEstrechaPreguntaYCancelarAcabaElPrograma) {
    escritorio.ancho = 640;
    escritorio.alto = 480;
    escritorio.respuestas = {Boton::No};
    EXPECT_FALSE(CompruebaPantalla());
    ASSERT_EQ(escritorio.mensajes.size(), 1U);
    EXPECT_EQ(escritorio.mensajes[0].titulo, "Resolución de pantalla");
    EXPECT_EQ(escritorio.mensajes[0].modo, 2);
    EXPECT_EQ(escritorio.mensajes[0].lineas, 6);
    EXPECT_TRUE(escritorio.mensajes[0].aceptar);
    EXPECT_EQ(escritorio.mensajes[0].texto,
              "Este  programa  se  ha  diseñado  para  funcionar  con  una resolución mínima de "
              "pantalla de 800x600 con profundidad de color de 16 bits o superior.  La resolución "
              "seleccionada actualmente es de (640x480).  Pulse  Aceptar  para cambiar  la  "
              "resolución  de  la  pantalla  a  800x600  o  Cancelar  para abandonar el programa.");
}

TEST_F(Arranque, AceptarDiceQueNoSePuedeCambiarYSigue) {
    escritorio.ancho = 640;
    EXPECT_TRUE(CompruebaPantalla());
    EXPECT_THAT(TitulosDichos(),
                ElementsAre("Resolución de pantalla", "Cambio de resolución de pantalla"));
    EXPECT_EQ(escritorio.mensajes[1].texto, "No se puede cambiar la resolución de la pantalla.");
    EXPECT_EQ(escritorio.mensajes[1].lineas, 2);
    EXPECT_EQ(escritorio.mensajes[1].modo, 1);
}

TEST_F(Arranque, UnAnchoDeTresCifrasYUnAltoDeDosVanEnSusColumnas) {
    escritorio.ancho = 320;
    escritorio.alto = 99;
    escritorio.respuestas = {Boton::No};
    EXPECT_FALSE(CompruebaPantalla());
    EXPECT_THAT(escritorio.mensajes[0].texto, HasSubstr("(320x 99)"));
}

TEST_F(Arranque, LaCaretaEsperaYLaMesaSaleDespuesDeLeer) {
    EXPECT_EQ(ArrancaPrograma(), 0);
    EXPECT_THAT(escritorio.sucesos, ElementsAre("careta", "mesa a los 2000"));
    EXPECT_TRUE(escritorio.de_primera_vez);
    EXPECT_EQ(estado.SaltoLinea, "\r\n");
    EXPECT_EQ(estado.CarpetaTrabajo, kPrograma);
    EXPECT_EQ(estado.AnchoMesa, 710);
}

TEST_F(Arranque, LaPrimeraVezOfreceLaDescripcionGeneral) {
    escritorio.respuestas = {Boton::Salir, Boton::Salir, Boton::Ayuda};
    ArrancaPrograma();
    EXPECT_EQ(TitulosDichos().back(), "Descripción general");
    EXPECT_EQ(escritorio.mensajes.back().modo, 3);
    EXPECT_EQ(escritorio.mensajes.back().lineas, 3);
    EXPECT_THAT(escritorio.temas_ayuda, ElementsAre(0));
    EXPECT_FALSE(estado.PrimeraVez);
}

TEST_F(Arranque, SinFicherosLosCreaYLoDice) {
    ArrancaPrograma();
    EXPECT_THAT(TitulosDichos(),
                ElementsAre("Error en la carga de datos iniciales",
                            "Error en la carga de datos iniciales", "Descripción general"));
    EXPECT_TRUE(Hay(EnPrograma("ZOV31.INI")));
    EXPECT_FALSE(Hay(EnPrograma("CSCD.WRK")));
}

TEST_F(Arranque, DondeNoSePuedeEscribirSeJuegaSinGuardarYSeDice) {
    ProgramaDeSoloLectura();
    escritorio.guion.Tecla('n');
    escritorio.guion.PulsaControl({Control::Pic_Boton, kBotonSalir});
    EXPECT_EQ(ArrancaPrograma(), 1);
    EXPECT_THAT(TitulosDichos(), testing::Contains("Error al guardar los datos"));
    EXPECT_FALSE(Hay(EnPrograma("ZOV7031.INI")));
    EXPECT_FALSE(Hay(EnUsuario("ZOV7031.INI"))) << "what is read there is not written there";
}

TEST_F(Arranque, CancelarEnLaPantallaEstrechaNoLlegaALaMesa) {
    escritorio.ancho = 640;
    escritorio.respuestas = {Boton::No};
    EXPECT_EQ(ArrancaPrograma(), 0);
    EXPECT_THAT(escritorio.sucesos, ElementsAre("careta"));
    EXPECT_FALSE(Hay(EnPrograma("ZOV31.INI")));
}

TEST_F(Arranque, UnaTeclaEmpiezaUnaPartidaYElBotonDeSalirAcaba) {
    escritorio.guion.Tecla('n');
    escritorio.guion.PulsaControl({Control::Pic_Boton, kBotonSalir});
    EXPECT_EQ(ArrancaPrograma(), 0);
    EXPECT_THAT(TitulosDichos(), testing::Contains("Comienza la Partida"));
    EXPECT_EQ(TitulosDichos().back(), "Posponer la partida en curso");
    EXPECT_EQ(sesion.peticion, Peticion::Salir);
}
