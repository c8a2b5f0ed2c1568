// The two sides of the files: what both promise, and what only a disk can do wrong.

#include "core/files.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <fstream>

namespace {

namespace fs = std::filesystem;

// A folder of its own that nobody but its owner may write to, gone with the test.
class CarpetaDePrueba {
public:
    CarpetaDePrueba() {
        std::string plantilla = (fs::temp_directory_path() / "archivos.XXXXXX").string();
        ruta_ = mkdtemp(plantilla.data());
        fs::permissions(ruta_, fs::perms(0755));
    }
    ~CarpetaDePrueba() { fs::remove_all(ruta_); }
    CarpetaDePrueba(const CarpetaDePrueba&) = delete;
    CarpetaDePrueba& operator=(const CarpetaDePrueba&) = delete;

    std::string operator/(const std::string& nombre) const { return ruta_ + "/" + nombre; }
    const std::string& Ruta() const { return ruta_; }
    int Cuantos() const {
        return static_cast<int>(std::distance(fs::directory_iterator(ruta_), {}));
    }

private:
    std::string ruta_;
};

class ArchivosDiscoTest : public testing::Test {
protected:
    CarpetaDePrueba carpeta;
    ArchivosDisco archivos;
};

TEST_F(ArchivosDiscoTest, SeLeeLoQueSeEscribioByteAByte) {
    std::string contenido("uno\r\ndos\0\xE1\xFF\x1A tres", 17);
    ASSERT_EQ(archivos.Escribe(carpeta / "ZOV31.INI", contenido), ErrorArchivo::Ninguno);
    const Lectura lectura = archivos.Lee(carpeta / "ZOV31.INI");
    EXPECT_EQ(lectura.error, ErrorArchivo::Ninguno);
    EXPECT_EQ(lectura.contenido, contenido);
}

TEST_F(ArchivosDiscoTest, EscribirSustituyeElArchivoEnteroYNoDejaRestos) {
    ASSERT_EQ(archivos.Escribe(carpeta / "a", std::string(100000, 'x')), ErrorArchivo::Ninguno);
    ASSERT_EQ(archivos.Escribe(carpeta / "a", "corto"), ErrorArchivo::Ninguno);
    EXPECT_EQ(archivos.Lee(carpeta / "a").contenido, "corto");
    EXPECT_EQ(carpeta.Cuantos(), 1);
}

TEST_F(ArchivosDiscoTest, LosRestosDeUnCorteDesaparecenAlEscribirDeNuevo) {
    ASSERT_EQ(archivos.Escribe(carpeta / "a", "antes"), ErrorArchivo::Ninguno);
    std::ofstream(carpeta / "a.nuevo") << "a medias";
    ASSERT_EQ(archivos.Escribe(carpeta / "a", "ahora"), ErrorArchivo::Ninguno);
    EXPECT_EQ(archivos.Lee(carpeta / "a").contenido, "ahora");
    EXPECT_EQ(carpeta.Cuantos(), 1);
}

// The disk is full in the middle of a file: here, a process may not write more than ten bytes.
TEST_F(ArchivosDiscoTest, ConElDiscoLlenoElArchivoViejoQuedaEnteroYSinRestos) {
    ASSERT_EQ(archivos.Escribe(carpeta / "a", "el archivo de antes"), ErrorArchivo::Ninguno);
    rlimit antes{};
    getrlimit(RLIMIT_FSIZE, &antes);
    const rlimit diez{10, antes.rlim_max};
    const auto manejador = std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &diez);
    const ErrorArchivo error = archivos.Escribe(carpeta / "a", std::string(1000, 'x'));
    setrlimit(RLIMIT_FSIZE, &antes);
    std::signal(SIGXFSZ, manejador);

    EXPECT_EQ(error, ErrorArchivo::DiscoLleno);
    EXPECT_EQ(archivos.Lee(carpeta / "a").contenido, "el archivo de antes");
    EXPECT_EQ(carpeta.Cuantos(), 1);
}

