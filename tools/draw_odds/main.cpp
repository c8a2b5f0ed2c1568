// Writes the odds of the draw at Póker, the data file that the program reads beside itself:
//   draw_odds assets/tables/PkFDes.ZOV

#include <CLI/CLI.hpp>
#include <cstdio>

#include "core/files.h"
#include "platform/headless/headless_platform.h"
#include "tools/draw_odds/odds.h"

int main(int argc, char** argv) {
    CLI::App opciones("Escribe las probabilidades del descarte en el Póker.");
    std::string ruta;
    opciones.add_option("FICHERO", ruta, "donde se escribe")->required();
    CLI11_PARSE(opciones, argc, argv);

    PlataformaSinPantalla mesa;
    UsaPlataforma(mesa);
    const std::string fichero =
        HazFichero([](int registros) { std::fprintf(stderr, "%d registros\n", registros); });
    ArchivosDisco disco;
    if (disco.Escribe(ruta, fichero) == ErrorArchivo::Ninguno)
        return 0;
    std::fprintf(stderr, "draw_odds: no se puede escribir %s\n", ruta.c_str());
    return 1;
}
