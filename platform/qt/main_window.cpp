#include "platform/qt/main_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QScreen>
#include <QScrollBar>
#include <QSettings>
#include <QShortcut>
#include <QStandardPaths>

namespace {

const QString kSitio = QStringLiteral("ventana/sitio");

// The window's place is the desktop's affair and stands with its settings, apart from the game's files.
QSettings Ajustes() {
    return QSettings(QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation) +
                         QStringLiteral("/ventana.ini"),
                     QSettings::IniFormat);
}

// The whole table. Only a screen that is smaller has a smaller window, in which the table scrolls.
constexpr QSize kMinimo(800, 600);

// What a desktop's frame takes of the height, with some to spare.
constexpr int kAltoMarco = 40;

constexpr double kParteDePantalla = 0.9;

// Under a title bar the lower edge of the table would lie below the screen.
bool NoCabeConMarco() {
    return QApplication::primaryScreen()->availableSize().height() < kMinimo.height() + kAltoMarco;
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
    // The game lays its table out before the window is seen.
    mesa->resize((recordado_ ? size() : pantalla).expandedTo(mesa->minimumSize()));
}

void VentanaPrincipal::RecuerdaSitio() {
    const QByteArray sitio = Ajustes().value(kSitio).toByteArray();
    recordado_ = !sitio.isEmpty() && restoreGeometry(sitio);
}

void VentanaPrincipal::Aparece() {
    if (NoCabeConMarco())
        showFullScreen();
    else if (recordado_)
        show();
    else
        showMaximized();
    raise();
    activateWindow();
}

void VentanaPrincipal::AlternaPantallaCompleta() {
    if (NoCabeConMarco())
        return;
    setWindowState(windowState() ^ Qt::WindowFullScreen);
}

void VentanaPrincipal::GuardaSitio() {
    if (isVisible() && !isFullScreen())
        Ajustes().setValue(kSitio, saveGeometry());
}

void VentanaPrincipal::closeEvent(QCloseEvent* evento) {
    evento->ignore();
    if (al_cerrar)
        al_cerrar();
}

// A click beside an open box must not take the keyboard away from the box.
void VentanaPrincipal::changeEvent(QEvent* evento) {
    QScrollArea::changeEvent(evento);
    QWidget* caja = QApplication::activeModalWidget();
    if (evento->type() == QEvent::ActivationChange && isActiveWindow() && caja != nullptr) {
        caja->raise();
        caja->activateWindow();
    }
}
