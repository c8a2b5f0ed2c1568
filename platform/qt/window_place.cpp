#include "platform/qt/window_place.h"

#include <QGuiApplication>
#include <QScreen>
#include <QStandardPaths>
#include <QTimer>
#include <algorithm>

namespace {

// The part of the screen on the window's side of the other; the whole screen where they cover each other or that part
// is too small for the window as it is.
QRect LadoLibre(const QRect& ventana, const QRect& otra, const QRect& pantalla) {
    QRect libre = pantalla;
    if (otra.isNull() || ventana.intersects(otra))
        return libre;
    if (ventana.left() > otra.right())
        libre.setLeft(otra.right() + 1);
    else if (ventana.right() < otra.left())
        libre.setRight(otra.left() - 1);
    else if (ventana.top() > otra.bottom())
        libre.setTop(otra.bottom() + 1);
    else
        libre.setBottom(otra.top() - 1);
    const bool cabe = libre.width() >= ventana.width() && libre.height() >= ventana.height();
    return cabe ? libre : pantalla;
}

} // namespace

QSettings AjustesDeVentanas() {
    return QSettings(QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation) +
                         QStringLiteral("/ventana.ini"),
                     QSettings::IniFormat);
}

QRect DentroDe(const QRect& sitio, const QRect& ventana) {
    QRect dentro(ventana.topLeft(), ventana.size().boundedTo(sitio.size()));
    dentro.moveLeft(std::clamp(dentro.left(), sitio.left(), sitio.right() + 1 - dentro.width()));
    dentro.moveTop(std::clamp(dentro.top(), sitio.top(), sitio.bottom() + 1 - dentro.height()));
    return dentro;
}

std::optional<QRect> JuntoA(const QRect& otra, const QSize& tamano, int ancho_minimo,
                            const QRect& pantalla) {
    const int derecha = pantalla.right() - otra.right();
    const int izquierda = otra.left() - pantalla.left();
    const int hueco = std::max(derecha, izquierda);
    if (otra.isNull() || hueco < std::min(tamano.width(), ancho_minimo))
        return std::nullopt;
    const QSize cabe(std::min(tamano.width(), hueco), tamano.height());
    const int x = hueco == derecha ? otra.right() + 1 : otra.left() - cabe.width();
    return DentroDe(pantalla, QRect(QPoint(x, otra.top()), cabe));
}

QRect ConTamano(const QRect& ventana, const QSize& tamano, const QRect& otra,
                const QRect& pantalla) {
    return DentroDe(LadoLibre(ventana, otra, pantalla), QRect(ventana.topLeft(), tamano));
}

bool EstaEnPantalla(const QRect& sitio) {
    return std::ranges::any_of(QGuiApplication::screens(), [&](const QScreen* pantalla) {
        return pantalla->availableGeometry().intersects(sitio);
    });
}

void VigilaPantallas(QObject* quien, const std::function<void()>& cambia) {
    const auto despues = [quien, cambia] { QTimer::singleShot(0, quien, cambia); };
    const auto vigila = [quien, despues](QScreen* pantalla) {
        QObject::connect(pantalla, &QScreen::availableGeometryChanged, quien, despues);
    };
    for (QScreen* pantalla : QGuiApplication::screens())
        vigila(pantalla);
    QObject::connect(qApp, &QGuiApplication::screenAdded, quien, vigila);
    QObject::connect(qApp, &QGuiApplication::screenRemoved, quien, despues);
}
