#pragma once
// The felt: one widget with a retained picture, and above it the layer of the card in flight.

#include <QWidget>
#include <functional>
#include <optional>

#include "platform/qt/canvas_qt.h"
#include "platform/qt/event_queue.h"
#include "platform/qt/table_access.h"

// Only the box of the card is ever repainted. The mouse passes through.
class CapaVuelo : public QWidget {
public:
    CapaVuelo(QWidget* padre, Imagenes& imagenes);

    // Table pixels of the card's corner.
    void Vuela(int x, int y, const ImagenCarta& carta);
    void Posa();
    void AdaptaRatio();
    // The device pixels that have changed since the last call.
    QRegion TomaSucio();

protected:
    void paintEvent(QPaintEvent* evento) override;

private:
    QRect Caja() const { return {donde_, imagen_.size()}; }

    Imagenes& imagenes_;
    std::optional<ImagenCarta> carta_;
    QImage imagen_;
    QPoint donde_;
    QRegion sucio_;
};

class Tapete : public QWidget {
    Q_OBJECT
public:
    Tapete(Imagenes& imagenes, ColaEventos& cola);

    LienzoRetenido& ElLienzo() { return lienzo_; }
    CapaVuelo& ElVuelo() { return vuelo_; }
    void PonPuntero(Puntero puntero);
    Puntero ElPuntero() const { return puntero_; }
    // The screen's pixel ratio or the table's factor are others than before, and the images are made for them.
    void AdaptaRatio();
    // A button was let go and nobody told the felt, as when a dialog stood before it: it is told now.
    void NotaSueltaCallada();
    // What assistive tools meet here.
    ArbolDeMesa& ElArbol() { return arbol_; }
    // What a click of the mouse at the target does, all of it: boton is 1 left, 2 right.
    void Pulsa(const Objetivo& objetivo, int boton);
    // Called, outside of painting, when the screen has another pixel ratio than the pictures.
    std::function<void()> al_cambiar_ratio;

protected:
    void paintEvent(QPaintEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;
    void mousePressEvent(QMouseEvent* evento) override;
    void mouseReleaseEvent(QMouseEvent* evento) override;
    void mouseMoveEvent(QMouseEvent* evento) override;
    void mouseDoubleClickEvent(QMouseEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;
    void leaveEvent(QEvent* evento) override;
    void timerEvent(QTimerEvent* evento) override;

private:
    void Avisa(TipoEvento tipo, const QMouseEvent& evento);
    void Avisa(TipoEvento tipo, QPointF donde, int boton);
    void PonMinimo();

    Imagenes& imagenes_;
    ColaEventos& cola_;
    LienzoRetenido lienzo_;
    CapaVuelo vuelo_;
    Puntero puntero_ = Puntero::Flecha;
    bool ratio_pedido_ = false;
    ArbolDeMesa arbol_;
    bool apretado_ = false; // a press whose release the game has not been told
};
