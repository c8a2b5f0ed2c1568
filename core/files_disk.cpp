#include "core/files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <system_error>
#include <utility>

namespace {

// The system's errors by the numbers that the player is told.
ErrorArchivo DeSistema(int error) {
    switch (error) {
    case ENOENT:
        return ErrorArchivo::NoEncontrado;
    case EACCES:
    case EPERM:
    case EROFS:
        return ErrorArchivo::SinPermiso;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return ErrorArchivo::DiscoLleno;
    case ENOTDIR:
        return ErrorArchivo::RutaNoEncontrada;
    case EISDIR:
    case ENOTEMPTY:
    case EEXIST:
    case ENAMETOOLONG:
    case EINVAL:
    case ELOOP:
        return ErrorArchivo::Acceso;
    default:
        return ErrorArchivo::Dispositivo;
    }
}

// The same for a file that is to be made: what is not there is its folder.
ErrorArchivo DeEscritura(int error) {
    return error == ENOENT ? ErrorArchivo::RutaNoEncontrada : DeSistema(error);
}

// An open file of the system, closed at the end of its life.
class Abierto {
public:
    Abierto(const std::string& ruta, int modo, mode_t permisos = 0)
        : numero_(::open(ruta.c_str(), modo | O_CLOEXEC, permisos)) {}
    ~Abierto() {
        if (numero_ >= 0)
            ::close(numero_);
    }
    Abierto(const Abierto&) = delete;
    Abierto& operator=(const Abierto&) = delete;

    explicit operator bool() const { return numero_ >= 0; }
    int Numero() const { return numero_; }
    // A network folder may tell only here that the bytes did not arrive.
    bool Cierra() { return ::close(std::exchange(numero_, -1)) == 0; }

private:
    int numero_;
};

// 0 or the system's error.
int LeeTodo(int numero, std::string& contenido) {
    std::array<char, 65536> trozo{};
    for (;;) {
        const ssize_t n = ::read(numero, trozo.data(), trozo.size());
        if (n == 0)
            return 0;
        if (n < 0 && errno != EINTR)
            return errno;
        if (n > 0)
            contenido.append(trozo.data(), static_cast<std::size_t>(n));
        if (contenido.size() > kTopeArchivo)
            return EFBIG;
    }
}

int EscribeTodo(int numero, std::string_view contenido) {
    while (!contenido.empty()) {
        const ssize_t n = ::write(numero, contenido.data(), contenido.size());
        if (n < 0 && errno != EINTR)
            return errno;
        if (n > 0)
            contenido.remove_prefix(static_cast<std::size_t>(n));
    }
    return 0;
}

int EscribeNuevo(const std::string& ruta, std::string_view contenido) {
    Abierto archivo(ruta, O_WRONLY | O_CREAT | O_EXCL, 0666);
    if (!archivo)
        return errno;
    if (const int error = EscribeTodo(archivo.Numero(), contenido))
        return error;
    if (::fsync(archivo.Numero()) != 0 || !archivo.Cierra())
        return errno;
    return 0;
}

// The new name itself reaches the disk. The file is in its place whether or not the folder can do this,
// so the answer is not asked for.
void AseguraCarpeta(const std::string& ruta) {
    const auto barra = ruta.rfind('/');
    const Abierto carpeta(barra == std::string::npos ? "." : ruta.substr(0, barra + 1),
                          O_RDONLY | O_DIRECTORY);
    if (carpeta)
        ::fsync(carpeta.Numero());
}

} // namespace

Lectura ArchivosDisco::Lee(const std::string& ruta) {
    Lectura lectura;
    // Without waiting for whoever might write at the other end of something that is no plain file.
    const Abierto archivo(ruta, O_RDONLY | O_NONBLOCK);
    struct stat datos {};
    if (!archivo || ::fstat(archivo.Numero(), &datos) != 0) {
        lectura.error = DeSistema(errno);
        return lectura;
    }
    if (!S_ISREG(datos.st_mode)) {
        lectura.error = ErrorArchivo::Acceso;
        return lectura;
    }
    const bool cabe = datos.st_size <= static_cast<off_t>(kTopeArchivo);
    const int error = cabe ? LeeTodo(archivo.Numero(), lectura.contenido) : EFBIG;
    if (error != 0)
        lectura = {error == EFBIG ? ErrorArchivo::SinMemoria : DeSistema(error), {}};
    return lectura;
}

ErrorArchivo ArchivosDisco::Escribe(const std::string& ruta, std::string_view contenido) {
    // Always the same name, so that what a power cut leaves behind is gone with the next try.
    const std::string nuevo = ruta + ".nuevo";
    ::unlink(nuevo.c_str());
    int error = EscribeNuevo(nuevo, contenido);
    if (error == 0 && ::rename(nuevo.c_str(), ruta.c_str()) != 0)
        error = errno;
    if (error != 0) {
        ::unlink(nuevo.c_str());
        return DeEscritura(error);
    }
    AseguraCarpeta(ruta);
    return ErrorArchivo::Ninguno;
}

bool ArchivosDisco::Existe(const std::string& ruta) {
    return ::access(ruta.c_str(), F_OK) == 0;
}

ErrorArchivo ArchivosDisco::Borra(const std::string& ruta) {
    return ::unlink(ruta.c_str()) == 0 ? ErrorArchivo::Ninguno : DeSistema(errno);
}

ErrorArchivo ArchivosDisco::Renombra(const std::string& de, const std::string& a) {
    return std::rename(de.c_str(), a.c_str()) == 0 ? ErrorArchivo::Ninguno : DeSistema(errno);
}

ErrorArchivo ArchivosDisco::CreaCarpeta(const std::string& ruta) {
    std::error_code error;
    std::filesystem::create_directories(ruta, error);
    return error ? DeEscritura(error.value()) : ErrorArchivo::Ninguno;
}