// Whoever runs the tests as root reads and writes everything, so the test steps down first.
TEST_F(ArchivosDiscoTest, SinPermisoElArchivoViejoQuedaEnteroYSeDiceCual) {
    ASSERT_EQ(archivos.Escribe(carpeta / "a", "antes"), ErrorArchivo::Ninguno);
    const uid_t yo = geteuid();
    constexpr uid_t kNadie = 65534;
    fs::permissions(carpeta.Ruta(), fs::perms(yo == 0 ? 0755 : 0555));
    fs::permissions(carpeta / "a", fs::perms(yo == 0 ? 0600 : 0000));
    ASSERT_EQ(seteuid(yo == 0 ? kNadie : yo), 0);
    const ErrorArchivo al_escribir = archivos.Escribe(carpeta / "a", "ahora");
    const ErrorArchivo al_leer = archivos.Lee(carpeta / "a").error;
    const ErrorArchivo al_borrar = archivos.Borra(carpeta / "a");
    const ErrorArchivo al_renombrar = archivos.Renombra(carpeta / "a", carpeta / "b");
    ASSERT_EQ(seteuid(yo), 0);
    fs::permissions(carpeta.Ruta(), fs::perms(0755));
    fs::permissions(carpeta / "a", fs::perms(0644));

    EXPECT_EQ(al_escribir, ErrorArchivo::SinPermiso);
    EXPECT_EQ(al_leer, ErrorArchivo::SinPermiso);
    EXPECT_EQ(al_borrar, ErrorArchivo::SinPermiso);
    EXPECT_EQ(al_renombrar, ErrorArchivo::SinPermiso);
    EXPECT_EQ(archivos.Lee(carpeta / "a").contenido, "antes");
    EXPECT_EQ(carpeta.Cuantos(), 1);
}

TEST_F(ArchivosDiscoTest, SobreUnaCarpetaNoSeEscribe) {
    fs::create_directory(carpeta / "a");
    EXPECT_EQ(archivos.Escribe(carpeta / "a", "x"), ErrorArchivo::Acceso);
    EXPECT_TRUE(fs::is_directory(carpeta / "a"));
    EXPECT_EQ(carpeta.Cuantos(), 1);
}

TEST_F(ArchivosDiscoTest, LoQueFaltaTieneSuNumero) {
    std::ofstream(carpeta / "a") << "x";
    EXPECT_EQ(archivos.Lee(carpeta / "b").error, ErrorArchivo::NoEncontrado);
    EXPECT_EQ(archivos.Lee(carpeta / "a/b").error, ErrorArchivo::RutaNoEncontrada);
    EXPECT_EQ(archivos.Escribe(carpeta / "no_esta/b", "x"), ErrorArchivo::RutaNoEncontrada);
    EXPECT_EQ(archivos.Borra(carpeta / "b"), ErrorArchivo::NoEncontrado);
    EXPECT_EQ(archivos.Renombra(carpeta / "b", carpeta / "c"), ErrorArchivo::NoEncontrado);
}

TEST_F(ArchivosDiscoTest, SoloSeLeenArchivosCorrientes) {
    fs::create_directory(carpeta / "dir");
    ASSERT_EQ(mkfifo((carpeta / "tubo").c_str(), 0600), 0);
    EXPECT_EQ(archivos.Lee(carpeta / "dir").error, ErrorArchivo::Acceso);
    EXPECT_EQ(archivos.Lee(carpeta / "tubo").error, ErrorArchivo::Acceso); // and does not wait
    EXPECT_EQ(archivos.Lee("/dev/zero").error, ErrorArchivo::Acceso);
}

