// The file of a game, of any bytes; the first byte says of which game.

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <iterator>

#include "games/game_rows.h"
#include "tests/support/settings_files.h"
#include "tests/support/valid_settings.h"

namespace {

// The repair of a file asks the row of its game.
struct ConJuegos {
    ConJuegos() { UsaJuegos(LosJuegos()); }
};

constexpr Integer kJuegos[]{kPoker, kBlackJack, kTute, kBrisca, kSieteYMedia, kCinquillo};

void Exige(bool cumple, const char* que) {
    if (!cumple) {
        std::fprintf(stderr, "no se cumple: %s\n", que);
        std::abort();
    }
}

void ExigeEstadoValido(std::size_t avisos, prueba::SesionConArchivos& mesa) {
    const std::string fallo = prueba::FalloDeAjustesDeJuego();
    Exige(fallo.empty(), fallo.c_str());
    Exige(mesa.Mensajes().size() == avisos, "un aviso por archivo");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t n) {
    static const ConJuegos juegos;
    static prueba::SesionConArchivos mesa;
    if (n == 0)
        return 0;
    mesa.Empieza(kJuegos[datos[0] % std::size(kJuegos)]);
    const std::string contenido(reinterpret_cast<const char*>(datos + 1), n - 1);
    const std::string nombre = NombreIniJuego(estado.JuegoActivo);
    mesa.Memoria().contenidos.clear();
    mesa.Archivo(nombre) = contenido;

    LeerIniJuego();
    // A number that does not fit makes the file anew without a word.
    const std::size_t avisos = mesa.Mensajes().size();
    Exige(avisos <= (estado.FicheroNuevo ? 1U : 0U), "un aviso por archivo, a lo sumo");
    ExigeEstadoValido(avisos, mesa);
    const std::string danado = nombre.substr(0, nombre.size() - 4) + ".MAL";
    Exige(mesa.Hay(danado) == estado.FicheroNuevo, "el dañado se guarda");

    // What is written back is read without a word, and is the same.
    Exige(GrabarIniJuego() == ErrorArchivo::Ninguno, "se graba");
    const std::string grabado = mesa.Archivo(nombre);
    LeerIniJuego();
    ExigeEstadoValido(avisos, mesa);
    Exige(GrabarIniJuego() == ErrorArchivo::Ninguno, "se graba otra vez");
    Exige(mesa.Archivo(nombre) == grabado, "lo grabado no cambia");
    return 0;
}
