#pragma once
// The real table in a window of 800 by 600 on a desktop of the test's own, and the mouse over it.

#include <QApplication>
#include <QMouseEvent>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <algorithm>
#include <memory>

#include "core/default_settings.h"
#include "core/game_state.h"
#include "platform/qt/platform_qt.h"
#include "session/main_buttons.h"
#include "session/match_driver.h"
#include "session/state_blocks.h"
#include "table/waiting.h"
#include "table/whole_table.h"
#include "tests/gui/deck_images.h"

namespace prueba {

class VentanaViva {
public:
    // Once for all cases: the folder with the files that a table needs. False when they cannot be written.
    bool PonFicheros() {
        QStandardPaths::setTestModeEnabled(true);
        return PonFicherosDeMesa(carpeta_.path());
    }

    // A window with an empty table of the game, nothing waited for, no pauses. False when it does not come up.
    bool Abre(Integer juego) {
        mesa_ = std::make_unique<PlataformaQt>(carpeta_.path());
        UsaPlataforma(*mesa_);
        RegistraDespacho(DespachaEvento);
        mesa_->Ventana().resize(800, 600);
        mesa_->Ventana().show();
        if (!QTest::qWaitForWindowActive(&mesa_->Ventana()))
            return false;
        BorraEstado();
        sesion = {};
        PonValoresPorDefecto();
        estado.JuegoActivo = juego;
        estado.VelocidadJuego = 100;
        estado.SaltoLinea = "\r\n";
        estado.CarpetaPrograma = estado.CarpetaTrabajo = carpeta_.path().toStdString();
        CalcularMesa();
        LimpiarMesa();
        IniciarTablas();
        Pasa();
        return true;
    }
    void Cierra() { mesa_.reset(); }

    PlataformaQt& Mesa() { return *mesa_; }
    QWidget* Tapete() { return mesa_->Ventana().widget(); }
    // The view of a control, also when it is hidden.
    VistaControl* Vista(Control control) {
        const auto vistas = Tapete()->findChildren<VistaControl*>();
        const auto vista = std::ranges::find_if(
            vistas, [control](VistaControl* una) { return una->Cual() == control; });
        return vista == vistas.end() ? nullptr : *vista;
    }
    bool SeVe(Control control) {
        VistaControl* vista = Vista(control);
        return vista != nullptr && vista->isVisible();
    }
    void Pasa() { PaseDeEventos(Pase::DeEspera); }

    void MueveSobre(QWidget* que, const QPoint& donde, Qt::MouseButtons botones = Qt::NoButton) {
        QMouseEvent evento(QEvent::MouseMove, donde, que->mapToGlobal(donde), Qt::NoButton, botones,
                           Qt::NoModifier);
        QApplication::sendEvent(que, &evento);
        Pasa();
    }
    void Mueve(const QPoint& donde, Qt::MouseButtons botones = Qt::NoButton) {
        MueveSobre(Tapete(), donde, botones);
    }
    void Aprieta(const QPoint& donde, Qt::MouseButton boton = Qt::LeftButton) {
        QTest::mousePress(Tapete(), boton, {}, donde);
        Pasa();
    }
    void Suelta(const QPoint& donde, Qt::MouseButton boton = Qt::LeftButton) {
        QTest::mouseRelease(Tapete(), boton, {}, donde);
        Pasa();
    }
    void Clic(const QPoint& donde, Qt::MouseButton boton = Qt::LeftButton) {
        Aprieta(donde, boton);
        Suelta(donde, boton);
    }

private:
    QTemporaryDir carpeta_;
    std::unique_ptr<PlataformaQt> mesa_;
};

} // namespace prueba
