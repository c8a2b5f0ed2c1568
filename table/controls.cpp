#include "table/controls.h"

#include "table/trace.h"

void CambiarCursor(Control control, int indice, Puntero puntero) {
    Traza("CambiarCursor", NombreDe(control), NombreDe(puntero));
    plataforma().PonPuntero(control, indice, puntero);
}

void Oculta(Control control, int indice) {
    plataforma().Muestra(control, indice, false);
}

void OcultaTantos() {
    for (int asiento = 1; asiento <= 4; ++asiento)
        Oculta(Control::Pic_Tantos, asiento);
}
