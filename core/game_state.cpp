#include "core/game_state.h"

EstadoJuego estado;

namespace {

void Avanza(Integer& asiento, Integer paso) {
    asiento = static_cast<Integer>(asiento + paso);
    if (asiento == 5)
        asiento = 1;
    if (asiento == 0)
        asiento = 4;
}

} // namespace

void RegistroJuego::Borra() {
    Inicio.clear();
    Marcas.Borra();
    for (std::string& texto : Texto1)
        texto.clear();
    for (std::string& texto : Texto2)
        texto.clear();
    Cifra.Borra();
    Total = 0;
}

void SiguienteAsiento(Integer& asiento) {
    Avanza(asiento, estado.PasoSentido);
}

void AsientoAnterior(Integer& asiento) {
    Avanza(asiento, static_cast<Integer>(-estado.PasoSentido));
}

void CuentaJugadores() {
    estado.NumJugadores = 0;
    for (int asiento = 1; asiento <= 4; ++asiento) {
        if (estado.EstadoJugador(asiento) == kActivado)
            ++estado.NumJugadores;
    }
    if (estado.NumJugadores != 4)
        estado.ModalidadJuego = kIndividual;
}

void VaciaMano(Integer asiento) {
    estado.NumCartas.BorraFila(asiento);
    estado.Mano.BorraFila(asiento);
}

void ActivarAsientos() {
    CuentaJugadores();
    for (Integer asiento = 1; asiento <= 4; ++asiento) {
        if (estado.EstadoJugador(asiento) != kActivado)
            VaciaMano(asiento);
    }
}
