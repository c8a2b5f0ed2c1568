#pragma once
// Files as the game sees them: read whole, written whole. Two sides: the disk and a memory for tests and
// tools. Paths are UTF-8, '/' between folders; contents are bytes.

#include <cstddef>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>

// Numbers of the errors that the readers report.
enum class ErrorArchivo : int {
    Ninguno = 0,
    SinMemoria = 7, // larger than kTopeArchivo
    NoEncontrado = 53,
    Dispositivo = 57,
    DiscoLleno = 61,
    SinPermiso = 70,
    Acceso = 75,
    RutaNoEncontrada = 76,
};

// No file of the game comes near this size in bytes; a larger one is not read.
inline constexpr std::size_t kTopeArchivo = std::size_t{64} << 20;

struct Lectura {
    ErrorArchivo error = ErrorArchivo::Ninguno;
    std::string contenido;
};

class Archivos {
public:
    virtual ~Archivos() = default;

    // Only plain files: a folder or a device gives Acceso. On an error contenido is empty.
    virtual Lectura Lee(const std::string& ruta) = 0;
    // All or nothing: a new file beside the old one, flushed to disk and renamed over it. On an error the
    // old file is whole.
    virtual ErrorArchivo Escribe(const std::string& ruta, std::string_view contenido) = 0;
    virtual bool Existe(const std::string& ruta) = 0;
    virtual ErrorArchivo Borra(const std::string& ruta) = 0;
    // Takes the place of a file that is called so already.
    virtual ErrorArchivo Renombra(const std::string& de, const std::string& a) = 0;
    virtual ErrorArchivo
    CreaCarpeta(const std::string& ruta) = 0; // with its parents; fine when it is there
};

class ArchivosDisco : public Archivos {
public:
    Lectura Lee(const std::string& ruta) override;
    ErrorArchivo Escribe(const std::string& ruta, std::string_view contenido) override;
    bool Existe(const std::string& ruta) override;
    ErrorArchivo Borra(const std::string& ruta) override;
    ErrorArchivo Renombra(const std::string& de, const std::string& a) override;
    ErrorArchivo CreaCarpeta(const std::string& ruta) override;
};

// Files in memory. Every folder exists; the files of those in `de_solo_lectura` (without a '/' at the end)
// cannot be written, removed or renamed.
class ArchivosMemoria : public Archivos {
public:
    std::map<std::string, std::string> contenidos;
    std::set<std::string> de_solo_lectura;

    Lectura Lee(const std::string& ruta) override;
    ErrorArchivo Escribe(const std::string& ruta, std::string_view contenido) override;
    bool Existe(const std::string& ruta) override;
    ErrorArchivo Borra(const std::string& ruta) override;
    ErrorArchivo Renombra(const std::string& de, const std::string& a) override;
    ErrorArchivo CreaCarpeta(const std::string& ruta) override;

private:
    bool Protegida(const std::string& ruta) const;
};
