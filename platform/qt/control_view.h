#pragma once
// A control of `mesa` as a child widget: a picture of its own that the game draws, a pointer, and for the
// buttons a click by mouse or by keyboard.

#include <QWidget>

#include "platform/qt/canvas_qt.h"
#include "platform/qt/event_queue.h"

// Paints a retained picture at the widget's corner, pixel by pixel, where it is exposed. Leaves the painter
// in the picture's device pixels.
void PintaCuadro(QPainter& pintor, const QImage& cuadro, const Imagenes& imagenes,
                 const QRect& expuesto);
// Device pixels for each pixel of the window, as the images are made for them.
double RatioDeVentana(const Imagenes& imagenes);

class VistaControl : public QWidget {
    Q_OBJECT
public:
    VistaControl(Control control, int indice, QWidget* padre, Imagenes& imagenes,
                 ColaEventos& cola);

    Control Cual() const { return control_; }
    bool EsBoton() const;
    // It is shown on its way from one place to another, and is nothing by itself.
    bool EsMovil() const;
    LienzoRetenido& ElLienzo() { return lienzo_; }
    // Table pixels, from the corner of what it stands on.
    void Coloca(const Rectangulo& donde);
    // As for the felt: the place and the picture for other images.
    void AdaptaRatio();
    // In table pixels, as it was placed.
    const Rectangulo& ElLugar() const { return donde_; }
    void PonPuntero(Puntero puntero);
    Puntero ElPuntero() const { return puntero_; }
    void Nombra(const QString& nombre);
    // Where its picture is seen, in pixels of the widget: one of the main buttons stands a little beside its own.
    QRectF Dibujo() const;
    // A click that did not come from the mouse.
    void Pulsa() { Pulsa(cola_.Ahora()); }

protected:
    void paintEvent(QPaintEvent* evento) override;
    void mousePressEvent(QMouseEvent* evento) override;
    void mouseReleaseEvent(QMouseEvent* evento) override;
    void mouseMoveEvent(QMouseEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;

private:
    void Avisa(TipoEvento tipo, const QMouseEvent& evento);
    void Pulsa(std::optional<Milisegundos> desde);
    // The keys that stand for a click, as its tool tip names them; empty for none.
    QString Teclas() const;

    const Control control_;
    const int indice_;
    ColaEventos& cola_;
    Imagenes& imagenes_;
    LienzoRetenido lienzo_;
    Rectangulo donde_;
    Puntero puntero_ = Puntero::Flecha;
    std::optional<Milisegundos> apretado_; // when the button of the mouse went down on it
};

// Lets screen readers know the buttons among the controls as buttons, the disabled ones as disabled.
void InstalaAccesoControles();
