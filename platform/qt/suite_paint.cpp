#include "platform/qt/suite_paint.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPalette>
#include <QWindow>
#include <algorithm>

#include "platform/qt/canvas_qt.h"

namespace estilo {

QPalette Paleta() {
    QPalette paleta(kPapel);
    paleta.setColor(QPalette::Window, kPapel);
    paleta.setColor(QPalette::WindowText, kTinta);
    paleta.setColor(QPalette::Base, Qt::white);
    paleta.setColor(QPalette::AlternateBase, QColor(244, 238, 222));
    paleta.setColor(QPalette::Text, kTinta);
    paleta.setColor(QPalette::PlaceholderText, QColor(120, 116, 104));
    paleta.setColor(QPalette::Button, QColor(236, 228, 206));
    paleta.setColor(QPalette::ButtonText, kTinta);
    paleta.setColor(QPalette::Highlight, kBanda);
    paleta.setColor(QPalette::HighlightedText, kTitulo);
    return paleta;
}

void PintaPanel(QPainter& p, const QRect& donde, const QString& titulo) {
    p.fillRect(donde, kMarco);
    p.fillRect(donde.adjusted(2, 2, -2, -2), kMarcoClaro);
    const QRect dentro = donde.adjusted(4, 4, -4, -4);
    p.fillRect(dentro, kPapel);
    const QRect banda(dentro.topLeft(), QSize(dentro.width(), kAltoBanda));
    QLinearGradient brillo(banda.topLeft(), banda.bottomLeft());
    brillo.setColorAt(0, kBanda.lighter(125));
    brillo.setColorAt(1, kBanda);
    p.fillRect(banda, brillo);
    p.fillRect(QRect(banda.left(), banda.bottom() + 1, banda.width(), 2), kMarcoClaro);
    p.setFont(LetraDe({.alto = 16, .negrita = true}));
    p.setPen(kTitulo);
    p.drawText(banda, Qt::AlignCenter, titulo);
}

} // namespace estilo

namespace {

QLinearGradient VerdeBoton(const QRectF& sitio, bool hundido, bool encima) {
    const QColor arriba = encima ? QColor(36, 150, 62) : QColor(28, 128, 52);
    const QColor abajo(8, 72, 26);
    QLinearGradient verde(sitio.topLeft(), sitio.bottomLeft());
    verde.setColorAt(0, hundido ? abajo : arriba);
    verde.setColorAt(1, hundido ? arriba : abajo);
    return verde;
}

} // namespace

BotonSuite::BotonSuite(const QString& texto, QWidget* padre) : QPushButton(texto, padre) {
    setFont(LetraDe({.alto = 14, .negrita = true}));
    setCursor(Qt::PointingHandCursor);
    setAttribute(Qt::WA_Hover);
    setAutoDefault(false);
}

QSize BotonSuite::sizeHint() const {
    const int ancho = fontMetrics().horizontalAdvance(text()) + 36;
    return {std::max(ancho, 104), 34};
}

void BotonSuite::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const QRectF sitio = QRectF(rect()).adjusted(1, 1, -1, -1);
    p.setBrush(VerdeBoton(sitio, isDown(), underMouse() && isEnabled()));
    p.setPen(QPen(hasFocus() ? QColor(255, 214, 64) : QColor(4, 44, 14), hasFocus() ? 2 : 1));
    p.drawRoundedRect(sitio, 8, 8);
    p.setPen(isEnabled() ? estilo::kTitulo : QColor(150, 170, 150));
    p.drawText(rect().translated(0, isDown() ? 1 : 0), Qt::AlignCenter, text());
    if (!hasFocus())
        return;
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(QColor(255, 255, 255, 150), 1, Qt::DotLine));
    p.drawRoundedRect(sitio.adjusted(4, 4, -4, -4), 5, 5);
}

void BotonSuite::keyPressEvent(QKeyEvent* evento) {
    switch (evento->key()) {
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (!evento->isAutoRepeat())
            click();
        return;
    case Qt::Key_Escape:
        evento->ignore();
        return;
    default:
        QPushButton::keyPressEvent(evento);
    }
}

DialogoSuite::DialogoSuite(const QString& titulo, QWidget* padre)
    : QDialog(padre, Qt::Dialog | Qt::FramelessWindowHint) {
    setWindowTitle(titulo);
    setPalette(estilo::Paleta());
    setWindowModality(padre != nullptr ? Qt::WindowModal : Qt::ApplicationModal);
}

void DialogoSuite::CentraEn(const QRect& donde) {
    QRect sitio(QPoint(0, 0), size());
    sitio.moveCenter(donde.center());
    sitio.moveLeft(std::max(sitio.left(), donde.left()));
    sitio.moveTop(std::max(sitio.top(), donde.top()));
    move(sitio.topLeft());
}

void DialogoSuite::paintEvent(QPaintEvent*) {
    QPainter p(this);
    estilo::PintaPanel(p, rect(), windowTitle());
}

void DialogoSuite::mousePressEvent(QMouseEvent* evento) {
    if (evento->button() == Qt::LeftButton && evento->position().y() < estilo::kAltoBanda + 4)
        windowHandle()->startSystemMove();
}
