#pragma once
// The pictures that a canvas draws from, made ready for a screen's pixel ratio: the cards of the deck image with their
// round corners, and the tile of felt. Where the deck image is the one that the build has made, its cards are painted
// from their drawings, each when it is first wanted: they are as sharp at any ratio.

#include <QImage>
#include <QString>
#include <map>

#include "platform/canvas.h"

class Imagenes {
public:
    // ratio: device pixels for each pixel of the table, above 0.
    explicit Imagenes(double ratio);

    double Ratio() const { return ratio_; }
    // Another screen: everything is made ready anew.
    void CambiaRatio(double ratio);

    // Four rows (palo) of columnas cells (valor), each 101 by 141 or the same whole multiple of it. FalloGrave
    // with file and reason when there is no such image; the deck in use then stays.
    void CargaBaraja(const QString& ruta, int columnas);
    bool HayBaraja() const { return columnas_ > 0; }

    // The card as it stands on the table, turned, in device pixels, its corners clear. A null image for a
    // card that the deck does not have.
    QImage Carta(const ImagenCarta& carta) const;
    // The upper left of the upright card, so many device pixels of it, as a small card with a rim of its own.
    QImage MiniCarta(const ImagenCarta& carta, const QSize& tamano) const;

    // A device pixel's felt is this tile's pixel at the same place, the tile repeated from (0, 0).
    const QImage& Fieltro() const { return fieltro_; }

    // Table pixels to device pixels. Edges are rounded, so that boxes which meet on the table meet on the
    // screen; a card's size is cut, so that it never leaves its box.
    int Px(int v) const;
    QRect Px(const Rectangulo& donde) const;
    QSize TamanoCarta() const;

private:
    QImage Derecha(const ImagenCarta& carta) const; // upright
    QImage DeLaBaraja(int palo, int valor) const;
    QImage Pintada(const QString& dibujo) const;
    QImage MedioTapada(const QImage& cara, bool la_de_arriba) const; // half of it under the back

    double ratio_;
    QString ruta_;
    int columnas_ = 0;
    QImage
        baraja_; // another deck's cells side by side, each TamanoCarta; null for the program's own
    mutable std::map<QString, QImage> pintadas_; // from the drawings, by name
    QImage fieltro_;
};
