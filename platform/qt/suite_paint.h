#pragma once
// The look that the program's dialogs share: parchment in a golden rim, a green band for the title, the
// sheet's buttons.

#include <QDialog>
#include <QPainter>
#include <QPushButton>

#include "table/sheet_layout.h"

namespace estilo {
inline constexpr QColor kPapel(253, 245, 225), kTinta(34, 34, 34);
inline constexpr QColor kMarco(224, 64, 32), kMarcoClaro(224, 128, 96);
inline constexpr QColor kBanda(12, 78, 30), kTitulo(255, 238, 130);
inline constexpr int kAltoBanda = 34;
inline constexpr QColor kCanto(40, 28, 8); // what the rim's round corners leave free
inline constexpr int kReborde = 5;         // the panel's rim

// Colours of the dialogs for the standard widgets in them, the same on a dark desktop as on a light one.
QPalette Paleta();
// A window whose widgets are shown so many times as large as they were laid out.
class VentanaCrecida {
public:
    virtual double Aumento() const = 0;

protected:
    ~VentanaCrecida() = default;
};
// How many times as large as it was laid out a widget is shown; 1 in a window that does not grow.
double AumentoDe(const QWidget& widget);
// The widget in pixels of its layout, and a point of it.
QRect CajaDe(const QWidget& widget);
QPointF PuntoEn(const QWidget& widget, const QPointF& donde);

// Paints on a widget in pixels of its layout.
class PintorDeVista : public QPainter {
public:
    explicit PintorDeVista(QWidget* widget);
};

// A piece of the sheet at a place, each of its pixels one of the device's.
void PintaPieza(QPainter& pintor, const QPointF& donde, const lamina::Recorte& pieza);
// A piece drawn out to donde: its rim of borde pixels stays, the rest stretches.
void PintaPieza(QPainter& pintor, const QRect& donde, const lamina::Recorte& pieza, int borde);
// A line of text in its box; narrower where the letters at hand are too broad for it.
void PintaTexto(QPainter& pintor, const QRect& donde, int alineacion, const QString& texto);
// Parchment, rim and title band over the whole of donde.
void PintaPanel(QPainter& pintor, const QRect& donde, const QString& titulo);
} // namespace estilo

// A button of the sheet. It is pressed by mouse, Space or Enter; any other key is its parent's.
class BotonSuite : public QPushButton {
    Q_OBJECT
public:
    BotonSuite(const QString& texto, QWidget* padre);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;
};

// For changeEvent: a click on a window beside or behind an open box must not take the keyboard away from the box.
void DejaElTecladoALaCaja(const QWidget& ventana, const QEvent& evento);

// A dialog without the desktop's frame; its title band moves it. Where the screen is too small for it, the
// control that Tab comes to is brought into sight.
class DialogoSuite : public QDialog, public estilo::VentanaCrecida {
    Q_OBJECT
public:
    DialogoSuite(const QString& titulo, QWidget* padre);
    // As much larger as the table is drawn, where the screen has room for it: everything in it grows, and keeps its
    // place from then on. Called once, when all of it is laid out.
    void CreceConLaMesa();
    double Aumento() const override { return aumento_; }
    // Centred in a place of the screen, never with its upper edge or left edge outside it.
    void CentraEn(const QRect& donde);

protected:
    void changeEvent(QEvent* evento) override;
    void paintEvent(QPaintEvent* evento) override;
    void mousePressEvent(QMouseEvent* evento) override;
    bool focusNextPrevChild(bool siguiente) override;

private:
    double aumento_ = 1;
};
