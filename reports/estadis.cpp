#include "reports/estadis.h"

#include <algorithm>

#include "core/game_state.h"
#include "table/game_row.h"
#include "table/messages.h"
#include "table/sounds.h"

namespace {

constexpr int kAncho = 750;      // the widest list, the tricks of a Tute of four
constexpr int kAltoMinimo = 320; // a page with next to nothing on it is still a page

bool abierta = false;

int AltoDe(const PaginaImpresa& pagina) {
    int fondo = kAltoMinimo;
    for (const Impreso& impreso : pagina.Impresos())
        fondo = std::max(fondo, impreso.y2 + 1);
    return fondo;
}

} // namespace

namespace estadis {

void Abre() {
    abierta = true;
}

bool Abierta() {
    return abierta;
}

void Cierra() {
    Sonido(0, sonido::kBoton);
    Deja();
}

void Deja() {
    abierta = false;
}

PaginaImpresa Pagina(int numero) {
    if (numero < 0 || numero > 1)
        LanzaIndiceFuera(1, numero, 1);
    PaginaImpresa pagina(kAncho, kAltoMinimo);
    const FilaJuego* const juego = FilaDe(estado.JuegoActivo);
    if (juego != nullptr && juego->informes.estadis != nullptr)
        juego->informes.estadis(pagina);
    pagina.PonAlto(AltoDe(pagina));
    return pagina;
}

} // namespace estadis
