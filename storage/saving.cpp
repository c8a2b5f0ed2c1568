#include "storage/saving.h"

#include "betting/stakes.h"
#include "core/game_state.h"
#include "core/session_state.h"
#include "platform/platform.h"
#include "storage/settings.h"
#include "table/game_row.h"
#include "table/messages.h"

namespace {

void CuentaFallo(const std::string& fichero) {
    if (sesion.fallo_contado)
        return;
    sesion.fallo_contado = true;
    const std::string texto = "No se ha podido grabar el fichero " + fichero +
                              ". Compruebe que se puede escribir en la carpeta " +
                              estado.CarpetaPrograma + ".";
    Mensaje("Error al guardar los datos", texto, LineasDe(texto), 1);
}

bool Guarda(ErrorArchivo (*graba)(), const std::string& fichero) {
    if (!plataforma().GuardaPartidas())
        return true;
    const bool hecho = graba() == ErrorArchivo::Ninguno;
    if (!hecho)
        CuentaFallo(fichero);
    return hecho;
}

bool GuardaGeneral() {
    return Guarda(GrabarIniGeneral, kIniGeneral);
}

bool GuardaJuego() {
    return Guarda(GrabarIniJuego, NombreIniJuego(estado.JuegoActivo));
}

} // namespace

bool GuardarPartida() {
    const bool general = GuardaGeneral();
    return GuardaJuego() && general;
}

void AnulaMano() {
    if (estado.RepartoEnCurso) {
        estado.RepartoEnCurso = false;
        estado.ManoEnCurso = false;
    }
    const FilaJuego* juego = FilaDe(estado.JuegoActivo);
    if (juego != nullptr && juego->dinero.hay && !sesion.mano_apuntada)
        RestauraMano();
}

void GuardarYCambiar(Integer juego) {
    GuardaJuego();
    estado.JuegoActivo = juego;
    GuardaGeneral();
}
