#include "forms/controls_view.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "core/game_state.h"
#include "platform/qt/canvas_qt.h"
#include "platform/qt/pointers.h"
#include "platform/qt/suite_paint.h"
#include "table/messages.h"

namespace {

constexpr int kMargen = 8;
constexpr int kAltoTitulo = 15;
constexpr int kAnchoValor = 36; // the words beside a slider
constexpr int kLadoMarca = 16;
constexpr int kAnchoNumero = 64;
constexpr Fuente kLetra{.alto = 12}, kLetraTitulo{.alto = 11, .negrita = true};

// An arrow's step takes twice this, as Pausa counts it, and never so little that a click would make several.
constexpr int kMedioCompas = 60, kMedioCompasMinimo = 50;

QColor Tenue(const QPalette& paleta) {
    QColor color = paleta.color(QPalette::WindowText);
    color.setAlphaF(0.55F);
    return color;
}

// A field in which a value stands; tinted when it cannot be written in.
void PintaCampo(QPainter& p, const QRect& donde, bool con_foco, bool fijo = false) {
    p.setRenderHint(QPainter::Antialiasing);
    p.setBrush(fijo ? QColor(226, 214, 182) : QColor(Qt::white));
    p.setPen(QPen(con_foco ? QColor(214, 158, 32) : QColor(120, 84, 44), con_foco ? 2 : 1));
    p.drawRoundedRect(QRectF(donde).adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
}

bool EsIntro(const QKeyEvent& evento) {
    return evento.key() == Qt::Key_Return || evento.key() == Qt::Key_Enter;
}

// A mark and its words behind it.
void PintaMarca(QPainter& p, const QAbstractButton& boton, const lamina::Recorte& pieza) {
    const QRect todo = estilo::CajaDe(boton);
    p.setOpacity(boton.isEnabled() ? 1 : 0.45);
    const int arriba = (todo.height() - kLadoMarca) / 2;
    estilo::PintaPieza(p, QPoint(0, arriba), pieza);
    p.setFont(boton.font());
    p.setPen(boton.palette().color(QPalette::WindowText));
    const QRect letras = todo.adjusted(kLadoMarca + 6, 0, 0, 0);
    estilo::PintaTexto(p, letras, Qt::AlignVCenter | Qt::AlignLeft, boton.text());
    p.setOpacity(1);
    if (boton.hasFocus())
        forma::PintaFoco(p, todo, boton.palette());
}

QSize TamanoMarca(const QAbstractButton& boton) {
    return {kLadoMarca + 12 + boton.fontMetrics().horizontalAdvance(boton.text()), 22};
}

} // namespace

namespace forma {

void PintaPanel(QPainter& pintor, const QRect& donde, const lamina::Recorte& pieza) {
    estilo::PintaPieza(pintor, donde, pieza, lamina::kBordePanel);
}

void PintaRecuadro(QPainter& p, const QRect& donde, const QString& titulo, const QPalette& paleta) {
    p.setRenderHint(QPainter::Antialiasing);
    p.setFont(LetraDe(kLetraTitulo));
    const int letras =
        std::min(p.fontMetrics().horizontalAdvance(titulo), donde.width() - 2 * kMargen);
    const QRect hueco(donde.left() + kMargen - 3, donde.top(), letras + 6, kAltoTitulo);
    const QRectF marco = QRectF(donde).adjusted(0.5, kAltoTitulo / 2.0, -0.5, -0.5);
    p.save();
    p.setClipRegion(QRegion(donde) - QRegion(hueco));
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(Tenue(paleta), 1));
    p.drawRoundedRect(marco, 6, 6);
    p.restore();
    p.setPen(paleta.color(QPalette::WindowText));
    estilo::PintaTexto(p, hueco, Qt::AlignCenter, titulo);
}

void PintaFoco(QPainter& p, const QRect& donde, const QPalette& paleta) {
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(paleta.color(QPalette::WindowText), 1, Qt::DotLine));
    // On the middle of the pixels: on their edge a side would lie half outside, and be lost at a scale of 1.5.
    p.drawRect(QRectF(donde).adjusted(0.5, 0.5, -0.5, -0.5));
}

} // namespace forma

