#include "forms/form_view.h"

#include <QApplication>
#include <QCloseEvent>
#include <QScreen>
#include <QWidget>

#include "forms/form.h"
#include "forms/refresh.h"
#include "platform/platform.h"

namespace {

// What the player does. A closing that does not come from the window system is someone else's, and not to be held.
bool EsEntrada(const QEvent& evento) {
    switch (evento.type()) {
    case QEvent::Close:
        return evento.spontaneous();
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
        return true;
    default:
        return false;
    }
}

} // namespace

FormaVista::FormaVista(const QString& titulo, const MandosForma& mandos, int tema_de_ayuda,
                       QWidget* sobre)
    : DialogoSuite(titulo, sobre), mandos_(mandos), tema_(tema_de_ayuda) {
    setAccessibleName(titulo);
}

void FormaVista::Muestra(QWidget* sobre) {
    mandos_.abre();
    auto el_de_debajo = PonRefresco([this] { Refresca(); });
    Refresca();
    CreceConLaMesa();
    CentraEn(sobre != nullptr ? sobre->frameGeometry() : screen()->availableGeometry());
    exec();
    PonRefresco(std::move(el_de_debajo));
    if (mandos_.abierta())
        mandos_.deja();
}

QImage FormaVista::Foto() {
    Refresca();
    return grab().toImage();
}

void FormaVista::reject() {
    Atiende([this] { mandos_.cierra(); });
}

void FormaVista::closeEvent(QCloseEvent* evento) {
    evento->ignore();
    reject();
}

void FormaVista::Atiende(const std::function<void()>& que) {
    if (ocupada_)
        return;
    ocupada_ = true;
    qApp->installEventFilter(this);
    que();
    qApp->removeEventFilter(this);
    ocupada_ = false;
    if (mandos_.abierta()) {
        Refresca();
        SueltaRetenidos();
    } else {
        retenidos_.clear();
        accept();
    }
}

QWidget* FormaVista::HazBotonAyuda() {
    auto* boton = new BotonSuite(QStringLiteral("Ayuda"), this);
    boton->setObjectName(QStringLiteral("Pic_BotAyuda"));
    connect(boton, &QPushButton::clicked, this, [this] { plataforma().Ayuda(tema_); });
    return boton;
}

QWidget* FormaVista::HazBotonSalir() {
    auto* boton = new BotonSuite(QStringLiteral("Cerrar"), this);
    boton->setObjectName(QStringLiteral("Pic_BotSalir"));
    connect(boton, &QPushButton::clicked, this, &FormaVista::reject);
    return boton;
}

bool FormaVista::EsDeLaForma(QObject* quien) const {
    return quien->isWidgetType() && static_cast<QWidget*>(quien)->window() == this;
}

bool FormaVista::eventFilter(QObject* quien, QEvent* evento) {
    if (!EsEntrada(*evento) || !EsDeLaForma(quien))
        return DialogoSuite::eventFilter(quien, evento);
    retenidos_.push_back({quien, std::unique_ptr<QEvent>(evento->clone())});
    if (evento->type() == QEvent::Close)
        evento->ignore();
    return true;
}

void FormaVista::SueltaRetenidos() {
    for (EventoRetenido& retenido : retenidos_) {
        if (retenido.para)
            QCoreApplication::postEvent(retenido.para, retenido.evento.release());
    }
    retenidos_.clear();
}
