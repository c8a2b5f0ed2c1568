#pragma once
// Where the program's windows stand: inside the screen, beside each other, and where they were the last time. All in the
// desktop's pixels, with the windows' frames.

#include <QRect>
#include <QSettings>
#include <functional>
#include <optional>

// What is kept of the windows: the desktop's affair, it stands with its settings, apart from the game's files.
QSettings AjustesDeVentanas();

// The window moved into the place as far as it must be, and cut where it is too large.
QRect DentroDe(const QRect& sitio, const QRect& ventana);

// Where a window of that size stands on the screen beside another one, made narrower where that is enough to fit, but
// not below the least width; nothing where there is no room on either side.
std::optional<QRect> JuntoA(const QRect& otra, const QSize& tamano, int ancho_minimo,
                            const QRect& pantalla);

// The window in another size, its upper left corner kept where it can be. It stays on the screen, and one that stood
// clear of the other stays clear.
QRect ConTamano(const QRect& ventana, const QSize& tamano, const QRect& otra,
                const QRect& pantalla);

// Whether any screen shows some of the place.
bool EstaEnPantalla(const QRect& sitio);

// Tells when a screen goes or has another area free, once the desktop has moved its windows, for as long as quien lives.
void VigilaPantallas(QObject* quien, const std::function<void()>& cambia);
