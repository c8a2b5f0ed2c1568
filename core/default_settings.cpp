#include "core/default_settings.h"

#include "core/text.h"

namespace {

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
    for (const ReglaConLimites& regla : kReglas)
        estado.*regla.campo = regla.limites.defecto;
    estado.PausaEntreJugadas = true;
    estado.PasoSentido = 1;
    estado.NumJugadores = 4;
}

} // namespace

void PonValoresPorDefecto() {
    PonAsientosPorDefecto();
    PonReglasPorDefecto();
    estado.PartidaEnCurso = false;
    estado.ManoEnCurso = false;
    estado.JuegosJugados = 0;
}
