#include "platform/qt/frame_layer.h"

#include <QApplication>
#include <QEvent>
#include <QPainter>

#include "platform/qt/control_view.h"
#include "platform/qt/scale.h"

namespace {

constexpr double kRedondeo = 6;
constexpr int kAlrededor = 5; // what a frame paints beyond its place, table pixels

struct Trazo {
    QColor color;
    double grueso;
    Qt::PenStyle estilo;
};

// A light line on a dark one is seen on the felt and on white cards alike.
const std::array<Trazo, 2>& TrazosDe(Marco cual) {
    static const std::array<Trazo, 2> kDeTeclas{
        {{QColor(40, 24, 0), 7, Qt::SolidLine}, {QColor(255, 200, 40), 3.5, Qt::SolidLine}}};
    static const std::array<Trazo, 2> kDePuntero{
        {{QColor(0, 70, 0), 4, Qt::SolidLine}, {QColor(120, 255, 120), 2, Qt::SolidLine}}};
    return cual == Marco::DeTeclas ? kDeTeclas : kDePuntero;
}

void Traza(QPainter& pintor, Marco cual, const Rectangulo& donde) {
    const double factor = FactorDeMesa();
    const QRectF caja = EnVentana(donde);
    for (const Trazo& trazo : TrazosDe(cual)) {
        pintor.setPen(QPen(trazo.color, trazo.grueso * factor, trazo.estilo));
        pintor.drawRoundedRect(caja, kRedondeo * factor, kRedondeo * factor);
    }
}

bool FocoEnUnBoton() {
    return qobject_cast<VistaControl*>(QApplication::focusWidget()) != nullptr;
}

} // namespace

CapaMarcos::CapaMarcos(QWidget* mesa) : QWidget(mesa) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    setGeometry(mesa->rect());
    mesa->installEventFilter(this);
    // With the focus on a button its own mark tells where the keys go.
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
    if (marcos_.empty())
        return;
    QPainter pintor(this);
    pintor.setRenderHint(QPainter::Antialiasing);
    pintor.setBrush(Qt::NoBrush);
    for (const auto& [cual, donde] : marcos_) {
        if (cual == Marco::DePuntero || !FocoEnUnBoton())
            Traza(pintor, cual, donde);
    }
}

bool CapaMarcos::eventFilter(QObject* mesa, QEvent* evento) {
    if (evento->type() == QEvent::Resize)
        setGeometry(static_cast<QWidget*>(mesa)->rect());
    return false;
}