TEST_F(ArchivosDiscoTest, UnArchivoDesmesuradoNoSeLee) {
    std::ofstream(carpeta / "enorme") << "x";
    fs::resize_file(carpeta / "enorme", std::uintmax_t{1} << 30);
    const Lectura lectura = archivos.Lee(carpeta / "enorme");
    EXPECT_EQ(lectura.error, ErrorArchivo::SinMemoria);
    EXPECT_TRUE(lectura.contenido.empty());
    fs::resize_file(carpeta / "enorme", kTopeArchivo);
    EXPECT_EQ(archivos.Lee(carpeta / "enorme").contenido.size(), kTopeArchivo);
}

TEST_F(ArchivosDiscoTest, RenombrarTomaElSitioDelQueYaSeLlamabaAsi) {
    std::ofstream(carpeta / "a") << "nuevo";
    std::ofstream(carpeta / "b") << "viejo";
    ASSERT_EQ(archivos.Renombra(carpeta / "a", carpeta / "b"), ErrorArchivo::Ninguno);
    EXPECT_FALSE(archivos.Existe(carpeta / "a"));
    EXPECT_EQ(archivos.Lee(carpeta / "b").contenido, "nuevo");
}

TEST_F(ArchivosDiscoTest, UnaCarpetaSeHaceConLasQueLaContienen) {
    EXPECT_EQ(archivos.CreaCarpeta(carpeta / "uno/dos/tres"), ErrorArchivo::Ninguno);
    EXPECT_TRUE(fs::is_directory(carpeta / "uno/dos/tres"));
    EXPECT_EQ(archivos.CreaCarpeta(carpeta / "uno/dos"), ErrorArchivo::Ninguno);
    std::ofstream(carpeta / "archivo") << "x";
    EXPECT_NE(archivos.CreaCarpeta(carpeta / "archivo/dos"), ErrorArchivo::Ninguno);
}

TEST(ArchivosMemoriaTest, SeLeeSeRenombraYSeBorraComoEnElDisco) {
    ArchivosMemoria archivos;
    EXPECT_EQ(archivos.Lee("./a").error, ErrorArchivo::NoEncontrado);
    ASSERT_EQ(archivos.Escribe("./a", "uno"), ErrorArchivo::Ninguno);
    ASSERT_EQ(archivos.Escribe("./b", "dos"), ErrorArchivo::Ninguno);
    ASSERT_EQ(archivos.Renombra("./a", "./b"), ErrorArchivo::Ninguno);
    EXPECT_FALSE(archivos.Existe("./a"));
    EXPECT_EQ(archivos.Lee("./b").contenido, "uno");
    EXPECT_EQ(archivos.Borra("./b"), ErrorArchivo::Ninguno);
    EXPECT_EQ(archivos.Borra("./b"), ErrorArchivo::NoEncontrado);
    EXPECT_EQ(archivos.Renombra("./b", "./c"), ErrorArchivo::NoEncontrado);
    EXPECT_EQ(archivos.CreaCarpeta("donde/sea"), ErrorArchivo::Ninguno);
}

TEST(ArchivosMemoriaTest, UnaCarpetaDeSoloLecturaNoDejaTocarSusArchivos) {
    ArchivosMemoria archivos;
    ASSERT_EQ(archivos.Escribe("juego/a", "uno"), ErrorArchivo::Ninguno);
    archivos.de_solo_lectura = {"juego"};
    EXPECT_EQ(archivos.Escribe("juego/a", "dos"), ErrorArchivo::SinPermiso);
    EXPECT_EQ(archivos.Borra("juego/a"), ErrorArchivo::SinPermiso);
    EXPECT_EQ(archivos.Renombra("juego/a", "otro/a"), ErrorArchivo::SinPermiso);
    EXPECT_EQ(archivos.Lee("juego/a").contenido, "uno");
    EXPECT_EQ(archivos.Escribe("otro/a", "dos"), ErrorArchivo::Ninguno);
    EXPECT_EQ(archivos.Renombra("otro/a", "juego/b"), ErrorArchivo::SinPermiso);
}

} // namespace
