#pragma once
// A surface to draw on: a window's picture, a PNG, a page of paper, a list of calls. It is written and
// never read back. Coordinates and sizes are pixels of the table, x to the right and y down, whatever the
// pixel ratio of the screen behind. Drawing outside the surface is cut off without an error.

#include <string_view>

#include "core/tabla.h"

namespace lamina {
struct Recorte; // a piece of the sheet of small images: table/sheet_layout.h
}

// Colours are written blue-green-red, as the game's state keeps them: 0x0000FF is red.
using Color = Long;

namespace color {
inline constexpr Color kNegro = 0x000000, kBlanco = 0xFFFFFF, kFieltro = 0x008000,
                       kAmarillo = 0x00FFFF;
inline constexpr Color kAzul = 0xFF0000, kAzulOscuro = 0x800000, kRojo = 0x0000FF;
inline constexpr Color kVerde = 0x00FF00, kVerdeOscuro = 0x006400, kCian = 0xFFFF00;
inline constexpr Color kBordePanel = 0x2040E0, kBordePanelClaro = 0x6080E0, kMarfil = 0xE1F5FD;
inline constexpr Color kPlaca = 0x203A10; // the dark plate behind captions on the felt
} // namespace color

struct Rectangulo {
    int x = 0, y = 0, ancho = 0, alto = 0;
    friend bool operator==(const Rectangulo&, const Rectangulo&) = default;
};

struct Fuente {
    int alto = 13; // pixels of the letter's body
    bool negrita = false;
    bool fija = false; // all characters equally wide
    int tope = 0;      // pixels: a wider text is drawn narrower to fit; 0 no limit
};

enum class Alineacion { Izquierda, Centro, Derecha };

// Where something as wide begins that has its left, its middle or its right at x.
template <class Numero>
constexpr Numero BordeIzquierdo(Numero x, Numero ancho, Alineacion alineacion) {
    switch (alineacion) {
    case Alineacion::Centro:
        return x - ancho / 2;
    case Alineacion::Derecha:
        return x - ancho;
    case Alineacion::Izquierda:
        break;
    }
    return x;
}

// One card as it is to be drawn. orientacion 1..4: 1 stands upright as in the deck image, each step turns
// it a quarter clockwise; 2 and 4 lie on their side (141 by 101). cara: 1 the back shows, 2 the face. tapada: a
// face on show is half covered by the back; the corner that a hand of cards leaves to see stays clear.
struct ImagenCarta {
    Integer palo = 0, valor = 0, cara = 1, orientacion = 1;
    bool tapada = false;
    friend bool operator==(const ImagenCarta&, const ImagenCarta&) = default;
};

inline constexpr int kAnchoCarta = 101, kAltoCarta = 141;

class Lienzo {
public:
    virtual ~Lienzo() = default;

    virtual void Fieltro(const Rectangulo& donde) = 0; // back to bare felt
    virtual void Caja(const Rectangulo& donde, Color color) = 0;
    virtual void Borde(const Rectangulo& donde, Color color, int grueso) = 0;
    virtual void Linea(int x1, int y1, int x2, int y2, Color color, int grueso) = 0;
    // One line of text; y is the top of its line box, x the left, middle or right of the text.
    virtual void Texto(int x, int y, std::string_view texto, const Fuente& fuente, Color color,
                       Alineacion alineacion) = 0;
    // A card at its upper left corner; its round corners stay clear. MiniCarta draws no more of it than its
    // upper left, ancho by alto pixels at full size, as a small card of its own: number and suit stand there and
    // stay legible (the manual spread, a card on the pointer). It is drawn upright; more than the card has is cut.
    virtual void Carta(int x, int y, const ImagenCarta& carta) = 0;
    virtual void MiniCarta(int x, int y, int ancho, int alto, const ImagenCarta& carta) = 0;
    virtual void Lamina(int x, int y, const lamina::Recorte& recorte) = 0;
    // What is drawn there grows faint: it shows through a thin layer of felt.
    virtual void Velo(const Rectangulo& donde) = 0;
};
