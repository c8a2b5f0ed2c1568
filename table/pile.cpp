#include "table/pile.h"

#include <algorithm>

#include "core/game_state.h"
#include "table/game_row.h"
#include "table/layout.h"
#include "table/table_view.h"
#include "table/trace.h"

namespace {

constexpr int kMargenMazo = 18, kAnchoCajaMazo = 133, kAltoCajaMazo = 155;
constexpr int kCartasPorDorso = 4; // one back is drawn for so many cards of a single deck
constexpr int kBajadaMazo = 13;

// Backs that are drawn for n cards.
int Dorsos(int n) {
    const int porDorso = kCartasPorDorso * std::max<int>(estado.MazosBaraja, 1);
    return (n + porDorso - 1) / porDorso;
}

} // namespace

Rectangulo CajaDelMazo() {
    return {estado.MazoX - kMargenMazo, estado.MazoY, kAnchoCajaMazo, kAltoCajaMazo};
}

Rectangulo LugarDelMazo() {
    const int dorsos = Dorsos(vista.cartas_mazo);
    if (dorsos == 0)
        return {};
    const Punto esquina = vista.mazo_centrado ? CentroDelMazo() : Punto{estado.MazoX, estado.MazoY};
    const int crece = dorsos - 1;
    return {esquina.x, esquina.y + kBajadaMazo - crece, kAnchoCarta + crece, kAltoCarta + crece};
}

void DibujarMazo(int x, int y, int n) {
    Traza("DibujarMazo", x, y, n);
    vista.cartas_mazo = n;
    if (!plataforma().HayPantalla())
        return;
    Lienzo& mesa = plataforma().LienzoDe(Control::Mesa, 0);
    mesa.Fieltro({x - kMargenMazo, y, kAnchoCajaMazo, kAltoCajaMazo});
    const FilaJuego& juego = JuegoEnMesa();
    if (juego.pintura.bajo_mazo != nullptr)
        juego.pintura.bajo_mazo(x, y);
    for (int k = 0; k < Dorsos(n); ++k)
        mesa.Carta(x + k, y + kBajadaMazo - k, {.cara = kDorso, .orientacion = 1});
}
