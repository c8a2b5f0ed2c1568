#include "tools/common/program_files.h"

#include <array>
#include <filesystem>

#include "platform/data_folder.h"

namespace fs = std::filesystem;

namespace {

constexpr std::array kDatos{"PkFDes.ZOV"};

} // namespace

std::string CarpetaDeDatos() {
    std::error_code fallo;
    const fs::path programa = fs::read_symlink("/proc/self/exe", fallo).parent_path();
    if (fallo)
        return ".";
    const fs::path instalados = programa / kDatosInstalados;
    return fs::exists(instalados / kDatos.front(), fallo) ? instalados.lexically_normal().string()
                                                          : programa.string();
}

void InstalaFicherosDelPrograma(PlataformaSinPantalla& mesa, const std::string& carpeta) {
    ArchivosDisco disco;
    for (const char* nombre : kDatos) {
        const Lectura lectura = disco.Lee(carpeta + "/" + nombre);
        if (lectura.error == ErrorArchivo::Ninguno)
            mesa.Instala(mesa.CarpetaDelPrograma() + "/" + nombre, lectura.contenido);
    }
}
