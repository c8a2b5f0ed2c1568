#include "platform/qt/splash.h"

#include <QApplication>
#include <QGuiApplication>
#include <QPainter>
#include <QScreen>

#include "platform/qt/canvas_qt.h"
#include "platform/qt/suite_paint.h"

namespace {

constexpr QSize kTamano(520, 320);
constexpr int kAbanico = 5;
constexpr QSizeF kNaipe(74, 104);

const QStringList& Juegos() {
    static const QStringList juegos{"Póker",  "Black Jack",    "Tute",
                                    "Brisca", "Siete y media", "Cinquillo"};
    return juegos;
}

// A hand of cards seen from behind, fanned out.
void PintaAbanico(QPainter& p, const QPointF& pie) {
    for (int i = 0; i < kAbanico; ++i) {
        p.save();
        p.translate(pie);
        p.rotate((i - (kAbanico - 1) / 2.0) * 16);
        const QRectF naipe(QPointF(-kNaipe.width() / 2, -kNaipe.height() - 30), kNaipe);
        p.setPen(QPen(QColor(60, 40, 24), 1));
        p.setBrush(estilo::kPapel);
        p.drawRoundedRect(naipe, 6, 6);
        p.setPen(Qt::NoPen);
        p.setBrush(QBrush(QColor(168, 32, 28)));
        p.drawRoundedRect(naipe.adjusted(6, 6, -6, -6), 3, 3);
        p.setBrush(QBrush(QColor(240, 200, 150), Qt::DiagCrossPattern));
        p.drawRoundedRect(naipe.adjusted(6, 6, -6, -6), 3, 3);
        p.restore();
    }
}

} // namespace

Careta::Careta() : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint) {
    setObjectName(QStringLiteral("careta"));
    setAccessibleName(QStringLiteral("Zovin"));
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFixedSize(kTamano);
}

void Careta::Aparece() {
    QRect sitio(QPoint(0, 0), kTamano);
    sitio.moveCenter(QGuiApplication::primaryScreen()->geometry().center());
    move(sitio.topLeft());
    show();
    repaint();
}

void Careta::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    QRadialGradient felpa(rect().center(), kTamano.width() * 0.6);
    felpa.setColorAt(0, QColor(0, 140, 20));
    felpa.setColorAt(1, QColor(0, 88, 0));
    p.fillRect(rect(), felpa);
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(estilo::kMarco, 4));
    p.drawRect(rect().adjusted(2, 2, -2, -2));
    p.setPen(QPen(estilo::kMarcoClaro, 1));
    p.drawRect(rect().adjusted(8, 8, -9, -9));

    PintaAbanico(p, QPointF(kTamano.width() / 2.0, 202));
    p.setFont(LetraDe({.alto = 64, .negrita = true}));
    p.setPen(QColor(0, 40, 0));
    p.drawText(QRect(3, 183, kTamano.width(), 76), Qt::AlignCenter, "Zovin");
    p.setPen(estilo::kTitulo);
    p.drawText(QRect(0, 180, kTamano.width(), 76), Qt::AlignCenter, "Zovin");
    p.setFont(LetraDe({.alto = 14}));
    p.setPen(estilo::kPapel);
    p.drawText(QRect(0, 262, kTamano.width(), 20), Qt::AlignCenter, Juegos().join(" · "));
    p.setFont(LetraDe({.alto = 11}));
    p.drawText(QRect(0, 288, kTamano.width(), 16), Qt::AlignCenter,
               QApplication::applicationVersion());
}

void Careta::mousePressEvent(QMouseEvent*) {
    close();
}
