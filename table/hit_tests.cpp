#include "table/hit_tests.h"

#include "core/game_state.h"
#include "core/numeric.h"
#include "table/layout.h"
#include "table/spread_layout.h"

namespace {

bool Dentro(int v, int desde, int hasta) {
    return v >= desde && v <= hasta;
}

bool EnLaFranja(int asiento, int x, int y, int cartas) {
    const Rectangulo franja = FranjaMano(asiento, cartas);
    return Dentro(x, franja.x, franja.x + franja.ancho - 1) &&
           Dentro(y, franja.y, franja.y + franja.alto - 1);
}

bool EnLaCarta(int asiento, int lugar, int cartas, int x, int y) {
    ColocarCarta(asiento, lugar, cartas);
    const bool acostada = AsientoLateral(asiento);
    const int ancho = acostada ? kAltoCarta : kAnchoCarta;
    const int alto = acostada ? kAnchoCarta : kAltoCarta;
    return Dentro(x, estado.CartaX, estado.CartaX + ancho - 1) &&
           Dentro(y, estado.CartaY, estado.CartaY + alto - 1);
}

// The number of a pitch, 0 beyond the last and in the gap at its end.
Integer FilaDePaso(int distancia, int paso, int cuantas) {
    if (distancia < 0 || distancia / paso >= cuantas || distancia % paso >= paso - kHuecoReparto)
        return 0;
    return EnteroDe(distancia / paso + 1);
}

} // namespace

void DetectaZonaCartas(int x, int y) {
    estado.ZonaBajoCursor = 0;
    const auto enFila = [&](int s) { return Dentro(y, estado.MesaArriba(s), estado.MesaAbajo(s)); };
    const auto enColumna = [&](int s) {
        return Dentro(x, estado.MesaIzquierda(s), estado.MesaDerecha(s));
    };
    if (x <= estado.MesaDerecha(1) && enFila(1))
        estado.ZonaBajoCursor = 1;
    if (enColumna(2) && y <= estado.MesaAbajo(2))
        estado.ZonaBajoCursor = 2;
    if (x >= estado.MesaIzquierda(3) && enFila(3))
        estado.ZonaBajoCursor = 3;
    if (enColumna(4) && y >= estado.MesaArriba(4))
        estado.ZonaBajoCursor = 4;
}

void DetectaJdorYCar(int x, int y) {
    estado.AsientoBajoCursor = 0;
    estado.CartaBajoCursor = 0;
    for (Integer asiento = 1; asiento <= 4; ++asiento) {
        const Integer cartas = estado.NumCartas(asiento, estado.SerieActual);
        if (cartas == 0 || !EnLaFranja(asiento, x, y, cartas))
            continue;
        estado.AsientoBajoCursor = asiento;
        estado.CartaBajoCursor = 0;
        for (Integer lugar = 1; lugar <= cartas; ++lugar) {
            if (EnLaCarta(asiento, lugar, cartas, x, y))
                estado.CartaBajoCursor = lugar;
        }
    }
}

void HallaFilyCol(int x, int y) {
    estado.FilaReparto = FilaDePaso(y - estado.ReparteY, PasoFila(), estado.FilasReparto);
    estado.ColumnaReparto = FilaDePaso(x - estado.ReparteX, kPasoColumna, estado.CartasImagen / 4);
}
