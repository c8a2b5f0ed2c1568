#include "games/common/trick_state.h"

EstadoBazas bazas;

void BorraBazas() {
    bazas.CartaCambio = 0;
    bazas.Arrastre = false;
    bazas.TuteCantado = false;
    bazas.CartaEnMesa.Borra();
    bazas.TantosJugador.Borra();
    bazas.PaloCantado.Borra();
    bazas.CartaJugada.Borra();
    bazas.FallaPalo.Borra();
    bazas.RegistroBazas.Borra();
    bazas.GanadorDeBaza.Borra();
    bazas.TantosDeBaza.Borra();
    bazas.CartasJugables.Borra();
    bazas.NumJugables = 0;
}

void OlvidaBazas() {
    bazas.CartaJugada.Borra();
    bazas.CartaEnMesa.Borra();
    bazas.TuteCantado = false;
}
