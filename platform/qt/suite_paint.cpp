#include "platform/qt/suite_paint.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPalette>
#include <QScreen>
#include <QWindow>
#include <algorithm>
#include <qdrawutil.h>

#include "platform/qt/canvas_qt.h"
#include "platform/qt/pointers.h"
#include "platform/qt/sheet_images.h"

namespace {

// The way that brings a control into the screen, by its right and lower edge first.
QPoint HaciaDentro(const QRect& mando, const QRect& pantalla) {
    const int a_la_izquierda = std::min(0, pantalla.right() - mando.right());
    const int arriba = std::min(0, pantalla.bottom() - mando.bottom());
    return {std::max(a_la_izquierda, pantalla.left() - mando.left()),
            std::max(arriba, pantalla.top() - mando.top())};
}

} // namespace

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

void PintaPieza(QPainter& p, const QRect& donde, const lamina::Recorte& pieza, int borde) {
    const double ratio = p.device()->devicePixelRatioF();
    const QPixmap dibujo = QPixmap::fromImage(PiezaDe(pieza, ratio));
    const int grueso = qRound(borde * ratio);
    const QMargins alrededor(borde, borde, borde, borde);
    const QMargins cortado(grueso, grueso, grueso, grueso);
    qDrawBorderPixmap(&p, donde, alrededor, dibujo, dibujo.rect(), cortado);
}

void PintaPanel(QPainter& p, const QRect& donde, const QString& titulo) {
    p.fillRect(donde, kCanto);
    PintaPieza(p, donde, lamina::kPanelPergamino, lamina::kBordePanel);
    const QRect dentro = donde.adjusted(kReborde, kReborde, -kReborde, -kReborde);
    const QRect banda(dentro.topLeft(), QSize(dentro.width(), kAltoBanda));
    QLinearGradient brillo(banda.topLeft(), banda.bottomLeft());
    brillo.setColorAt(0, kBanda.lighter(135));
    brillo.setColorAt(1, kBanda);
    p.fillRect(banda, brillo);
    p.fillRect(QRect(banda.left(), banda.bottom() + 1, banda.width(), 2), QColor(214, 158, 40));
    p.setFont(LetraDe({.alto = 16, .negrita = true}));
    p.setPen(kTitulo);
    p.drawText(banda, Qt::AlignCenter, titulo);
}

} // namespace estilo

BotonSuite::BotonSuite(const QString& texto, QWidget* padre) : QPushButton(texto, padre) {
    setFont(LetraDe({.alto = 14, .negrita = true}));
    setCursor(CursorDe(Puntero::ManoIndice));
    setAttribute(Qt::WA_Hover);
    setAutoDefault(false);
}

QSize BotonSuite::sizeHint() const {
    const int ancho = fontMetrics().horizontalAdvance(text()) + 36;
    return {std::max(ancho, 104), 34};
}

void BotonSuite::paintEvent(QPaintEvent*) {
    constexpr int kBorde = 10;
    QPainter p(this);
    if (!isEnabled())
        p.setOpacity(0.45);
    estilo::PintaPieza(p, rect(), isDown() ? lamina::kMensajePulsado : lamina::kMensajeArriba,
                       kBorde);
    p.setRenderHint(QPainter::Antialiasing);
    if (underMouse() && isEnabled() && !isDown()) {
        p.setPen(Qt::NoPen);
        p.setBrush(QColor(255, 255, 255, 90));
        p.drawRoundedRect(QRectF(rect()).adjusted(4, 4, -4, -4), 5, 5);
    }
    p.setPen(estilo::kBanda);
    p.drawText(rect().translated(0, isDown() ? 1 : 0), Qt::AlignCenter, text());
    if (!hasFocus())
        return;
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(estilo::kBanda, 1, Qt::DotLine));
    p.drawRoundedRect(QRectF(rect()).adjusted(6.5, 6.5, -6.5, -6.5), 4, 4);
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
    if (evento->button() == Qt::LeftButton &&
        evento->position().y() < estilo::kAltoBanda + estilo::kReborde)
        windowHandle()->startSystemMove();
}

bool DialogoSuite::focusNextPrevChild(bool siguiente) {
    const bool movido = QDialog::focusNextPrevChild(siguiente);
    if (const QWidget* donde = focusWidget(); donde != nullptr) {
        const QRect mando(donde->mapToGlobal(QPoint(0, 0)), donde->size());
        constexpr QMargins kHolgura(12, 12, 12, 12);
        move(pos() + HaciaDentro(mando + kHolgura, screen()->availableGeometry()));
    }
    return movido;
}
