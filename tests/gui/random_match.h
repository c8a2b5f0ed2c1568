#pragma once
// The settings of a match for the monkey, and the words in which a failure tells of it.

#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "core/default_settings.h"
#include "core/game_state.h"
#include "core/session_state.h"
#include "session/state_blocks.h"
#include "storage/settings.h"
#include "table/game_row.h"
#include "tests/gui/random_hand.h"

namespace prueba {

struct Fallo : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// What a session is played with.
inline void PonAjustes() {
    const std::string carpeta = estado.CarpetaPrograma;
    BorraEstado();
    PonValoresPorDefecto();
    estado.SaltoLinea = "\r\n";
    estado.CarpetaPrograma = estado.CarpetaTrabajo = carpeta;
    std::vector<Integer> juegos;
    for (const FilaJuego* fila : FilasDeJuegos()) {
        if (SePuedeJugar(*fila))
            juegos.push_back(fila->id);
    }
    estado.JuegoActivo = UnoDe(juegos);
    estado.VelocidadJuego = UnoDe(std::vector<Integer>{100, 100, 99, 96, 50, 0});
    const AsientosDeJuego& asientos = FilaDe(estado.JuegoActivo)->asientos;
    const int activos = asientos.minimo + Hasta(4 - asientos.minimo);
    for (int asiento = 1; asiento <= 4; ++asiento) {
        const bool juega = asiento > 4 - activos;
        estado.EstadoJugador(asiento) = juega ? kActivado : kDesactivado;
        estado.ControlJugador(asiento) = DeCada(asiento == 4 ? 5 : 2) ? kAutomatico : kManual;
        const bool a_la_vista = estado.ControlJugador(asiento) == kManual || DeCada(2);
        estado.CartasJugador(asiento) = a_la_vista ? kVisibles : kOcultas;
        estado.NivelJugador(asiento) = static_cast<Integer>(Hasta(100));
    }
    CuentaJugadores();
    estado.ModalidadJuego =
        activos == 4 && !asientos.sin_parejas && DeCada(2) ? kDosParejas : kIndividual;
    estado.SistemaReparto = DeCada(3) ? kRepartoManual : kRepartoAutomatico;
    estado.PausaEntreJugadas = DeCada(2);
    estado.SentidoJuego = DeCada(2) ? kInverso : kDirecto;
    estado.VentanaInfo = DeCada(4) ? 2 : 1;
    estado.LimitePartida = static_cast<Integer>(1 + Hasta(2));
    sesion = {};
    if (GrabarIniGeneral() != ErrorArchivo::Ninguno || GrabarIniJuego() != ErrorArchivo::Ninguno)
        throw Fallo("no se pueden grabar los ajustes");
}

inline std::string DiAjustes() {
    std::string texto = std::string(JuegoEnMesa().nombre) + ", velocidad " +
                        std::to_string(estado.VelocidadJuego) + ", reparto " +
                        std::to_string(estado.SistemaReparto) + ", sentido " +
                        std::to_string(estado.SentidoJuego) + ", pausa " +
                        (estado.PausaEntreJugadas ? "sí" : "no") + ", asientos ";
    for (int asiento = 1; asiento <= 4; ++asiento)
        texto += estado.EstadoJugador(asiento) != kActivado  ? "-"
                 : estado.ControlJugador(asiento) == kManual ? "m"
                                                             : "a";
    return texto;
}

inline std::string DiMomento() {
    std::string texto = JuegoEnMesa().nombre;
    for (const auto& [nombre, puesta] : {std::pair{"PartidaEnCurso", estado.PartidaEnCurso},
                                         {"ManoEnCurso", estado.ManoEnCurso},
                                         {"RepartoEnCurso", estado.RepartoEnCurso},
                                         {"EsperandoJugada", estado.EsperandoJugada},
                                         {"ModoOrdenar", estado.ModoOrdenar}})
        texto += puesta ? std::string(", ") + nombre : "";
    return texto;
}

} // namespace prueba
