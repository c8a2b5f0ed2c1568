#include "table/waiting.h"

#include "core/game_state.h"
#include "core/session_state.h"
#include "table/announcements.h"
#include "table/button_column.h"
#include "table/controls.h"
#include "table/frames.h"

namespace {

Despacho el_despacho = nullptr;

// What happens even when the match has been left: the table must keep its size, the desktop its word.
bool SiempreVale(const Evento& evento) {
    return evento.tipo == TipoEvento::Tamano || evento.tipo == TipoEvento::Termina;
}

void Atiende(const Evento& evento) {
    if (sesion.peticion == Peticion::Ninguna || SiempreVale(evento))
        el_despacho(evento);
    else if (evento.tipo == TipoEvento::CierraVentana)
        sesion.cierre_pendiente = true;
}

} // namespace

void RegistraDespacho(Despacho despacho) {
    el_despacho = despacho;
}

void AtiendeCierrePendiente() {
    const bool toca = sesion.cierre_pendiente && BotonHabilitado(kBotonSalir) &&
                      sesion.peticion == Peticion::Ninguna;
    if (!toca)
        return;
    sesion.cierre_pendiente = false;
    Atiende({.tipo = TipoEvento::CierraVentana});
}

void PaseDeEventos(Pase pase) {
    AtiendeCierrePendiente();
    plataforma().Bombea();
    while (const auto evento = plataforma().SiguienteEvento(pase))
        Atiende(*evento);
}

bool EsperaHasta(bool (*lista)()) {
    while (!lista()) {
        AtiendeCierrePendiente();
        if (!PartidaSigue())
            return false;
        RevisaMarcos();
        if (!plataforma().EsperaEvento()) {
            sesion.sin_eventos = true;
            estado.PartidaEnCurso = false;
            return false;
        }
        PaseDeEventos(Pase::DeEspera);
    }
    return PartidaSigue();
}

bool EsperaContinuar() {
    return EsperaContinuar([] { return !estado.EsperandoJugada; });
}

bool EsperaContinuar(bool (*hecha)()) {
    PedirContinuar(1);
    DiAQuienSeEspera();
    if (!EsperaHasta(hecha))
        return false;
    // A card that was clicked ends the wait too, and the words on the button are of the seat that has played.
    if (!estado.PausaEntreJugadas)
        Oculta(Control::Pic_BotContinuar);
    return true;
}
