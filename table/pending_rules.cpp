#include "table/pending_rules.h"

#include "core/game_state.h"
#include "core/session_state.h"
#include "table/deck.h"

namespace {

bool ManoEnMarcha() {
    return !estado.RepartoEnCurso && (estado.ManoEnCurso || sesion.orden_firme > 0);
}

void PonSentido() {
    estado.PasoSentido = static_cast<Integer>(estado.SentidoJuego == kInverso ? -1 : 1);
    sesion.sentido_pendiente = false;
}

} // namespace

void CambiaSentido() {
    sesion.sentido_pendiente = true;
    if (!ManoEnMarcha())
        PonSentido();
}

void CambiaBaraja() {
    sesion.baraja_pendiente = true;
    if (!ManoEnMarcha())
        RehazBaraja();
}

void RehazBaraja() {
    ConstruirBaraja();
    sesion.baraja_pendiente = false;
}

void AplicaReglasPendientes() {
    if (sesion.sentido_pendiente)
        PonSentido();
    if (sesion.baraja_pendiente)
        RehazBaraja();
}

int PasoDeLaProximaMano() {
    if (!sesion.sentido_pendiente)
        return estado.PasoSentido;
    return estado.SentidoJuego == kInverso ? -1 : 1;
}
