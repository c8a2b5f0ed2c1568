#include "table/game_row.h"

#include <array>
#include <stdexcept>

#include "core/game_state.h"

namespace {

constexpr int kUltimoJuego = 99;

struct Registro {
    std::vector<const FilaJuego*> filas;
    // Asked for at every step of every game.
    std::array<const FilaJuego*, kUltimoJuego + 1> por_numero{};
};

// Whoever fills it may do so before main begins.
constinit Registro registro;

void Exige(bool cumple, const FilaJuego& fila, const char* falta) {
    if (!cumple) {
        throw std::invalid_argument("el juego " + std::to_string(fila.id) + " (" + fila.nombre +
                                    ") " + falta);
    }
}

void Revisa(const FilaJuego& fila, const Registro& vistos) {
    Exige(fila.id >= 1 && fila.id <= kUltimoJuego, fila, "no tiene un número de 1 a 99");
    Exige(vistos.por_numero[static_cast<std::size_t>(fila.id)] == nullptr, fila,
          "tiene el número de otro");
    Exige(fila.nombre[0] != '\0', fila, "no tiene nombre");
    Exige(fila.baraja.prepara != nullptr, fila, "no tiene baraja");
    Exige(fila.driver != nullptr || fila.sin_terminar, fila, "no tiene quien lo juegue");
}

} // namespace

void UsaJuegos(const std::vector<const FilaJuego*>& filas) {
    Registro nuevo;
    for (const FilaJuego* fila : filas) {
        Revisa(*fila, nuevo);
        nuevo.filas.push_back(fila);
        nuevo.por_numero[static_cast<std::size_t>(fila->id)] = fila;
    }
    registro = std::move(nuevo);
}

const std::vector<const FilaJuego*>& FilasDeJuegos() {
    if (registro.filas.empty())
        throw std::logic_error("la mesa no tiene juegos todavía");
    return registro.filas;
}

const FilaJuego* FilaDe(Integer juego) {
    return juego < 0 || juego > kUltimoJuego ? nullptr
                                             : registro.por_numero[static_cast<std::size_t>(juego)];
}

const FilaJuego& JuegoEnMesa() {
    const FilaJuego* fila = FilaDe(estado.JuegoActivo);
    if (fila == nullptr)
        throw std::logic_error("JuegoActivo no es ningún juego");
    return *fila;
}

bool PorParejas() {
    return estado.ModalidadJuego == kDosParejas && !JuegoEnMesa().dinero.hay;
}

bool SePuedeJugar(const FilaJuego& juego) {
    return juego.driver != nullptr;
}