// ---- selector

void PanelHundido::paintEvent(QPaintEvent*) {
    estilo::PintorDeVista p(this);
    forma::PintaPanel(p, estilo::CajaDe(*this), lamina::kPanelHundido);
}

SelectorVista::SelectorVista(const QString& titulo, const QString& que, int ancho, QWidget* padre)
    : QAbstractButton(padre), titulo_(titulo), que_(que) {
    setFixedSize(ancho, forma::kAltoCelda);
    setFocusPolicy(Qt::StrongFocus);
    setFont(LetraDe(kLetra));
}

void SelectorVista::Muestra(const QString& valor) {
    valor_ = valor;
    setAccessibleName(que_ + ": " + valor);
    update();
}

QSize SelectorVista::sizeHint() const {
    return size();
}

QRect SelectorVista::Flecha() const {
    const lamina::Recorte& pieza = lamina::kSelectorArriba;
    return {estilo::CajaDe(*this).width() - kMargen - pieza.ancho, kAltoTitulo + 3, pieza.ancho,
            pieza.alto};
}

QRect SelectorVista::Campo() const {
    const QRect flecha = Flecha();
    return {kMargen, flecha.top(), flecha.left() - kMargen - 4, flecha.height()};
}

bool SelectorVista::hitButton(const QPoint& donde) const {
    return Flecha().contains(estilo::PuntoEn(*this, donde).toPoint());
}

void SelectorVista::paintEvent(QPaintEvent*) {
    estilo::PintorDeVista p(this);
    forma::PintaRecuadro(p, estilo::CajaDe(*this), titulo_, palette());
    const QRect campo = Campo();
    PintaCampo(p, campo, hasFocus());
    p.setFont(font());
    p.setPen(palette().color(QPalette::Text));
    estilo::PintaTexto(p, campo.adjusted(6, 0, -2, 0), Qt::AlignVCenter | Qt::AlignLeft, valor_);
    estilo::PintaPieza(p, Flecha().topLeft(),
                       isDown() ? lamina::kSelectorPulsado : lamina::kSelectorArriba);
}

void SelectorVista::keyPressEvent(QKeyEvent* evento) {
    if (!EsIntro(*evento))
        return QAbstractButton::keyPressEvent(evento);
    if (!evento->isAutoRepeat())
        click();
}

// ---- check box, option

CasillaVista::CasillaVista(const QString& texto, QWidget* padre) : QCheckBox(texto, padre) {
    setFont(LetraDe(kLetra));
}

QSize CasillaVista::sizeHint() const {
    return TamanoMarca(*this);
}

bool CasillaVista::hitButton(const QPoint& donde) const {
    return rect().contains(donde);
}

void CasillaVista::paintEvent(QPaintEvent*) {
    estilo::PintorDeVista p(this);
    PintaMarca(p, *this, isChecked() ? lamina::kCasillaMarcada : lamina::kCasillaVacia);
}

OpcionVista::OpcionVista(const QString& texto, QWidget* padre) : QRadioButton(texto, padre) {
    setAutoExclusive(false);
    setFont(LetraDe(kLetra));
}

QSize OpcionVista::sizeHint() const {
    return TamanoMarca(*this);
}

bool OpcionVista::hitButton(const QPoint& donde) const {
    return rect().contains(donde);
}

void OpcionVista::paintEvent(QPaintEvent*) {
    estilo::PintorDeVista p(this);
    PintaMarca(p, *this, isChecked() ? lamina::kOpcionMarcada : lamina::kOpcionVacia);
}

// ---- slider

DeslizadorVista::DeslizadorVista(const QString& titulo, const QString& que, int ancho,
                                 QWidget* padre)
    : QSlider(Qt::Horizontal, padre), titulo_(titulo), que_(que) {
    setFixedSize(ancho, forma::kAltoCelda);
    setRange(0, 100);
    setPageStep(10);
    setMouseTracking(true);
    setFont(LetraDe(kLetra));
}

void DeslizadorVista::Muestra(int valor, const QString& texto) {
    texto_ = texto;
    setValue(valor);
    setAccessibleName(que_ + ": " + texto);
    update();
}

