// The lines of the console, of any bytes: each is carried out or refused, and the console goes on.

#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <sstream>
#include <string>
#include <string_view>

#include "tools/sonda/console.h"

namespace {

constexpr int kLineas = 60; // the whole state on every line would be nothing but slow

// What plays, shuffles or waits needs a state that makes sense, and may go on for ever without one; these take
// any state at all.
constexpr std::array kSinJugar{
    "SiguienteAsiento", "AsientoAnterior",   "ActivarAsientos",   "RestoDe",
    "ApuestaTotal",     "Desglosa",          "AsignarResto",      "RestauraMano",
    "PuntosSerie",      "DetectaJdorYCar",   "DetectaZonaCartas", "HallaFilyCol",
    "ColocarCarta",     "MostrarSugerencia", "Mensaje",           "Sonido",
    "ExaminaMano",      "CuentaPalo",        "BuscaCarta",        "PotenciaCarta",
    "CompactarMano",    "LeerIniGeneral",    "GrabarIniGeneral",  "RepartePremios"};

bool SePuedeLlamar(std::string_view nombre) {
    for (const char* uno : kSinJugar) {
        if (nombre.starts_with(uno))
            return true;
    }
    return false;
}

// The name behind an order, empty where the line has none.
std::string_view TrasLaOrden(std::string_view linea) {
    const std::size_t blanco = linea.find_first_of(" \t");
    const std::size_t nombre = linea.find_first_not_of(" \t", blanco);
    return nombre == std::string_view::npos ? "" : linea.substr(nombre);
}

bool Vale(std::string_view linea) {
    const std::size_t principio = linea.find_first_not_of(" \t\r");
    if (principio == std::string_view::npos)
        return true;
    const std::string_view orden = linea.substr(principio);
    if (orden.starts_with("pasa"))
        return false;
    return !orden.starts_with("llama") || SePuedeLlamar(TrasLaOrden(orden));
}

// A refused line is answered with one line of its own and its number.
void ExigeRespuesta(const std::string& respuesta, bool fallo, int numero) {
    const std::string queja = "error: línea " + std::to_string(numero) + ": ";
    const bool quejada = respuesta.find(queja) != std::string::npos;
    if (quejada != fallo) {
        std::fprintf(stderr, "línea %d: %s\n", numero, respuesta.c_str());
        std::abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t n) {
    PlataformaSinPantalla mesa;
    std::ostringstream salida;
    Consola consola(mesa, salida);
    std::istringstream entrada(std::string(reinterpret_cast<const char*>(datos), n));
    int numero = 0;
    bool fallos = false;
    for (std::string linea; numero < kLineas && std::getline(entrada, linea);) {
        if (!Vale(linea))
            continue;
        salida.str("");
        consola.Linea(linea);
        ++numero;
        if (!fallos && linea.find("eco") == std::string::npos)
            ExigeRespuesta(salida.str(), consola.HuboErrores(), numero);
        fallos = consola.HuboErrores();
    }
    return 0;
}
