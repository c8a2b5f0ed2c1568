#include "platform/qt/suite_paint.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QPalette>
#include <QScreen>
#include <QScrollArea>
#include <QWindow>
#include <algorithm>
#include <array>

#include "platform/qt/canvas_qt.h"
#include "platform/qt/pointers.h"
#include "platform/qt/scale.h"
#include "platform/qt/sheet_images.h"

namespace {

// The way that brings a control into the screen, by its right and lower edge first.
QPoint HaciaDentro(const QRect& mando, const QRect& pantalla) {
    const int a_la_izquierda = std::min(0, pantalla.right() - mando.right());
    const int arriba = std::min(0, pantalla.bottom() - mando.bottom());
    return {std::max(a_la_izquierda, pantalla.left() - mando.left()),
            std::max(arriba, pantalla.top() - mando.top())};
}

// While it stands, the painter works in pixels of its device.
class EnPixeles {
public:
    explicit EnPixeles(QPainter& p) : p_(p) {
        p_.save();
        p_.setWorldTransform(p_.deviceTransform().inverted() * p_.worldTransform(), false);
    }
    ~EnPixeles() { p_.restore(); }
    EnPixeles(const EnPixeles&) = delete;
    EnPixeles& operator=(const EnPixeles&) = delete;

private:
    QPainter& p_;
};

// What draws its own letters, in pixels of the screen. Everything else is painted by the suite in those of its layout.
bool PoneSusLetras(const QWidget& widget) {
    return qobject_cast<const QLineEdit*>(&widget) != nullptr ||
           widget.metaObject() == &QLabel::staticMetaObject;
}

QFont Crecida(QFont letra, double veces) {
    letra.setPixelSize(std::max(1, qRound(letra.pixelSize() * veces)));
    return letra;
}

QRect Crecido(const QRect& sitio, double veces) {
    return QRect(qRound(sitio.left() * veces), qRound(sitio.top() * veces),
                 qRound(sitio.width() * veces), qRound(sitio.height() * veces));
}

// What a widget of the toolkit holds is laid out by itself.
bool SeOrdenaSolo(const QWidget& widget) {
    return qobject_cast<const QLineEdit*>(&widget) != nullptr;
}

void Crece(QWidget& widget, double veces) {
    if (PoneSusLetras(widget))
        widget.setFont(Crecida(widget.font(), veces));
    if (auto* escrito = qobject_cast<QLineEdit*>(&widget))
        escrito->setTextMargins(escrito->textMargins() * veces);
    if (SeOrdenaSolo(widget))
        return;
    delete widget.layout();
    if (auto* ventana = qobject_cast<QScrollArea*>(&widget)) {
        ventana->widget()->setFixedSize(Crecido(ventana->widget()->rect(), veces).size());
        return;
    }
    for (QObject* hijo : widget.children()) {
        auto* dentro = qobject_cast<QWidget*>(hijo);
        if (dentro == nullptr || dentro->isWindow())
            continue;
        const QRect sitio = Crecido(dentro->geometry(), veces);
        dentro->setFixedSize(sitio.size());
        dentro->move(sitio.topLeft());
        Crece(*dentro, veces);
    }
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

double AumentoDe(const QWidget& widget) {
    const auto* ventana = dynamic_cast<const VentanaCrecida*>(widget.window());
    return ventana == nullptr ? 1 : ventana->Aumento();
}

QRect CajaDe(const QWidget& widget) {
    const double veces = AumentoDe(widget);
    return {0, 0, qRound(widget.width() / veces), qRound(widget.height() / veces)};
}

QPointF PuntoEn(const QWidget& widget, const QPointF& donde) {
    return donde / AumentoDe(widget);
}

PintorDeVista::PintorDeVista(QWidget* widget) : QPainter(widget) {
    const double veces = AumentoDe(*widget);
    scale(veces, veces);
}

void PintaPieza(QPainter& p, const QPointF& donde, const lamina::Recorte& pieza) {
    const QTransform a_pixeles = p.deviceTransform();
    const QImage& dibujo = PiezaDe(pieza, a_pixeles.m11());
    const EnPixeles pixeles(p);
    p.drawImage(a_pixeles.map(donde).toPoint(), dibujo);
}

void PintaPieza(QPainter& p, const QRect& donde, const lamina::Recorte& pieza, int borde) {
    const QTransform a_pixeles = p.deviceTransform();
    const QImage& dibujo = PiezaDe(pieza, a_pixeles.m11());
    const QPoint esquina = a_pixeles.map(QPointF(donde.topLeft())).toPoint();
    const QPoint fin = a_pixeles.map(QPointF(donde.bottomRight() + QPoint(1, 1))).toPoint();
    const int grueso = qRound(borde * a_pixeles.m11());
    const EnPixeles pixeles(p);
    const auto cortes = [grueso](int principio, int final) {
        return std::array{principio, principio + grueso, final - grueso, final};
    };
    const auto a_x = cortes(esquina.x(), fin.x()), a_y = cortes(esquina.y(), fin.y());
    const auto de_x = cortes(0, dibujo.width()), de_y = cortes(0, dibujo.height());
    for (std::size_t fila = 0; fila < 3; ++fila) {
        for (std::size_t columna = 0; columna < 3; ++columna) {
            const QRect a(QPoint(a_x[columna], a_y[fila]),
                          QPoint(a_x[columna + 1] - 1, a_y[fila + 1] - 1));
            const QRect de(QPoint(de_x[columna], de_y[fila]),
                           QPoint(de_x[columna + 1] - 1, de_y[fila + 1] - 1));
            p.drawImage(a, dibujo, de);
        }
    }
}

void PintaTexto(QPainter& p, const QRect& donde, int alineacion, const QString& texto) {
    const int ancho = p.fontMetrics().horizontalAdvance(texto);
    if (ancho <= donde.width())
        return p.drawText(donde, alineacion, texto);
    p.save();
    p.translate(donde.left(), 0);
    p.scale(1.0 * donde.width() / ancho, 1);
    p.drawText(QRect(0, donde.top(), ancho, donde.height()), alineacion, texto);
    p.restore();
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
    PintaTexto(p, banda, Qt::AlignCenter, titulo);
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
    return QSize(std::max(ancho, 104), 34) * estilo::AumentoDe(*this);
}

void BotonSuite::paintEvent(QPaintEvent*) {
    constexpr int kBorde = 10;
    estilo::PintorDeVista p(this);
    const QRect todo = estilo::CajaDe(*this);
    if (!isEnabled())
        p.setOpacity(0.45);
    estilo::PintaPieza(p, todo, isDown() ? lamina::kMensajePulsado : lamina::kMensajeArriba,
                       kBorde);
    p.setRenderHint(QPainter::Antialiasing);
    if (underMouse() && isEnabled() && !isDown()) {
        p.setPen(Qt::NoPen);
        p.setBrush(QColor(255, 255, 255, 90));
        p.drawRoundedRect(QRectF(todo).adjusted(4, 4, -4, -4), 5, 5);
    }
    p.setPen(estilo::kBanda);
    estilo::PintaTexto(p, todo.adjusted(4, 0, -4, 0).translated(0, isDown() ? 1 : 0),
                       Qt::AlignCenter, text());
    if (!hasFocus())
        return;
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(estilo::kBanda, 1, Qt::DotLine));
    p.drawRoundedRect(QRectF(todo).adjusted(6.5, 6.5, -6.5, -6.5), 4, 4);
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

void DejaElTecladoALaCaja(const QWidget& ventana, const QEvent& evento) {
    QWidget* caja = QApplication::activeModalWidget();
    if (evento.type() != QEvent::ActivationChange || !ventana.isActiveWindow() || caja == nullptr ||
        caja == &ventana)
        return;
    caja->raise();
    caja->activateWindow();
}

void DialogoSuite::CreceConLaMesa() {
    const QSize libre = screen()->availableGeometry().size();
    const double cabe = std::min(1.0 * libre.width() / width(), 1.0 * libre.height() / height());
    const double veces = std::max(std::min(FactorDeMesa(), cabe), MenorFactor(devicePixelRatioF()));
    if (veces == 1)
        return;
    if (layout() != nullptr)
        layout()->activate();
    for (QLayout* interior : findChildren<QLayout*>())
        interior->activate();
    aumento_ = veces;
    const QSize crecido = Crecido(rect(), veces).size();
    Crece(*this, veces);
    setFixedSize(crecido);
}

void DialogoSuite::CentraEn(const QRect& donde) {
    QRect sitio(QPoint(0, 0), size());
    sitio.moveCenter(donde.center());
    sitio.moveLeft(std::max(sitio.left(), donde.left()));
    sitio.moveTop(std::max(sitio.top(), donde.top()));
    move(sitio.topLeft());
}

void DialogoSuite::changeEvent(QEvent* evento) {
    QDialog::changeEvent(evento);
    DejaElTecladoALaCaja(*this, *evento);
}

void DialogoSuite::paintEvent(QPaintEvent*) {
    estilo::PintorDeVista p(this);
    estilo::PintaPanel(p, estilo::CajaDe(*this), windowTitle());
}

void DialogoSuite::mousePressEvent(QMouseEvent* evento) {
    if (evento->button() == Qt::LeftButton &&
        estilo::PuntoEn(*this, evento->position()).y() < estilo::kAltoBanda + estilo::kReborde)
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
