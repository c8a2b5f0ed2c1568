#include "core/game_state.h"

#include "core/text.h"

EstadoJuego estado;

namespace {

void Avanza(Integer& asiento, Integer paso) {
    asiento = static_cast<Integer>(asiento + paso);
    if (asiento == 5)
        asiento = 1;
    if (asiento == 0)
        asiento = 4;
}

void PonAsientosPorDefecto() {
    constexpr Integer kNivel[] = {0, 50, 50, 50, 100};
    constexpr Integer kCaracter[] = {0, kMedio, kAgresivo, kConservador, kMedio};
    for (int asiento = 1; asiento <= 4; ++asiento) {
        const bool persona = asiento == 4;
        estado.NombreJugador(asiento) = "Jugador" + Numero(asiento);
        estado.NivelJugador(asiento) = kNivel[asiento];
        estado.EstadoJugador(asiento) = kActivado;
        estado.CartasJugador(asiento) = persona ? kVisibles : kOcultas;
        estado.ControlJugador(asiento) = persona ? kManual : kAutomatico;
        estado.CaracterJugador(asiento) = kCaracter[asiento];
    }
}

void PonReglasPorDefecto() {
    estado.PausaEntreJugadas = true;
    estado.SentidoJuego = kDirecto;
    estado.PasoSentido = 1;
    estado.VentanaInfo = 1;
    estado.SistemaReparto = kAutomatico;
    estado.ModalidadJuego = kIndividual;
    estado.ComodinesJuego = 1;
    estado.CartasBaraja = 1;
    estado.LeyApertura = 1;
    estado.RestoInicial = 200;
    estado.ApuestaSalida = 5;
    estado.ApuestaMaxima = 25;
    estado.LimitePartida = 3;
    estado.NumJugadores = 4;
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

void PonValoresPorDefecto() {
    PonAsientosPorDefecto();
    PonReglasPorDefecto();
    estado.PartidaEnCurso = false;
    estado.ManoEnCurso = false;
    estado.JuegosJugados = 0;
}
