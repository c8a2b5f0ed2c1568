#pragma once
// The program's window: the table in it, scrolled when the window is smaller than 800 by 600.

#include <QScrollArea>
#include <functional>

class VentanaPrincipal : public QScrollArea {
    Q_OBJECT
public:
    explicit VentanaPrincipal(QWidget* mesa);

    // The first time it fills the screen, later it comes up where and as large as it was left; on a screen that
    // has no room for a frame around the table it always takes the whole screen.
    void Aparece();
    // F11: the whole screen and back.
    void AlternaPantallaCompleta();
    // Remembers place and size for the next start; the whole screen is nothing to remember.
    void GuardaSitio();
    // The table's factor that the player has chosen, 0 for none; kept with the window's place.
    static double FactorGuardado();
    static void GuardaFactor(double factor);

    // The close button was pressed; the window stays until the game has decided.
    std::function<void()> al_cerrar;
    // Ctrl and plus (1), minus (-1) or 0 was pressed.
    std::function<void(int sentido)> al_pedir_factor;

protected:
    void closeEvent(QCloseEvent* evento) override;
    void changeEvent(QEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;

private:
    void RecuerdaSitio();
    void CabeEnPantalla();
    void MuestraDentro();
    void LlenaPantalla();
    void DejaPantalla();
    bool recordado_ = false;
    bool llena_por_falta_ = false; // on the whole screen because there is no room for a frame
};
