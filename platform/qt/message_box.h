#pragma once
// The modal box `mensajes`.

#include <QLabel>

#include "platform/platform.h"
#include "platform/qt/suite_paint.h"

// The answer of a box that is closed without a button.
Boton BotonAlCerrar(int modo);

// Text as the messages bring it: its blanks decide where lines break, and every line of a paragraph but its
// last is drawn out to the full width, which is what its author did by hand with double blanks.
class TextoMensaje : public QLabel {
    Q_OBJECT
public:
    TextoMensaje(const std::string& texto, QWidget* padre);
    int heightForWidth(int ancho) const override;

protected:
    void paintEvent(QPaintEvent* evento) override;
};

class CajaQt : public DialogoSuite {
    Q_OBJECT
public:
    CajaQt(const CajaMensaje& caja, QWidget* padre);
    // Shows the box and waits for its button.
    Boton Responde();

protected:
    void keyPressEvent(QKeyEvent* evento) override;
    void showEvent(QShowEvent* evento) override;

private:
    void PonBotones(const CajaMensaje& caja);
    void PonBoton(const QString& nombre, const QString& texto, Boton valor);

    Boton respuesta_;
    BotonSuite* principal_ = nullptr; // any key presses it
};
