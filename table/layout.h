#pragma once
// The places of the table, in pixels: zones, centre places, the corner of a card in a hand.

#include "core/tabla.h"
#include "platform/canvas.h"

inline constexpr int kAnchoBotonera = 90;

// Reads the window's size from the platform; writes AnchoPantalla, AltoPantalla (800 by 600 at least),
// AnchoMesa, AltoMesa, CentroX, CentroY, the zones Mesa* of the four seats and PosFicha*. Places only.
void CalculaLugares();

// The corner where place lugar of a hand of cartas cards stands: writes CartaX, CartaY. Reads the raise of
// that place from Mano and SerieActual. cartas below 1 counts as 1.
void ColocarCarta(int asiento, int lugar, int cartas);

// The box of that card on the felt, on its side for the seats at the sides, and how much of it the next one (of cartas)
// leaves to see along the edge. The state stays as it is.
Rectangulo CajaDeCarta(int asiento, int lugar, int cartas);
Rectangulo CartaALaVista(int asiento, int lugar, int cartas);

// The strip of the seat's hand of cartas cards, along its edge and wholly inside the zone.
Rectangulo FranjaMano(int asiento, int cartas);

// The zone of a seat, and the zone with the 20 pixels into which raised cards stand.
Rectangulo ZonaDe(int asiento);
Rectangulo ZonaConRealce(int asiento);

// The chips: their side, how much of a chip the next one on it leaves to see, and the highest stack that is drawn.
inline constexpr int kLadoFicha = 33, kGruesoFicha = 2, kFichasALaVista = 6;
inline constexpr int kCreceFicha = kGruesoFicha * (kFichasALaVista - 1);
// The areas of PosFicha: 0 the stack of seat 1, 8 the chips that it has bet, and so on for the others; 13 the pot.
inline constexpr int kAreaRestos = 0, kAreaApuestas = 8, kAreaBote = 13;

// A place on the table, in pixels from its upper left corner.
struct Punto {
    int x = 0, y = 0;
    friend bool operator==(const Punto&, const Punto&) = default;
};
// Where the seat's played card lands in the centre: its upper left corner.
Punto LugarCentro(int asiento);

// Seats 1 and 3 sit at the sides: their cards lie, their words stand in columns.
bool AsientoLateral(int asiento);

// The orientation that a seat's cards are drawn with: OrientacionAsiento mod 4 + 1.
Integer OrientacionDe(int asiento);

// The corner of a pile in the middle of the table.
Punto CentroDelMazo();

// The corner of the pile for the active game: writes MazoX, MazoY. Reads the layout and JugadorBanca.
void ColocarMazo();
