#include "platform/qt/frame_layer.h"

#include <QApplication>
#include <QEvent>
#include <QPainter>

#include "platform/qt/control_view.h"
#include "platform/qt/scale.h"

namespace {

constexpr double kRedondeo = 6;
constexpr int kAlrededor = 14; // what a frame and its sign paint beyond its place, table pixels

struct Trazo {
    QColor color;
    double grueso = 0;
    Qt::PenStyle estilo = Qt::SolidLine;
};

// A light line on a dark one is seen on the felt and on white cards alike.
using Trazos = std::array<Trazo, 2>;

const Trazos& TrazosDe(Marco cual) {
    static const std::array<Trazos, 3> kTodos{
        {{{{QColor(40, 24, 0), 7, Qt::SolidLine}, {QColor(255, 200, 40), 3.5, Qt::SolidLine}}},
         {{{QColor(60, 0, 0), 7, Qt::SolidLine}, {QColor(255, 190, 180), 3.5, Qt::DashLine}}},
         {{{QColor(0, 70, 0), 4, Qt::SolidLine}, {QColor(120, 255, 120), 2, Qt::SolidLine}}}}};
    return kTodos.at(static_cast<std::size_t>(cual));
}

// A disc with a bar, on the middle of the upper edge: it covers no rank, and is seen on the narrowest strip of a card.
void TrazaProhibido(QPainter& pintor, const QRectF& caja) {
    constexpr double kRadio = 8, kSobreElBorde = 4, kBorde = 2, kMediaBarra = 5, kGrueso = 4;
    const double factor = FactorDeMesa();
    const QPointF centro(caja.center().x(), caja.top() - kSobreElBorde * factor);
    const QPointF media_barra(kMediaBarra * factor, 0);
    pintor.setPen(QPen(Qt::white, kBorde * factor));
    pintor.setBrush(QColor(190, 0, 0));
    pintor.drawEllipse(centro, kRadio * factor, kRadio * factor);
    pintor.setPen(QPen(Qt::white, kGrueso * factor, Qt::SolidLine, Qt::FlatCap));
    pintor.drawLine(centro - media_barra, centro + media_barra);
    pintor.setBrush(Qt::NoBrush);
}

void Traza(QPainter& pintor, Marco cual, const Rectangulo& donde) {
    const double factor = FactorDeMesa();
    const QRectF caja = EnVentana(donde);
    for (const Trazo& trazo : TrazosDe(cual)) {
        pintor.setPen(QPen(trazo.color, trazo.grueso * factor, trazo.estilo));
        pintor.drawRoundedRect(caja, kRedondeo * factor, kRedondeo * factor);
    }
    if (cual == Marco::DeTeclasVedado)
        TrazaProhibido(pintor, caja);
}

// Around its picture, which need not lie within the button's own place.
void TrazaFoco(QPainter& pintor, const VistaControl& boton, const QWidget& mesa) {
    constexpr double kDentro = 2, kGrueso = 2;
    const double factor = FactorDeMesa(), dentro = kDentro * factor;
    const QRectF dibujo = boton.Dibujo().translated(boton.mapTo(&mesa, QPoint(0, 0)));
    pintor.setPen(QPen(QColor(255, 244, 170), kGrueso * factor, Qt::DotLine));
    pintor.drawRoundedRect(dibujo.adjusted(dentro, dentro, -dentro, -dentro), kRedondeo * factor,
                           kRedondeo * factor);
}

} // namespace

CapaMarcos::CapaMarcos(QWidget* mesa) : QWidget(mesa) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    setGeometry(mesa->rect());
    mesa->installEventFilter(this);
    // With the focus on a button a ring around it tells where the keys go.
    connect(qApp, &QApplication::focusChanged, this, [this] { update(); });
}

void CapaMarcos::Actualiza(const Rectangulo& donde) {
    update(EnVentana({donde.x - kAlrededor, donde.y - kAlrededor, donde.ancho + 2 * kAlrededor,
                      donde.alto + 2 * kAlrededor}));
}

void CapaMarcos::Pon(Marco cual, const std::optional<Rectangulo>& donde) {
    const auto antes = marcos_.find(cual);
    if (antes != marcos_.end()) {
        if (donde == antes->second)
            return;
        Actualiza(antes->second);
        marcos_.erase(antes);
    }
    if (!donde)
        return;
    marcos_[cual] = *donde;
    Actualiza(*donde);
}

void CapaMarcos::paintEvent(QPaintEvent*) {
    const auto* boton = qobject_cast<VistaControl*>(QApplication::focusWidget());
    if (marcos_.empty() && boton == nullptr)
        return;
    QPainter pintor(this);
    pintor.setRenderHint(QPainter::Antialiasing);
    pintor.setBrush(Qt::NoBrush);
    for (const auto& [cual, donde] : marcos_) {
        if (cual == Marco::DePuntero || boton == nullptr)
            Traza(pintor, cual, donde);
    }
    if (boton != nullptr && parentWidget()->isAncestorOf(boton))
        TrazaFoco(pintor, *boton, *parentWidget());
}

bool CapaMarcos::eventFilter(QObject* mesa, QEvent* evento) {
    if (evento->type() == QEvent::Resize)
        setGeometry(static_cast<QWidget*>(mesa)->rect());
    return false;
}
