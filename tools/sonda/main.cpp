// sonda: the line console of the game. Commands on standard input, answers on standard output; the exit
// status is 1 when a line could not be carried out.

#include <CLI/CLI.hpp>

#include <iostream>

#include "tools/common/program_files.h"
#include "tools/sonda/console.h"
#include "tools/sonda/picture_view.h"

// What nobody catches ends the tool with its words, as it should.
int main(int argc, char** argv) { // NOLINT(bugprone-exception-escape)
    CLI::App app{"Consola de líneas de la lógica de los juegos"};
    std::string carpeta;
    app.add_option("--carpeta", carpeta, "carpeta de los ficheros, en vez de la memoria");
    CLI11_PARSE(app, argc, argv);

    PlataformaSinPantalla mesa;
    InstalaFicherosDelPrograma(mesa, CarpetaDeDatos());
    if (!carpeta.empty())
        mesa.UsaCarpeta(carpeta);
    Consola consola(mesa, std::cout, PintorDe(mesa));
    for (std::string linea; std::getline(std::cin, linea);)
        consola.Linea(linea);
    return consola.HuboErrores() ? 1 : 0;
}
