// ZOV31.INI of any bytes.

#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "tests/support/settings_files.h"
#include "tests/support/valid_settings.h"

namespace {

void Exige(bool cumple, const char* que) {
    if (!cumple) {
        std::fprintf(stderr, "no se cumple: %s\n", que);
        std::abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t n) {
    static prueba::SesionConArchivos mesa;
    const std::string contenido(reinterpret_cast<const char*>(datos), n);
    mesa.Empieza(kTute);
    mesa.Memoria().contenidos.clear();
    mesa.Archivo("ZOV31.INI") = contenido;
    LeerIniGeneral();
    const std::string fallo = prueba::FalloDeAjustesGenerales();
    Exige(fallo.empty(), fallo.c_str());
    Exige(mesa.Mensajes().size() <= (estado.FicheroNuevo ? 1U : 0U),
          "un aviso por archivo, a lo sumo");
    Exige(!estado.FicheroNuevo || mesa.Archivo("ZOV31.MAL") == contenido, "el dañado se guarda");
    return 0;
}