QSize DeslizadorVista::sizeHint() const {
    return size();
}

QRect DeslizadorVista::Carril() const {
    const lamina::Recorte& pieza = lamina::kCarrilDeslizador;
    return {kMargen, kAltoTitulo + 10, estilo::CajaDe(*this).width() - 2 * kMargen - kAnchoValor,
            pieza.alto};
}

QRect DeslizadorVista::Pomo() const {
    const lamina::Recorte& pieza = lamina::kPomoDeslizador;
    const QRect carril = Carril();
    const int camino = carril.width() - pieza.ancho;
    const int x = carril.left() + static_cast<int>(std::lround(camino * value() / 100.0));
    return {x, carril.center().y() - pieza.alto / 2, pieza.ancho, pieza.alto};
}

void DeslizadorVista::paintEvent(QPaintEvent*) {
    estilo::PintorDeVista p(this);
    forma::PintaRecuadro(p, estilo::CajaDe(*this), titulo_, palette());
    estilo::PintaPieza(p, Carril(), lamina::kCarrilDeslizador, Carril().height() / 2);
    estilo::PintaPieza(p, Pomo().topLeft(), lamina::kPomoDeslizador);
    p.setFont(font());
    p.setPen(palette().color(QPalette::WindowText));
    estilo::PintaTexto(
        p,
        QRect(estilo::CajaDe(*this).width() - kMargen - kAnchoValor, kAltoTitulo, kAnchoValor, 28),
        Qt::AlignVCenter | Qt::AlignRight, texto_);
    if (hasFocus())
        forma::PintaFoco(p, Carril().adjusted(-3, -9, 3, 9), palette());
}

void DeslizadorVista::mousePressEvent(QMouseEvent* evento) {
    const QPoint donde = estilo::PuntoEn(*this, evento->position()).toPoint();
    arrastra_ = evento->button() == Qt::LeftButton && Pomo().contains(donde);
    raton_al_pulsar_ = donde.x();
    valor_al_pulsar_ = value();
    evento->accept();
}

void DeslizadorVista::mouseMoveEvent(QMouseEvent* evento) {
    const QPoint donde = estilo::PuntoEn(*this, evento->position()).toPoint();
    if (arrastra_) {
        const int camino = Carril().width() - Pomo().width();
        const double cambio = (donde.x() - raton_al_pulsar_) * 100.0 / camino;
        setValue(valor_al_pulsar_ + static_cast<int>(std::lround(cambio)));
    }
    setCursor(arrastra_ || Pomo().contains(donde) ? CursorDe(Puntero::Ordenar)
                                                  : CursorDe(Puntero::Flecha));
}

void DeslizadorVista::mouseReleaseEvent(QMouseEvent* evento) {
    arrastra_ = false;
    mouseMoveEvent(evento);
}

// ---- text box

TextoVista::TextoVista(QWidget* padre) : QLineEdit(padre) {
    setFrame(false);
    setFont(LetraDe(kLetra));
    setTextMargins(5, 0, 5, 0);
    QPalette sin_fondo = palette();
    sin_fondo.setColor(QPalette::Base, Qt::transparent);
    setPalette(sin_fondo);
}

// What the widget adds on the painted field are the letters, the selection and the cursor.
void TextoVista::paintEvent(QPaintEvent* evento) {
    estilo::PintorDeVista p(this);
    PintaCampo(p, estilo::CajaDe(*this), hasFocus(), isReadOnly());
    p.end();
    QLineEdit::paintEvent(evento);
}

// ---- spin

FlechaSpin::FlechaSpin(bool sube, std::function<bool()> paso, QWidget* padre)
    : QWidget(padre), sube_(sube), paso_(std::move(paso)) {
    setFixedSize(lamina::kSpinSubeArriba.ancho, lamina::kSpinSubeArriba.alto);
    compas_.setSingleShot(true);
    connect(&compas_, &QTimer::timeout, this, &FlechaSpin::Late);
}

