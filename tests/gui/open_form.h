#pragma once
// A form opened as a dialog over a table without a screen, and what is done to it.

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QTest>
#include <QTimer>
#include <functional>
#include <vector>

#include "core/default_settings.h"
#include "core/game_state.h"
#include "core/random.h"
#include "core/session_state.h"
#include "forms/controls_view.h"
#include "platform/headless/headless_platform.h"
#include "session/match_driver.h"
#include "table/whole_table.h"

namespace prueba {

using Abre = void (*)(QWidget*);

// The open form and its controls by name.
class Abierta {
public:
    explicit Abierta(QDialog& cual) : dialogo(cual) {}

    template <class T = QWidget>
    T& En(const QString& nombre) {
        T* control = dialogo.findChild<T*>(nombre);
        if (control == nullptr)
            qFatal("no hay %s", qPrintable(nombre));
        return *control;
    }
    QAbstractButton& Selector(int control) {
        return En<QAbstractButton>(QStringLiteral("Pic_Selector_%1").arg(control));
    }
    bool Hay(const QString& nombre) { return dialogo.findChild<QWidget*>(nombre) != nullptr; }
    // On the arrow, as with the mouse.
    void Pulsa(int control) {
        auto& vista = En<SelectorVista>(QStringLiteral("Pic_Selector_%1").arg(control));
        QTest::mouseClick(&vista, Qt::LeftButton, {}, vista.Flecha().center());
    }
    void Sal() { QTest::mouseClick(&En("Pic_BotSalir"), Qt::LeftButton); }

    QDialog& dialogo;
};

// Opens a form, does something to it, and takes it away when it is still there afterwards.
inline bool Con(Abre abre, const std::function<void(Abierta&)>& hace) {
    bool hecho = false;
    QTimer::singleShot(0, [&] {
        auto* dialogo = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialogo == nullptr || !QTest::qWaitForWindowActive(dialogo))
            return;
        Abierta abierta(*dialogo);
        hace(abierta);
        hecho = true;
        dialogo->done(QDialog::Rejected);
    });
    abre(nullptr);
    return hecho;
}

// The table under the forms, anew for each test: all seats as a first start leaves them, sound on.
class MesaDeFormas {
protected:
    PlataformaSinPantalla mesa_;

    void Empieza(Integer juego) {
        UsaPlataforma(mesa_);
        mesa_.Limpia();
        estado = {};
        sesion = {};
        PonValoresPorDefecto();
        estado.JuegoActivo = juego;
        estado.VelocidadJuego = 50;
        estado.SonidoActivo = true;
        CalcularMesa();
        IniciarTablas();
        mesa_.sonidos.clear();
    }
    // Four seats of the computer; every question at the end is answered with a yes.
    void JuegaUnaPartida() {
        estado.CarpetaTrabajo = estado.CarpetaPrograma = ".";
        estado.VelocidadJuego = 100;
        estado.PausaEntreJugadas = false;
        estado.LimitePartida = 2;
        estado.RestoInicial = 50;
        for (int asiento = 1; asiento <= 4; ++asiento)
            estado.ControlJugador(asiento) = kAutomatico;
        mesa_.siempre_continua = true;
        FijaSemilla(7);
        NuevaPartida();
    }
    std::vector<int> Sonidos() {
        std::vector<int> ids;
        for (const SonidoPedido& sonido : mesa_.sonidos)
            ids.push_back(sonido.id);
        return ids;
    }
};

} // namespace prueba
