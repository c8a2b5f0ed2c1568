#pragma once
// The canvas over QPainter. One class knows how to draw; the others say on what: a painter that someone
// else holds open (a picture, a page of paper) or a picture of its own that a widget shows.

#include <QPainter>
#include <QRegion>
#include <map>
#include <memory>

#include "platform/canvas.h"
#include "platform/platform.h"
#include "platform/qt/card_images.h"

// What bare felt is on a canvas: the felt itself, the table behind a control, or white paper.
enum class Fondo { Fieltro, Claro, Papel };
// The button column has felt of its own: what lies on the table behind it does not show through.
Fondo FondoDe(Control control);

// Text is set in DejaVu Sans, its sizes in pixels of the table.
QFont LetraDe(const Fuente& fuente);
QColor ColorQt(Color color);

class LienzoQt : public Lienzo {
public:
    LienzoQt(Imagenes& imagenes, Fondo fondo) : imagenes_(imagenes), fondo_(fondo) {}

    void Fieltro(const Rectangulo& donde) override;
    void Caja(const Rectangulo& donde, Color color) override;
    void Borde(const Rectangulo& donde, Color color, int grueso) override;
    void Linea(int x1, int y1, int x2, int y2, Color color, int grueso) override;
    void Texto(int x, int y, std::string_view texto, const Fuente& fuente, Color color,
               Alineacion alineacion) override;
    void Carta(int x, int y, const ImagenCarta& carta) override;
    void MiniCarta(int x, int y, int ancho, int alto, const ImagenCarta& carta) override;
    void Lamina(int x, int y, const lamina::Recorte& recorte) override;
    void Velo(const Rectangulo& donde) override;

protected:
    // A painter in device pixels from the canvas's corner, in its plain state.
    virtual QPainter& Pintor() = 0;
    // These device pixels have been written.
    virtual void Tocado(const QRect& donde) = 0;

    Imagenes& imagenes_;
    const Fondo fondo_;

private:
    void Imagen(const QPoint& donde, const QImage& imagen);
    void Relleno(const QRect& donde, const QColor& color);
};

// On a painter that stays open with its owner: device pixels of the images' ratio from its origin.
class LienzoPintor : public LienzoQt {
public:
    LienzoPintor(QPainter& pintor, Imagenes& imagenes, Fondo fondo)
        : LienzoQt(imagenes, fondo), pintor_(pintor) {}

private:
    QPainter& Pintor() override { return pintor_; }
    void Tocado(const QRect&) override {}

    QPainter& pintor_;
};

// On a picture of its own, which is kept until it is drawn over. What has changed is remembered for the
// widget that shows it.
class LienzoRetenido : public LienzoQt {
public:
    using LienzoQt::LienzoQt;

    // A new size in table pixels: bare felt, with what fits of the old picture when it is to be kept.
    void PonTamano(const QSize& tamano, bool conserva);
    QSize Tamano() const { return tamano_; }
    // The picture made anew for the images' present ratio; the old one stands in, stretched, until it is
    // painted over.
    void AdaptaRatio();

    const QImage& Cuadro();
    // The device pixels written since the last call.
    QRegion TomaSucio();

private:
    QPainter& Pintor() override;
    void Tocado(const QRect& donde) override;
    QImage CuadroVacio();

    QSize tamano_{0, 0};
    QImage cuadro_;
    std::unique_ptr<QPainter> pintor_;
    QRegion sucio_;
};
