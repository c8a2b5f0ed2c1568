#include "platform/qt/main_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QTimer>
#include <QWindow>
#include <optional>

#include "platform/qt/scale.h"
#include "platform/qt/suite_paint.h"
#include "platform/qt/window_place.h"

namespace {

const QString kSitio = QStringLiteral("ventana/sitio");
const QString kFactor = QStringLiteral("ventana/factor");

// The whole table. Only a screen that is smaller has a smaller window, in which the table scrolls.
constexpr QSize kMinimo(800, 600);

// What a desktop's frame takes of the height, with some to spare.
constexpr int kAltoMarco = 40;

constexpr double kParteDePantalla = 0.9;

// Under a title bar the lower edge of the table would lie below the screen.
bool NoCabeConMarco(const QScreen& pantalla) {
    return pantalla.availableSize().height() < kMinimo.height() + kAltoMarco;
}

// Plus stands on the key of the equals sign where it takes Shift.
std::optional<int> SentidoDe(const QKeyEvent& tecla) {
    if ((tecla.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) !=
        Qt::ControlModifier)
        return std::nullopt;
    switch (tecla.key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        return 1;
    case Qt::Key_Minus:
        return -1;
    case Qt::Key_0:
        return 0;
    default:
        return std::nullopt;
    }
}

} // namespace

VentanaPrincipal::VentanaPrincipal(QWidget* mesa) {
    setObjectName(QStringLiteral("ventana"));
    setWindowTitle(QStringLiteral("Zovin · Seis juegos de cartas"));
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setWidget(mesa);
    setFocusProxy(mesa);
    setMinimumSize(kMinimo.boundedTo(QApplication::primaryScreen()->availableSize()));
    // A menu would hold the game up in the middle of a pause.
    for (QScrollBar* barra : {horizontalScrollBar(), verticalScrollBar()})
        barra->setContextMenuPolicy(Qt::NoContextMenu);
    connect(new QShortcut(Qt::Key_F11, this), &QShortcut::activated, this,
            &VentanaPrincipal::AlternaPantallaCompleta);
    // The size that a maximized window goes back to: on the screen with its frame and all.
    const QSize pantalla = QApplication::primaryScreen()->availableSize();
    resize((pantalla * kParteDePantalla).expandedTo(minimumSize()));
    RecuerdaSitio();
    VigilaPantallas(this, [this] { CabeEnPantalla(); });
    // The game lays its table out before the window is seen.
    mesa->resize((recordado_ ? size() : pantalla).expandedTo(mesa->minimumSize()));
}

void VentanaPrincipal::RecuerdaSitio() {
    const QByteArray sitio = AjustesDeVentanas().value(kSitio).toByteArray();
    recordado_ = !sitio.isEmpty() && restoreGeometry(sitio);
    // As large as on a larger screen, or where there is none any more.
    if (recordado_ && !isMaximized())
        setGeometry(DentroDe(screen()->availableGeometry(), geometry()));
}

double VentanaPrincipal::FactorGuardado() {
    const double factor = AjustesDeVentanas().value(kFactor).toDouble();
    return EsPasoDeFactor(factor) ? factor : 0;
}

void VentanaPrincipal::GuardaFactor(double factor) {
    AjustesDeVentanas().setValue(kFactor, factor);
}

void VentanaPrincipal::LlenaPantalla() {
    llena_por_falta_ = true;
    showFullScreen();
}

// There is room for a frame again.
void VentanaPrincipal::DejaPantalla() {
    llena_por_falta_ = false;
    showMaximized();
}

void VentanaPrincipal::CabeEnPantalla() {
    const QRect libre = screen()->availableGeometry();
    setMinimumSize(kMinimo.boundedTo(libre.size()));
    if (!isVisible())
        return;
    if (NoCabeConMarco(*screen()) != llena_por_falta_)
        return llena_por_falta_ ? DejaPantalla() : LlenaPantalla();
    const QRect con_marco = frameGeometry();
    if (libre.contains(con_marco) || screen()->geometry() == geometry())
        return;
    const QSize marco = con_marco.size() - size();
    const QRect dentro =
        DentroDe(libre, QRect(con_marco.topLeft(), size().expandedTo(minimumSize()) + marco));
    setGeometry(QRect(dentro.topLeft() + (geometry().topLeft() - con_marco.topLeft()),
                      dentro.size() - marco));
}

void VentanaPrincipal::Aparece() {
    if (NoCabeConMarco(*QApplication::primaryScreen()))
        LlenaPantalla();
    else if (recordado_)
        MuestraDentro();
    else
        showMaximized();
    raise();
    activateWindow();
}

void VentanaPrincipal::AlternaPantallaCompleta() {
    if (llena_por_falta_)
        return;
    setWindowState(windowState() ^ Qt::WindowFullScreen);
}

// Only now is it known what the desktop's frame takes.
void VentanaPrincipal::MuestraDentro() {
    show();
    QTimer::singleShot(0, this, &VentanaPrincipal::CabeEnPantalla);
}

void VentanaPrincipal::GuardaSitio() {
    if (isVisible() && !isFullScreen())
        AjustesDeVentanas().setValue(kSitio, saveGeometry());
}

void VentanaPrincipal::closeEvent(QCloseEvent* evento) {
    evento->ignore();
    if (al_cerrar)
        al_cerrar();
}

void VentanaPrincipal::keyPressEvent(QKeyEvent* evento) {
    const auto sentido = SentidoDe(*evento);
    if (!sentido)
        return QScrollArea::keyPressEvent(evento);
    if (al_pedir_factor)
        al_pedir_factor(*sentido);
}

void VentanaPrincipal::changeEvent(QEvent* evento) {
    QScrollArea::changeEvent(evento);
    DejaElTecladoALaCaja(*this, *evento);
}
