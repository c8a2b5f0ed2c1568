#include "table/flight.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "core/game_state.h"
#include "core/numeric.h"
#include "platform/platform.h"
#include "table/layout.h"
#include "table/messages.h"
#include "table/sounds.h"
#include "table/trace.h"

namespace {

constexpr int kPasoVuelo = 26; // pixels a frame along the longer way
constexpr int kPausaCuadro = 12;

struct Eje {
    int donde, fin, paso;

    void Avanza() {
        donde += paso;
        const bool pasado = paso > 0 ? donde > fin : donde < fin;
        if (paso != 0 && pasado) {
            donde = fin;
            paso = 0;
        }
    }
};

// The step of one way: 26 pixels for the longer, in proportion for the shorter; a way too short for a step
// of its own is gone at once.
int PasoDelEje(int camino, int otro) {
    if (camino == 0)
        return 0;
    if (std::abs(camino) >= std::abs(otro))
        return camino > 0 ? kPasoVuelo : -kPasoVuelo;
    const int paso = Redondea(static_cast<double>(camino) * kPasoVuelo / std::abs(otro));
    return paso == 0 ? camino : paso;
}

void Vuela(Eje x, Eje y, const ImagenCarta& carta) {
    const bool pantalla = plataforma().HayPantalla();
    if (!pantalla && !HayTraza() && FactorPausa(estado.VelocidadJuego) == 0)
        return; // nobody looks and no time passes
    while (x.donde != x.fin || y.donde != y.fin) {
        MarcaPausaAhora();
        x.Avanza();
        y.Avanza();
        if (pantalla) {
            plataforma().Vuela(x.donde, y.donde, carta);
            plataforma().Repinta();
        }
        Pausa(kPausaCuadro);
    }
}

} // namespace

void MueveCarta(Carta carta, const Sitio& desde, const Sitio& hasta, bool tapada) {
    Traza("MoverCarta", carta.palo, carta.valor, desde.x, desde.y, desde.orientacion, desde.cara,
          hasta.x, hasta.y, hasta.orientacion, hasta.cara, tapada ? 1 : 0);
    const ImagenCarta imagen{.palo = carta.palo,
                             .valor = carta.valor,
                             .cara = hasta.cara,
                             .orientacion = hasta.orientacion,
                             .tapada = tapada};
    const int caminoX = hasta.x - desde.x;
    const int caminoY = hasta.y - desde.y;
    if (caminoX != 0 || caminoY != 0) {
        Sonido(1, sonido::kDespega);
        Vuela({desde.x, hasta.x, PasoDelEje(caminoX, caminoY)},
              {desde.y, hasta.y, PasoDelEje(caminoY, caminoX)}, imagen);
    }
    if (plataforma().HayPantalla()) {
        plataforma().Posa();
        plataforma().LienzoDe(Control::Mesa, 0).Carta(hasta.x, hasta.y, imagen);
        plataforma().Repinta();
    }
    Sonido(0, sonido::kPosa);
}
