// A history of any bytes: it is listed, summed and printed, and nothing of it is lost when a match is added.

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "core/game_state.h"
#include "games/game_rows.h"
#include "platform/headless/headless_platform.h"
#include "reports/historic.h"
#include "storage/history.h"
#include "table/game_row.h"

namespace {

void Exige(bool cumple, const char* que) {
    if (!cumple) {
        std::fprintf(stderr, "no se cumple: %s\n", que);
        std::abort();
    }
}

void HojeaTodo() {
    int paginas = 0;
    for (int n = 1; n <= historic::Paginas(); ++n) {
        const PaginaImpresa pagina = historic::Pagina(n);
        for (const std::string& linea : LineasDe(pagina))
            Exige(linea.find('\n') == std::string::npos, "cada impreso es una línea");
        ++paginas;
    }
    Exige(paginas > 0, "siempre hay una página");
}

void Consulta() {
    historic::Abre();
    HojeaTodo();
    historic::PulsaTotales();
    for (int pestana = 1; historic::Pestana() != 0 && pestana <= kPestanas; ++pestana) {
        historic::PulsaPestana(pestana);
        HojeaTodo();
    }
    historic::Deja();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t n) {
    static PlataformaSinPantalla mesa;
    UsaPlataforma(mesa);
    UsaJuegos(LosJuegos());
    estado.JuegoActivo = kTute;
    estado.CarpetaTrabajo = ".";
    const std::string bytes(reinterpret_cast<const char*>(datos), n);
    const std::string enteros = bytes.substr(0, n - n % kAnchoBloque);
    auto& archivos = mesa.EnMemoria().contenidos;
    archivos.clear();
    archivos["./ZOV5131.HIS"] = bytes;
    Consulta();
    Exige(archivos["./ZOV5131.HIS"] == bytes, "consultar no cambia nada");

    const PartidaTerminada partida{.fin = {}, .ganadores = {{"Ana", 3}}, .perdedores = {}};
    Exige(AnadeAlHistorico(kTute, partida) == ErrorArchivo::Ninguno, "se puede anotar");
    Exige(archivos["./ZOV5131.HIS"] == enteros + EscribeBloque(partida), "todo sigue ahí");
    const bool apartado = archivos.contains("./ZOV5131.HIS.MAL");
    Exige(apartado == (n % kAnchoBloque != 0), "se aparta lo que está cortado");
    Exige(!apartado || archivos["./ZOV5131.HIS.MAL"] == bytes, "se aparta tal como estaba");
    return 0;
}
