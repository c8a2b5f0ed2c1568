#include "table/layout.h"

#include <algorithm>

#include "core/game_state.h"
#include "core/numeric.h"
#include "platform/platform.h"
#include "table/game_row.h"
#include "table/trace.h"

namespace {

constexpr int kAnchoMinimo = 800, kAltoMinimo = 600;
constexpr int kLargoZona = 250;
constexpr int kFondoZona = 160;
constexpr int kBanda =
    18; // between the table's edge and a card in line: the seat's name stands there
constexpr int kRealce = 20; // how far a raised card stands into the table
constexpr int kPasoFicha = 38;
constexpr int kAreasFichas = 15;

Integer Mitad(int total) {
    return Redondea(total / 2.0);
}

void CalculaZonas() {
    const auto ancho = estado.AnchoMesa;
    const auto alto = estado.AltoPantalla;
    const Integer lado = Mitad(alto - kLargoZona);
    const Integer frente = Mitad(ancho - kLargoZona);
    const auto pon = [](int asiento, int izquierda, int arriba, int derecha, int abajo) {
        estado.MesaIzquierda(asiento) = EnteroDe(izquierda);
        estado.MesaArriba(asiento) = EnteroDe(arriba);
        estado.MesaDerecha(asiento) = EnteroDe(derecha);
        estado.MesaAbajo(asiento) = EnteroDe(abajo);
    };
    pon(1, 0, lado, kFondoZona, lado + kLargoZona);
    pon(2, frente, 0, frente + kLargoZona, kFondoZona);
    pon(3, ancho - kFondoZona - 1, lado, ancho, lado + kLargoZona);
    pon(4, frente, alto - kFondoZona - 2, frente + kLargoZona, alto - 1);
}

// The box of an area: two columns of three stacks. A high stack grows upwards out of it.
constexpr int kAire = 4;
constexpr int kAnchoFichas = kPasoFicha + kLadoFicha, kAltoFichas = 2 * kPasoFicha + kLadoFicha;

// Beside the seat's zone, the first area or the second.
Punto FichasJunto(int asiento, bool segunda) {
    const int corrido = kAire + (segunda ? kAnchoFichas + kAire : 0);
    switch (asiento) {
    case 1:
        return {corrido, estado.MesaArriba(1) - kAltoFichas - kAire};
    case 2:
        return {segunda ? estado.MesaDerecha(2) + 2 * kAire
                        : estado.MesaIzquierda(2) - 2 * kAire - kAnchoFichas,
                kAire + kCreceFicha};
    case 3:
        return {estado.AnchoMesa - kAnchoFichas - corrido,
                estado.MesaArriba(3) - kAltoFichas - kAire};
    default:
        return {estado.MesaDerecha(4) + kAire + corrido, estado.AltoPantalla - kAire - kAltoFichas};
    }
}

// On the table before the seat's zone: beyond its caption and its buttons, or above them at the sides; a row of
// chips, with room for a plate towards the zone or above.
Punto FichasDelante(int asiento) {
    constexpr int kDesdeLaZona = 36, kMasAllaDeLosBotones = 49, kAltoDelRotulo = 17;
    const int enMedio = estado.CentroX - kAnchoFichas / 2;
    const int alLado = estado.MesaArriba(1) + 34 + kAltoDelRotulo + kCreceFicha;
    switch (asiento) {
    case 1:
        return {estado.MesaDerecha(1) + kDesdeLaZona, alLado};
    case 2:
        return {enMedio, estado.MesaAbajo(2) + kMasAllaDeLosBotones + kAltoDelRotulo + kCreceFicha};
    case 3:
        return {estado.MesaIzquierda(3) - kDesdeLaZona - kAnchoFichas, alLado};
    default:
        return {enMedio, estado.MesaArriba(4) - kMasAllaDeLosBotones - kAltoDelRotulo - kLadoFicha};
    }
}

// The corner of the first stack of an area: areas 0..3 and 4..7 stand beside the zones of seats 1..4, 8..11 before
// them, 12 to 14 in the middle.
Punto EsquinaFichas(int area) {
    if (area >= 12) {
        return {estado.CentroX - kAnchoFichas / 2 + (area - kAreaBote) * 3 * kPasoFicha,
                estado.CentroY - (kAltoFichas - kCreceFicha) / 2};
    }
    const int asiento = area % 4 + 1;
    return area >= kAreaApuestas ? FichasDelante(asiento) : FichasJunto(asiento, area >= 4);
}

void CalculaFichas() {
    for (int area = 0; area < kAreasFichas; ++area) {
        const Punto esquina = EsquinaFichas(area);
        for (int ficha = 1; ficha <= 6; ++ficha) {
            estado.PosFichaX(area, ficha) = EnteroDe(esquina.x + (ficha - 1) / 3 * kPasoFicha);
            estado.PosFichaY(area, ficha) = EnteroDe(esquina.y + (ficha - 1) % 3 * kPasoFicha);
        }
    }
}

int PasoDe(int cartas) {
    constexpr int kReparto = kLargoZona - kAnchoCarta; // what the overlaps share out
    return cartas < 2 ? kAnchoCarta : std::min(kReparto / (cartas - 1), kAnchoCarta);
}

int LargoFranja(int cartas) {
    return PasoDe(cartas) * (cartas - 1) + kAnchoCarta;
}

// Along the edge, from the left or from the top, to the place's corner.
Integer ALoLargo(int principio, int lugar, int cartas) {
    return Redondea(principio + (kLargoZona - LargoFranja(cartas)) / 2.0 +
                    PasoDe(cartas) * (lugar - 1));
}

} // namespace

