// The flight of a card.

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "core/game_state.h"
#include "core/numeric.h"
#include "table/layout.h"
#include "table/messages.h"
#include "table/table_ops.h"
#include "table/trace.h"

namespace {

constexpr int kPasoVuelo = 26; // pixels a frame along the longer way
constexpr int kPausaCuadro = 12;
constexpr int kSonidoDespega = 24, kSonidoPosa = 25;

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

void MoverCarta(int palo, int valor, int desdeX, int desdeY, int desdeOrientacion, int desdeCara,
                int hastaX, int hastaY, int hastaOrientacion, int hastaCara, int tapada) {
    Traza("MoverCarta", palo, valor, desdeX, desdeY, desdeOrientacion, desdeCara, hastaX, hastaY,
          hastaOrientacion, hastaCara, tapada);
    const ImagenCarta carta{.palo = EnteroDe(palo),
                            .valor = EnteroDe(valor),
                            .cara = EnteroDe(hastaCara),
                            .orientacion = EnteroDe(hastaOrientacion),
                            .tapada = tapada == 1};
    const int caminoX = hastaX - desdeX;
    const int caminoY = hastaY - desdeY;
    if (caminoX != 0 || caminoY != 0) {
        Sonido(1, kSonidoDespega);
        Vuela({desdeX, hastaX, PasoDelEje(caminoX, caminoY)},
              {desdeY, hastaY, PasoDelEje(caminoY, caminoX)}, carta);
    }
    if (plataforma().HayPantalla()) {
        plataforma().Posa();
        plataforma().LienzoDe(Control::Mesa, 0).Carta(hastaX, hastaY, carta);
        plataforma().Repinta();
    }
    Sonido(0, kSonidoPosa);
}
