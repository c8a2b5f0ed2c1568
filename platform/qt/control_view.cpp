#include "platform/qt/control_view.h"

#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>

#include "platform/qt/pointers.h"
#include "platform/qt/scale.h"
#include "table/button_column.h"

namespace {

enum class Trato { Panel, Placa, Movil, Boton };

// How the player meets each control: a panel takes the mouse and says nothing, a plate and the held card
// let it through to the felt, a button is clicked.
Trato TratoDe(Control control) {
    switch (control) {
    case Control::Mesa:
    case Control::Pic_Botonera:
    case Control::Pic_SelOpciones:
    case Control::Pic_Sugerencia:
    case Control::Pic_Apostadora:
        return Trato::Panel;
    case Control::Pic_Tantos:
    case Control::Pic_Tanteo:
    case Control::Pic_Aviso:
    case Control::Pic_APApoJugAct:
    case Control::Pic_APApoJugAcu:
        return Trato::Placa;
    case Control::Pic_Mover:
    case Control::Pic_NumerosCristal:
        return Trato::Movil;
    default:
        return Trato::Boton;
    }
}

bool SigueElRaton(Control control) {
    return control == Control::Pic_Botonera || control == Control::Pic_SelOpciones;
}

QAccessible::Role PapelDe(Trato trato) {
    switch (trato) {
    case Trato::Boton:
        return QAccessible::Button;
    case Trato::Placa:
        return QAccessible::StaticText;
    default:
        return QAccessible::Pane;
    }
}

class AccesoControl : public QAccessibleWidget {
public:
    explicit AccesoControl(VistaControl* vista)
        : QAccessibleWidget(vista, PapelDe(TratoDe(vista->Cual()))) {}

    // Most tool tips only say the name.
    QString text(QAccessible::Text cual) const override {
        const QString texto = QAccessibleWidget::text(cual);
        return cual == QAccessible::Description && texto == text(QAccessible::Name) ? QString()
                                                                                    : texto;
    }

    QAccessible::State state() const override {
        QAccessible::State estado = QAccessibleWidget::state();
        estado.disabled = Vista()->ElPuntero() == Puntero::Prohibido;
        return estado;
    }

    QStringList actionNames() const override {
        return Vista()->EsBoton() ? QStringList{pressAction(), setFocusAction()} : QStringList{};
    }

    void doAction(const QString& accion) override {
        if (accion == pressAction())
            Vista()->Pulsa();
        else
            QAccessibleWidget::doAction(accion);
    }

private:
    VistaControl* Vista() const { return static_cast<VistaControl*>(widget()); }
};

QAccessibleInterface* HazAcceso(const QString&, QObject* objeto) {
    auto* vista = qobject_cast<VistaControl*>(objeto);
    return vista != nullptr ? new AccesoControl(vista) : nullptr;
}

} // namespace

void InstalaAccesoControles() {
    QAccessible::installFactory(HazAcceso);
}

double RatioDeVentana(const Imagenes& imagenes) {
    return imagenes.Ratio() / FactorDeMesa();
}

void PintaCuadro(QPainter& pintor, const QImage& cuadro, const Imagenes& imagenes,
                 const QRect& expuesto) {
    const double ratio = RatioDeVentana(imagenes);
    pintor.scale(1 / ratio, 1 / ratio);
    const QRectF dispositivo(QPointF(expuesto.topLeft()) * ratio, QSizeF(expuesto.size()) * ratio);
    const QRect trozo = dispositivo.toAlignedRect().adjusted(-1, -1, 1, 1) & cuadro.rect();
    pintor.drawImage(trozo.topLeft(), cuadro, trozo);
}

VistaControl::VistaControl(Control control, int indice, QWidget* padre, Imagenes& imagenes,
                           ColaEventos& cola)
    : QWidget(padre),
      control_(control),
      indice_(indice),
      cola_(cola),
      imagenes_(imagenes),
      lienzo_(imagenes, FondoDe(control)) {
    setObjectName(QString::fromUtf8(NombreDe(control)));
    setVisible(false);
    setFocusPolicy(EsBoton() ? Qt::TabFocus : Qt::NoFocus);
    setMouseTracking(SigueElRaton(control));
    const Trato trato = TratoDe(control);
    setAttribute(Qt::WA_TransparentForMouseEvents, trato == Trato::Placa || trato == Trato::Movil);
}

