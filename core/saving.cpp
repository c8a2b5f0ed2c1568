#include "core/saving.h"

#include "core/game_state.h"
#include "core/session_state.h"
#include "core/settings.h"
#include "platform/platform.h"
#include "table/messages.h"

bool GuardarPartida() {
    if (!plataforma().GuardaPartidas())
        return true;
    const bool general = GrabarIniGeneral() == ErrorArchivo::Ninguno;
    const bool juego = GrabarIniJuego() == ErrorArchivo::Ninguno;
    if (general && juego) {
        return true;
    }
    if (!sesion.fallo_contado) {
        sesion.fallo_contado = true;
        const std::string texto =
            "No se ha podido grabar el fichero " +
            (general ? NombreIniJuego(estado.JuegoActivo) : std::string("ZOV31.INI")) +
            ". Compruebe que se puede escribir en la carpeta " + estado.CarpetaPrograma + ".";
        Mensaje("Error al guardar los datos", texto, LineasDe(texto), 1);
    }
    return false;
}