void FlechaSpin::paintEvent(QPaintEvent*) {
    estilo::PintorDeVista p(this);
    const lamina::Recorte& arriba = sube_ ? lamina::kSpinSubeArriba : lamina::kSpinBajaArriba;
    const lamina::Recorte& pulsada = sube_ ? lamina::kSpinSubePulsado : lamina::kSpinBajaPulsado;
    estilo::PintaPieza(p, QPointF(0, 0), hundida_ ? pulsada : arriba);
}

void FlechaSpin::mousePressEvent(QMouseEvent* evento) {
    if (evento->button() != Qt::LeftButton)
        return;
    sujeta_ = true;
    setCursor(Qt::BlankCursor);
    Pulsa();
}

void FlechaSpin::mouseReleaseEvent(QMouseEvent* evento) {
    if (evento->button() == Qt::LeftButton)
        Suelta();
}

void FlechaSpin::hideEvent(QHideEvent*) {
    Suelta();
}

void FlechaSpin::Suelta() {
    sujeta_ = false;
    unsetCursor();
}

// One step, with the arrow drawn pressed for the first half of its time.
void FlechaSpin::Pulsa() {
    if (!paso_())
        return;
    PonHundida(true);
}

void FlechaSpin::PonHundida(bool hundida) {
    hundida_ = hundida;
    update();
    const double medio = std::ceil(kMedioCompas * FactorPausa(estado.VelocidadJuego));
    compas_.start(std::max(kMedioCompasMinimo, static_cast<int>(medio)));
}

void FlechaSpin::Late() {
    if (hundida_)
        PonHundida(false);
    else if (sujeta_)
        Pulsa();
}

SpinVista::SpinVista(int indice, const QString& rotulo, Tratos tratos, QWidget* padre)
    : QWidget(padre), rotulo_(rotulo), tratos_(std::move(tratos)), texto_(new TextoVista(this)) {
    setFixedSize(forma::kAnchoAncho, forma::kAltoCelda);
    setObjectName(QStringLiteral("Pic_Spin_%1").arg(indice));
    texto_->setObjectName(QStringLiteral("Tex_Spin_%1").arg(indice));
    texto_->setAccessibleName(QString(rotulo).remove(QStringLiteral("...:")));
    texto_->setGeometry(kMargen, kAltoTitulo + 4, kAnchoNumero, 24);
    texto_->setText(QString::number(tratos_.valor()));
    texto_->installEventFilter(this);
    connect(texto_, &QLineEdit::textEdited, this, &SpinVista::Escrito);
    for (const bool sube : {true, false}) {
        auto* flecha = new FlechaSpin(
            sube, [this, sube] { return Paso(sube); }, this);
        flecha->setObjectName(
            (sube ? QStringLiteral("Pic_SpinSube_%1") : QStringLiteral("Pic_SpinBaja_%1"))
                .arg(indice));
        flecha->setAccessibleName(texto_->accessibleName() + (sube ? ": más" : ": menos"));
        flecha->move(kMargen + kAnchoNumero + 4,
                     kAltoTitulo + 6 + (sube ? 0 : lamina::kSpinSubeArriba.alto + 2));
    }
}

void SpinVista::paintEvent(QPaintEvent*) {
    estilo::PintorDeVista p(this);
    p.setFont(LetraDe(kLetraTitulo));
    p.setPen(palette().color(QPalette::WindowText));
    estilo::PintaTexto(p, QRect(kMargen, 0, estilo::CajaDe(*this).width() - kMargen, kAltoTitulo),
                       Qt::AlignVCenter | Qt::AlignLeft, rotulo_);
}

bool SpinVista::eventFilter(QObject* quien, QEvent* evento) {
    if (evento->type() == QEvent::KeyPress) {
        const int tecla = static_cast<QKeyEvent*>(evento)->key();
        if (tecla == Qt::Key_Up || tecla == Qt::Key_Down) {
            Paso(tecla == Qt::Key_Up);
            return true;
        }
    }
    return QWidget::eventFilter(quien, evento);
}

bool SpinVista::Paso(bool sube) {
    if (!tratos_.paso(sube))
        return false;
    texto_->setText(QString::number(tratos_.valor()));
    return true;
}

void SpinVista::Escrito(const QString& texto) {
    const QString queda = tratos_.escribe(texto);
    if (queda != texto)
        texto_->setText(queda);
}