bool VistaControl::EsBoton() const {
    return TratoDe(control_) == Trato::Boton;
}

bool VistaControl::EsMovil() const {
    return TratoDe(control_) == Trato::Movil;
}

void VistaControl::Coloca(const Rectangulo& donde) {
    donde_ = donde;
    const QSize tamano(donde.ancho, donde.alto);
    // As large as its picture, wherever it stands.
    const QRect entera = EnVentana({0, 0, donde.ancho, donde.alto});
    setGeometry(QRect(EnVentana(donde).topLeft(), entera.size()));
    if (tamano != lienzo_.Tamano())
        lienzo_.PonTamano(tamano, false);
}

void VistaControl::AdaptaRatio() {
    Coloca(donde_);
    lienzo_.AdaptaRatio();
    setCursor(CursorDe(puntero_));
}

void VistaControl::PonPuntero(Puntero puntero) {
    const bool cambia = (puntero == Puntero::Prohibido) != (puntero_ == Puntero::Prohibido);
    puntero_ = puntero;
    setCursor(CursorDe(puntero));
    if (!cambia)
        return;
    QAccessible::State distinto;
    distinto.disabled = true;
    QAccessibleStateChangeEvent aviso(this, distinto);
    QAccessible::updateAccessibility(&aviso);
}

QString VistaControl::Teclas() const {
    switch (control_) {
    case Control::Pic_Boton:
        return QStringLiteral(" (F%1)").arg(TeclaDelBoton(indice_));
    case Control::Pic_BotContinuar:
        return QStringLiteral(" (Espacio, Intro, letras o números)");
    default:
        return {};
    }
}

void VistaControl::Nombra(const QString& nombre) {
    setAccessibleName(nombre);
    setToolTip(nombre + Teclas());
}

QRectF VistaControl::Dibujo() const {
    const int corrido = control_ == Control::Pic_Boton ? CorridoDelBoton(indice_) : 0;
    return {corrido * FactorDeMesa(), 0, donde_.ancho * FactorDeMesa(),
            donde_.alto * FactorDeMesa()};
}

void VistaControl::Pulsa(std::optional<Milisegundos> desde) {
    Evento clic;
    clic.tipo = TipoEvento::Clic;
    clic.control = control_;
    clic.indice = indice_;
    clic.desde = desde;
    cola_.Pon(clic);
}

void VistaControl::paintEvent(QPaintEvent* evento) {
    QPainter p(this);
    PintaCuadro(p, lienzo_.Cuadro(), imagenes_, evento->rect());
}

void VistaControl::Avisa(TipoEvento tipo, const QMouseEvent& evento) {
    Evento raton;
    raton.tipo = tipo;
    raton.control = control_;
    raton.indice = indice_;
    raton.x = EnMesa(evento.position()).x();
    raton.y = EnMesa(evento.position()).y();
    raton.boton = evento.button() == Qt::RightButton ? 2 : 1;
    cola_.Pon(raton);
}

void VistaControl::mousePressEvent(QMouseEvent* evento) {
    apretado_ = cola_.Ahora();
    evento->accept();
}

void VistaControl::mouseReleaseEvent(QMouseEvent* evento) {
    const bool dentro = rect().contains(evento->position().toPoint());
    if (!dentro || evento->button() != Qt::LeftButton)
        return;
    if (EsBoton())
        Pulsa(apretado_);
    if (control_ == Control::Pic_SelOpciones)
        Avisa(TipoEvento::RatonSuelta, *evento);
}

void VistaControl::mouseMoveEvent(QMouseEvent* evento) {
    if (SigueElRaton(control_))
        Avisa(TipoEvento::RatonMueve, *evento);
}

void VistaControl::keyPressEvent(QKeyEvent* evento) {
    switch (evento->key()) {
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (EsBoton() && !evento->isAutoRepeat())
            return Pulsa();
        break;
    default:
        break;
    }
    evento->ignore();
}
