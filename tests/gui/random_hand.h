#pragma once
// The hand of a monkey: what it does is drawn from one seed, and comes to the window as from a machine's mouse and keyboard.

#include <QCoreApplication>
#include <QKeyEvent>
#include <QPoint>
#include <QString>
#include <QTest>
#include <QWheelEvent>
#include <QWindow>
#include <random>
#include <vector>

namespace prueba {

// The test seeds it.
inline std::mt19937_64 azar;

// 0 to n, each as likely.
inline int Hasta(int n) {
    return std::uniform_int_distribution<int>(0, n)(azar);
}
// Once in n times.
inline bool DeCada(int n) {
    return Hasta(n - 1) == 0;
}
template <class T>
const T& UnoDe(const std::vector<T>& varios) {
    return varios[static_cast<std::size_t>(Hasta(static_cast<int>(varios.size()) - 1))];
}

// The mouse and the keyboard of a machine, as the window system hands them on.
class Mano {
public:
    int eventos = 0;

    void Mueve(QWindow* ventana, const QPoint& donde) {
        Raton(ventana, donde, Qt::NoButton, QEvent::MouseMove);
    }
    void Aprieta(QWindow* ventana, const QPoint& donde, Qt::MouseButton boton) {
        botones_ |= boton;
        Raton(ventana, donde, boton, QEvent::MouseButtonPress);
    }
    void Suelta(QWindow* ventana, const QPoint& donde, Qt::MouseButton boton) {
        botones_ &= ~Qt::MouseButtons(boton);
        Raton(ventana, donde, boton, QEvent::MouseButtonRelease);
    }
    // The button is let go where nobody tells the window: under a screen lock, over another desktop.
    void SueltaSinDecirlo() { botones_ = Qt::NoButton; }
    // The game has been told that no button is down.
    bool EstaQuieta() const { return botones_ == Qt::NoButton && botones_dichos_ == Qt::NoButton; }

    void Tecla(QWindow* ventana, Qt::Key tecla, const QString& letra, bool repetida) {
        ++eventos;
        QKeyEvent baja(QEvent::KeyPress, tecla, Qt::NoModifier, letra, repetida);
        QCoreApplication::sendEvent(ventana, &baja);
    }
    void Rueda(QWindow* ventana, const QPoint& donde) {
        ++eventos;
        QWheelEvent rueda(donde, ventana->mapToGlobal(donde), {}, {0, DeCada(2) ? 120 : -120},
                          botones_, Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(ventana, &rueda);
    }

private:
    void Raton(QWindow* ventana, const QPoint& donde, Qt::MouseButton boton, QEvent::Type tipo) {
        ++eventos;
        botones_dichos_ = botones_;
        ++hora_;
        qt_handleMouseEvent(ventana, donde, ventana->mapToGlobal(donde), botones_, boton, tipo,
                            Qt::NoModifier, hora_);
    }

    Qt::MouseButtons botones_ = Qt::NoButton, botones_dichos_ = Qt::NoButton;
    int hora_ = 1;
};

} // namespace prueba
