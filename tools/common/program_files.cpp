#include "tools/common/program_files.h"

#include <array>
#include <filesystem>

namespace {

constexpr std::array kDatos{"PkFDes.ZOV"};

} // namespace

std::string CarpetaDelEjecutable() {
    std::error_code fallo;
    const auto programa = std::filesystem::read_symlink("/proc/self/exe", fallo);
    return fallo ? "." : programa.parent_path().string();
}

void InstalaFicherosDelPrograma(PlataformaSinPantalla& mesa, const std::string& carpeta) {
    ArchivosDisco disco;
    for (const char* nombre : kDatos) {
        const Lectura lectura = disco.Lee(carpeta + "/" + nombre);
        if (lectura.error == ErrorArchivo::Ninguno)
            mesa.Instala(mesa.CarpetaDelPrograma() + "/" + nombre, lectura.contenido);
    }
}
