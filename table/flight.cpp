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

} // namespace

void RecorreVuelo(const Punto& desde, const Punto& hasta,
                  const std::function<void(const Punto&)>& al_pasar) {
    const bool pantalla = plataforma().HayPantalla();
    if (!pantalla && !HayTraza() && FactorPausa(estado.VelocidadJuego) == 0)
        return; // nobody looks and no time passes
    const int caminoX = hasta.x - desde.x, caminoY = hasta.y - desde.y;
    Eje x{desde.x, hasta.x, PasoDelEje(caminoX, caminoY)};
    Eje y{desde.y, hasta.y, PasoDelEje(caminoY, caminoX)};
    while (x.donde != x.fin || y.donde != y.fin) {
        MarcaPausaAhora();
        x.Avanza();
        y.Avanza();
        if (pantalla) {
            al_pasar({x.donde, y.donde});
            plataforma().Repinta();
        }
        Pausa(kPausaCuadro);
    }
}

void MueveCarta(Carta carta, const Sitio& desde, const Sitio& hasta, bool tapada) {
    Traza("MoverCarta", carta.palo, carta.valor, desde.x, desde.y, desde.orientacion, desde.cara,
          hasta.x, hasta.y, hasta.orientacion, hasta.cara, tapada ? 1 : 0);
    const ImagenCarta imagen{.palo = carta.palo,
                             .valor = carta.valor,
                             .cara = hasta.cara,
                             .orientacion = hasta.orientacion,
                             .tapada = tapada};
    const Punto salida{desde.x, desde.y}, llegada{hasta.x, hasta.y};
    if (salida != llegada) {
        Sonido(1, sonido::kDespega);
        RecorreVuelo(salida, llegada, [&imagen](const Punto& donde) {
            plataforma().Vuela(donde.x, donde.y, imagen);
        });
    }
    if (plataforma().HayPantalla()) {
        plataforma().Posa();
        plataforma().LienzoDe(Control::Mesa, 0).Carta(hasta.x, hasta.y, imagen);
        plataforma().Repinta();
    }
    Sonido(0, sonido::kPosa);
}
