#include "forms/spin.h"

#include <algorithm>
#include <array>

#include "core/default_settings.h"
#include "core/game_state.h"
#include "core/text.h"

SpinDeTrabajo spin;

namespace {

struct Fila {
    const char* rotulo;
    Integer EstadoJuego::*ajuste;
    LimitesRegla limites;
    Integer paso;
};

constexpr std::array kFilas{
    Fila{"Resto inicial...:", &EstadoJuego::RestoInicial, kLimitesRestoInicial, 5},
    Fila{"Apuesta de salida...:", &EstadoJuego::ApuestaSalida, kLimitesApuestaSalida, 1},
    Fila{"Apuesta máxima...:", &EstadoJuego::ApuestaMaxima, kLimitesApuestaMaxima, 5},
    Fila{"Límite de la partida...:", &EstadoJuego::LimitePartida, kLimitesLimitePartida, 1},
};

const Fila& FilaDeSpin(int indice) {
    return kFilas[static_cast<std::size_t>(indice - kPrimerSpin)];
}

bool SoloDigitos(std::string_view texto) {
    return !texto.empty() &&
           std::ranges::all_of(texto, [](char c) { return c >= '0' && c <= '9'; });
}

} // namespace

bool EsSpin(int indice) {
    return indice >= kPrimerSpin && indice <= kUltimoSpin;
}

const char* RotuloSpin(int indice) {
    return EsSpin(indice) ? FilaDeSpin(indice).rotulo : "";
}

void LimitesSpin(int indice) {
    if (!EsSpin(indice))
        return;
    const Fila& fila = FilaDeSpin(indice);
    spin = {.valor = estado.*fila.ajuste,
            .minimo = fila.limites.minimo,
            .maximo = fila.limites.maximo,
            .paso = fila.paso};
}

void ActualizaSpin(int indice) {
    if (EsSpin(indice))
        estado.*FilaDeSpin(indice).ajuste = spin.valor;
}

bool PasoSpin(int indice, bool sube) {
    if (!EsSpin(indice))
        return false;
    LimitesSpin(indice);
    if (sube ? spin.valor >= spin.maximo : spin.valor <= spin.minimo)
        return false;
    const int valor = spin.valor + (sube ? spin.paso : -spin.paso);
    spin.valor = static_cast<Integer>(valor - valor % spin.paso);
    ActualizaSpin(indice);
    return true;
}

Integer NumeroTecleado(std::string_view texto, Integer maximo) {
    const std::string cifras = Recorta(texto);
    if (!SoloDigitos(cifras))
        return 0;
    int numero = 0;
    for (char cifra : cifras)
        numero = std::min(numero * 10 + (cifra - '0'), static_cast<int>(maximo));
    return static_cast<Integer>(numero);
}

void EncajaSpin(int indice) {
    LimitesSpin(indice);
    spin.valor = std::clamp(spin.valor, spin.minimo, spin.maximo);
    ActualizaSpin(indice);
}
