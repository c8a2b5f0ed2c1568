#include "platform/qt/felt.h"

#include <QCursor>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QTimerEvent>
#include <utility>

#include "platform/qt/control_view.h"
#include "platform/qt/pointers.h"
#include "platform/qt/scale.h"
#include "table/frames.h"
#include "table/keyboard_walk.h"

namespace {
constexpr Qt::MouseButtons kBotones = Qt::LeftButton | Qt::RightButton; // the game knows no other
} // namespace

CapaVuelo::CapaVuelo(QWidget* padre, Imagenes& imagenes) : QWidget(padre), imagenes_(imagenes) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
}

void CapaVuelo::Vuela(int x, int y, const ImagenCarta& carta) {
    sucio_ += Caja();
    if (carta != carta_) {
        carta_ = carta;
        imagen_ = imagenes_.Carta(carta);
    }
    donde_ = {imagenes_.Px(x), imagenes_.Px(y)};
    sucio_ += Caja();
}

void CapaVuelo::Posa() {
    sucio_ += Caja();
    carta_.reset();
    imagen_ = {};
}

void CapaVuelo::AdaptaRatio() {
    Posa();
    sucio_ = {};
}

QRegion CapaVuelo::TomaSucio() {
    return std::exchange(sucio_, {});
}

void CapaVuelo::paintEvent(QPaintEvent*) {
    if (imagen_.isNull())
        return;
    QPainter p(this);
    p.scale(1 / RatioDeVentana(imagenes_), 1 / RatioDeVentana(imagenes_));
    p.drawImage(donde_, imagen_);
}

Tapete::Tapete(Imagenes& imagenes, ColaEventos& cola)
    : imagenes_(imagenes),
      cola_(cola),
      lienzo_(imagenes, Fondo::Fieltro),
      vuelo_(this, imagenes),
      arbol_(this, [this](const Objetivo& objetivo, int boton) { Pulsa(objetivo, boton); }) {
    setObjectName(QString::fromUtf8(NombreDe(Control::Mesa)));
    setAttribute(Qt::WA_OpaquePaintEvent);
    PonMinimo();
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(QStringLiteral("Mesa de juego"));
}

void Tapete::PonPuntero(Puntero puntero) {
    puntero_ = puntero;
    setCursor(CursorDe(puntero));
}

void Tapete::paintEvent(QPaintEvent* evento) {
    QPainter p(this);
    PintaCuadro(p, lienzo_.Cuadro(), imagenes_, evento->rect());
    if (ratio_pedido_ || devicePixelRatioF() * FactorDeMesa() == imagenes_.Ratio())
        return;
    ratio_pedido_ = true;
    startTimer(0);
}

void Tapete::timerEvent(QTimerEvent* evento) {
    killTimer(evento->timerId());
    ratio_pedido_ = false;
    if (al_cambiar_ratio)
        al_cambiar_ratio();
}

// Where the screen's pixels are many and the window's few, the table is drawn smaller rather than scrolled.
void Tapete::PonMinimo() {
    setMinimumSize(VentanaMinima(devicePixelRatioF()));
}

void Tapete::AdaptaRatio() {
    PonMinimo();
    lienzo_.PonTamano(TamanoEnMesa(size()), true);
    vuelo_.AdaptaRatio();
    setCursor(CursorDe(puntero_));
}

// The factor stays until the game takes the new size: nothing that is on its way jumps.
void Tapete::resizeEvent(QResizeEvent*) {
    lienzo_.PonTamano(TamanoEnMesa(size()), true);
    vuelo_.setGeometry(rect());
    Evento tamano;
    tamano.tipo = TipoEvento::Tamano;
    cola_.Pon(tamano);
}

void Tapete::Avisa(TipoEvento tipo, const QMouseEvent& evento) {
    Avisa(tipo, evento.position(), evento.button() == Qt::RightButton ? 2 : 1);
}

void Tapete::Avisa(TipoEvento tipo, QPointF donde, int boton) {
    Evento raton;
    raton.tipo = tipo;
    raton.x = EnMesa(donde).x();
    raton.y = EnMesa(donde).y();
    raton.boton = boton;
    cola_.Pon(raton);
}

// The game takes the pointer's shape for what a click will do, so that every press comes with a move to its
// own place ahead of it.
void Tapete::mousePressEvent(QMouseEvent* evento) {
    if (evento->button() != Qt::LeftButton && evento->button() != Qt::RightButton)
        return;
    Avisa(TipoEvento::RatonMueve, *evento);
    Avisa(TipoEvento::RatonPulsa, *evento);
    apretado_ = true;
}

void Tapete::mouseDoubleClickEvent(QMouseEvent* evento) {
    mousePressEvent(evento);
}

void Tapete::mouseReleaseEvent(QMouseEvent* evento) {
    if (evento->button() != Qt::LeftButton && evento->button() != Qt::RightButton)
        return;
    apretado_ = (evento->buttons() & kBotones) != Qt::NoButton;
    Avisa(TipoEvento::RatonSuelta, *evento);
    if (rect().contains(evento->position().toPoint()))
        Avisa(TipoEvento::RatonClic, *evento);
}

// A button let go where nobody told the window, under a screen lock or a box of another program, is told as soon as
// the pointer comes back without it: no card stays on the pointer.
void Tapete::mouseMoveEvent(QMouseEvent* evento) {
    if (apretado_ && (evento->buttons() & kBotones) == Qt::NoButton) {
        apretado_ = false;
        Avisa(TipoEvento::RatonSuelta, *evento);
    }
    Avisa(TipoEvento::RatonMueve, *evento);
}

void Tapete::Pulsa(const Objetivo& objetivo, int boton) {
    for (const Evento& evento : EventosDeClic(objetivo, boton))
        cola_.Pon(evento);
}

// A dialog that opens between a press and its release swallows the release, and a second one may come and go while the
// button is down: without this the card would hang on the pointer until the next move over the felt.
void Tapete::NotaSueltaCallada() {
    if (!apretado_ || (QGuiApplication::mouseButtons() & kBotones) != Qt::NoButton)
        return;
    apretado_ = false;
    Avisa(TipoEvento::RatonSuelta, mapFromGlobal(QPointF(QCursor::pos())), 1);
}

// Over a button and outside of the window nobody tells where the pointer is: a card would stay outlined.
void Tapete::leaveEvent(QEvent*) {
    if (!apretado_ && HayMarco(Marco::DePuntero))
        Avisa(TipoEvento::RatonMueve, QPointF(-1, -1), 0);
}

void Tapete::keyPressEvent(QKeyEvent* evento) {
    if (auto mando = MandoDe(*evento)) {
        setFocus(); // from a button that had it: one mark at a time tells where the keys go
        mando->desde = cola_.Ahora();
        return cola_.Pon(*mando);
    }
    const auto caracter = CaracterDe(*evento);
    if (!caracter)
        return QWidget::keyPressEvent(evento);
    Evento tecla;
    tecla.tipo = TipoEvento::Tecla;
    tecla.tecla = *caracter;
    tecla.desde = cola_.Ahora();
    cola_.Pon(tecla);
}