void CalculaLugares() {
    estado.AnchoPantalla = EnteroDe(std::max(plataforma().AnchoVentana(), kAnchoMinimo));
    estado.AltoPantalla = EnteroDe(std::max(plataforma().AltoVentana(), kAltoMinimo));
    estado.AnchoMesa = EnteroDe(estado.AnchoPantalla - kAnchoBotonera);
    estado.AltoMesa = estado.AltoPantalla;
    estado.CentroX = Mitad(estado.AnchoMesa);
    estado.CentroY = Mitad(estado.AltoPantalla);
    CalculaZonas();
    CalculaFichas();
}

bool AsientoLateral(int asiento) {
    return asiento == 1 || asiento == 3;
}

Integer OrientacionDe(int asiento) {
    return EnteroDe(estado.OrientacionAsiento(asiento) % 4 + 1);
}

Rectangulo CajaDeCarta(int asiento, int lugar, int cartas) {
    const int n = std::max(cartas, 1);
    const bool levantada = estado.Mano(asiento, estado.SerieActual, lugar, kAltura) == kLevantada;
    const int adentro = kBanda + (levantada ? kRealce : 0);
    if (AsientoLateral(asiento)) {
        return {asiento == 1 ? adentro : estado.AnchoMesa - adentro - kAltoCarta,
                ALoLargo(estado.MesaArriba(asiento), lugar, n), kAltoCarta, kAnchoCarta};
    }
    return {ALoLargo(estado.MesaIzquierda(asiento), lugar, n),
            asiento == 2 ? adentro : estado.AltoMesa - adentro - kAltoCarta, kAnchoCarta,
            kAltoCarta};
}

Rectangulo CartaALaVista(int asiento, int lugar, int cartas) {
    Rectangulo caja = CajaDeCarta(asiento, lugar, cartas);
    if (lugar < cartas)
        (AsientoLateral(asiento) ? caja.alto : caja.ancho) = PasoDe(cartas);
    return caja;
}

void ColocarCarta(int asiento, int lugar, int cartas) {
    Traza("ColocarCarta", asiento, lugar, cartas);
    const Rectangulo caja = CajaDeCarta(asiento, lugar, cartas);
    estado.CartaX = EnteroDe(caja.x);
    estado.CartaY = EnteroDe(caja.y);
}

Rectangulo FranjaMano(int asiento, int cartas) {
    const int n = std::max(cartas, 1);
    const Rectangulo zona = ZonaDe(asiento);
    if (AsientoLateral(asiento))
        return {zona.x, ALoLargo(estado.MesaArriba(asiento), 1, n), zona.ancho, LargoFranja(n)};
    return {ALoLargo(estado.MesaIzquierda(asiento), 1, n), zona.y, LargoFranja(n), zona.alto};
}

Rectangulo ZonaDe(int asiento) {
    return {estado.MesaIzquierda(asiento), estado.MesaArriba(asiento),
            estado.MesaDerecha(asiento) - estado.MesaIzquierda(asiento) + 1,
            estado.MesaAbajo(asiento) - estado.MesaArriba(asiento) + 1};
}

Rectangulo ZonaConRealce(int asiento) {
    Rectangulo zona = ZonaDe(asiento);
    if (AsientoLateral(asiento)) {
        zona.ancho += kRealce;
        zona.x -= asiento == 3 ? kRealce : 0;
    } else {
        zona.alto += kRealce;
        zona.y -= asiento == 4 ? kRealce : 0;
    }
    return zona;
}

Punto LugarCentro(int asiento) {
    constexpr int kSolape = 5; // how far a card reaches over the middle
    const double x = estado.CentroX;
    const double y = estado.CentroY;
    switch (asiento) {
    case 1:
        return {Redondea(x - kAnchoCarta + kSolape), Redondea(y - kAltoCarta / 2.0)};
    case 2:
        return {Redondea(x - kAnchoCarta / 2.0), Redondea(y - kAltoCarta + kSolape)};
    case 3:
        return {Redondea(x - kSolape), Redondea(y - kAltoCarta / 2.0)};
    case 4:
        return {Redondea(x - kAnchoCarta / 2.0), Redondea(y - kSolape)};
    default:
        LanzaIndiceFuera(1, asiento, 4);
    }
}

Punto CentroDelMazo() {
    return {Redondea(estado.AnchoMesa / 2.0 - kAnchoCarta / 2.0),
            Redondea(estado.AltoMesa / 2.0 - kAltoCarta / 2.0)};
}

void ColocarMazo() {
    const FilaJuego* fila = FilaDe(estado.JuegoActivo);
    const Punto centro = CentroDelMazo();
    estado.MazoX = EnteroDe(centro.x);
    estado.MazoY = EnteroDe(centro.y);
    if (fila != nullptr && fila->baraja.coloca_mazo != nullptr)
        fila->baraja.coloca_mazo();
}
