#include "games/poker/seat_turn.h"

#include "core/game_state.h"
#include "core/session_state.h"
#include "games/common/card_turn.h"
#include "games/poker/poker_state.h"
#include "platform/canvas.h"
#include "table/controls.h"
#include "table/seat_drawing.h"
#include "table/waiting.h"

bool TieneCartas(Integer asiento) {
    return estado.NumCartas(asiento, kSeriePoker) > 0;
}

void CuentaJugadoresEnMano() {
    estado.JugadoresEnMano = 0;
    for (Integer asiento = 1; asiento <= 4; ++asiento)
        estado.JugadoresEnMano =
            static_cast<Integer>(estado.JugadoresEnMano + (TieneCartas(asiento) ? 1 : 0));
}

void PasaAlSiguienteConCartas() {
    int pasos = 0;
    do {
        SiguienteAsiento(estado.JugadorActual);
        ++pasos;
    } while (pasos < 4 && !TieneCartas(estado.JugadorActual));
}

bool AnunciaTurno() {
    estado.CursorTabla = 0;
    CambiarCursor(Control::Mesa, 0, Puntero::Flecha);
    PaseDeEventos(Pase::DePaso);
    if (!PartidaSigue())
        return false;
    estado.RotuloSerie(estado.JugadorActual, kSeriePoker).clear();
    ResaltarAsiento();
    return true;
}

void PonRotulo(Integer asiento, const std::string& texto) {
    estado.RotuloSerie(asiento, kSeriePoker) = texto;
    estado.ColorRotulo(asiento, kSeriePoker) = color::kBlanco;
    estado.ParpadeoRotulo(asiento, kSeriePoker) = 0;
    RedibujarAsiento(asiento);
}

void RedibujaLosQueJuegan() {
    for (Integer asiento = 1; asiento <= 4; ++asiento) {
        if (TieneCartas(asiento))
            RedibujarAsiento(asiento);
    }
}
