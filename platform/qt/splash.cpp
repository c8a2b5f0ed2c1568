#include "platform/qt/splash.h"

#include <QApplication>
#include <QGuiApplication>
#include <QPainter>
#include <QScreen>
#include <QTimerEvent>

#include "platform/qt/canvas_qt.h"
#include "platform/qt/scale.h"
#include "platform/qt/suite_paint.h"
#include "table/game_row.h"

namespace {

constexpr QSize kTamano(520, 340);
constexpr int kAltoEmblema = 18;

QString NombresDeLosJuegos() {
    QStringList nombres;
    for (const FilaJuego* juego : FilasDeJuegos())
        nombres << QString::fromUtf8(juego->nombre);
    return nombres.join(QStringLiteral(" · "));
}

} // namespace

Careta::Careta() : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint) {
    setObjectName(QStringLiteral("careta"));
    setAccessibleName(QStringLiteral("Zovin"));
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFixedSize((QSizeF(kTamano) * FactorDeMesa()).toSize());
}

void Careta::Aparece() {
    QRect sitio(QPoint(0, 0), size());
    sitio.moveCenter(QGuiApplication::primaryScreen()->geometry().center());
    move(sitio.topLeft());
    show();
    repaint();
    startTimer(0);
}

// The emblem takes its time to paint: the splash's pause has it to spare.
void Careta::timerEvent(QTimerEvent* evento) {
    killTimer(evento->timerId());
    con_emblema_ = true;
    update();
}

void Careta::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.scale(FactorDeMesa(), FactorDeMesa());
    p.setRenderHint(QPainter::Antialiasing);
    const QRect todo(QPoint(0, 0), kTamano);
    QRadialGradient felpa(QPointF(kTamano.width() / 2.0, 100), kTamano.width() * 0.6);
    felpa.setColorAt(0, QColor(0, 140, 20));
    felpa.setColorAt(1, QColor(0, 88, 0));
    p.fillRect(todo, felpa);
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(estilo::kMarco, 4));
    p.drawRect(todo.adjusted(2, 2, -2, -2));
    p.setPen(QPen(estilo::kMarcoClaro, 1));
    p.drawRect(todo.adjusted(8, 8, -9, -9));

    if (con_emblema_) {
        constexpr lamina::Recorte kPieza = lamina::kEmblemaPortada;
        estilo::PintaPieza(p, QPoint((kTamano.width() - kPieza.ancho) / 2, kAltoEmblema), kPieza);
    }
    const auto renglon = [&](int y, int alto, const QString& texto, const QColor& color) {
        p.setPen(color);
        p.drawText(QRect(0, y, kTamano.width(), alto), Qt::AlignCenter, texto);
    };
    p.setFont(LetraDe({.alto = 64, .negrita = true}));
    renglon(178, 84, "Zovin", QColor(0, 40, 0));
    renglon(175, 84, "Zovin", estilo::kTitulo);
    p.setFont(LetraDe({.alto = 14}));
    renglon(264, 20, NombresDeLosJuegos(), estilo::kPapel);
    p.setFont(LetraDe({.alto = 11}));
    renglon(300, 16, QApplication::applicationVersion(), estilo::kPapel);
}

void Careta::mousePressEvent(QMouseEvent*) {
    close();
}
