#pragma once
// A form as a dialog over the table.

#include <QEvent>
#include <QImage>
#include <QPointer>
#include <functional>
#include <memory>
#include <vector>

#include "platform/qt/suite_paint.h"

struct MandosForma;

class FormaVista : public DialogoSuite {
    Q_OBJECT
public:
    FormaVista(const QString& titulo, const MandosForma& mandos, int tema_de_ayuda, QWidget* sobre);
    // Opens the form, shows it over sobre and returns when it is closed, by its exit button, by itself, or from
    // outside.
    void Muestra(QWidget* sobre);
    // As it would be shown now, the form open and the dialog not on the screen.
    QImage Foto();
    // Esc and the desktop's own ways of closing are the exit button.
    void reject() override;

protected:
    // Everything on show as the logic has it now.
    virtual void Refresca() = 0;
    // What the player does to a control. The logic may pause and ask meanwhile: input to the form waits until it is
    // done, as on the table.
    void Atiende(const std::function<void()>& que);
    // The row with help and exit.
    QWidget* HazBotonAyuda();
    QWidget* HazBotonSalir();

    void closeEvent(QCloseEvent* evento) override;
    bool eventFilter(QObject* quien, QEvent* evento) override;

private:
    struct EventoRetenido {
        QPointer<QObject> para;
        std::unique_ptr<QEvent> evento;
    };
    bool EsDeLaForma(QObject* quien) const;
    void SueltaRetenidos();

    const MandosForma& mandos_;
    const int tema_;
    bool ocupada_ = false;
    std::vector<EventoRetenido> retenidos_;
};
