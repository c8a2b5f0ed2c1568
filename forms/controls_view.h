#pragma once
// The controls of the forms under the suite's own paint: each is a real widget of its kind, so that the keyboard and a
// screen reader know it, and is painted with the pieces of the sheet.
//
// Words and frames take their colour from the palette's WindowText, what stands in a field from its Text.

#include <QAbstractButton>
#include <QCheckBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QSlider>
#include <QTimer>
#include <functional>

#include "table/sheet_layout.h"

namespace forma {

inline constexpr int kAltoCelda = 46;                         // a framed control
inline constexpr int kAnchoEstrecho = 145, kAnchoAncho = 175; // of a seat, of the table

// A panel piece drawn out over donde, its rim kept.
void PintaPanel(QPainter& pintor, const QRect& donde, const lamina::Recorte& pieza);
// A thin frame with a title in its upper line.
void PintaRecuadro(QPainter& pintor, const QRect& donde, const QString& titulo,
                   const QPalette& paleta);
// The dotted line around what the keyboard acts on.
void PintaFoco(QPainter& pintor, const QRect& donde, const QPalette& paleta);

} // namespace forma

// The green ground of what belongs together: a seat's controls, a report's page.
class PanelHundido : public QWidget {
    Q_OBJECT
public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent* evento) override;
};

// A framed selector: its title, its present value, and the arrow that a click or Space advances.
class SelectorVista : public QAbstractButton {
    Q_OBJECT
public:
    // que: what a screen reader calls it.
    SelectorVista(const QString& titulo, const QString& que, int ancho, QWidget* padre);
    void Muestra(const QString& valor);
    QRect Campo() const;
    QRect Flecha() const;
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;
    bool hitButton(const QPoint& donde) const override;

private:
    QString titulo_, que_, valor_;
};

class CasillaVista : public QCheckBox {
    Q_OBJECT
public:
    CasillaVista(const QString& texto, QWidget* padre);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* evento) override;
    bool hitButton(const QPoint& donde) const override;
};

// One line of a list of which one is marked. Whoever owns the list says which.
class OpcionVista : public QRadioButton {
    Q_OBJECT
public:
    OpcionVista(const QString& texto, QWidget* padre);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* evento) override;
    bool hitButton(const QPoint& donde) const override;
};

// A framed slider: a knob on a rail, dragged by the mouse's change, and its value in words.
class DeslizadorVista : public QSlider {
    Q_OBJECT
public:
    DeslizadorVista(const QString& titulo, const QString& que, int ancho, QWidget* padre);
    void Muestra(int valor, const QString& texto);
    QRect Pomo() const;
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* evento) override;
    void mousePressEvent(QMouseEvent* evento) override;
    void mouseMoveEvent(QMouseEvent* evento) override;
    void mouseReleaseEvent(QMouseEvent* evento) override;

private:
    QRect Carril() const;

    QString titulo_, que_, texto_;
    bool arrastra_ = false;
    int raton_al_pulsar_ = 0, valor_al_pulsar_ = 0;
};

class TextoVista : public QLineEdit {
    Q_OBJECT
public:
    explicit TextoVista(QWidget* padre);

protected:
    void paintEvent(QPaintEvent* evento) override;
};

// One arrow of a number. While it is held it steps again and again; the pointer is hidden meanwhile.
class FlechaSpin : public QWidget {
    Q_OBJECT
public:
    // paso: makes one step; false at the limit.
    FlechaSpin(bool sube, std::function<bool()> paso, QWidget* padre);

protected:
    void paintEvent(QPaintEvent* evento) override;
    void mousePressEvent(QMouseEvent* evento) override;
    void mouseReleaseEvent(QMouseEvent* evento) override;
    void hideEvent(QHideEvent* evento) override;

private:
    void Pulsa();
    void Suelta();
    void PonHundida(bool hundida);
    void Late();

    const bool sube_;
    std::function<bool()> paso_;
    QTimer compas_;
    bool sujeta_ = false, hundida_ = false;
};

// A number with its label, its text box and its two arrows. Up and Down in the box step too.
class SpinVista : public QWidget {
    Q_OBJECT
public:
    // paso(sube) makes a step, escribe answers what the box shows of a typed text, valor is the present number.
    struct Tratos {
        std::function<bool(bool sube)> paso;
        std::function<QString(const QString& texto)> escribe;
        std::function<int()> valor;
    };
    SpinVista(int indice, const QString& rotulo, Tratos tratos, QWidget* padre);

protected:
    void paintEvent(QPaintEvent* evento) override;
    bool eventFilter(QObject* quien, QEvent* evento) override;

private:
    bool Paso(bool sube);
    void Escrito(const QString& texto);

    QString rotulo_;
    Tratos tratos_;
    TextoVista* texto_;
};
