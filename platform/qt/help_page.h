#pragma once
// The sheet of the help on which a page is read: it draws the program's own pictures (help_pictures.h), as large as the
// table is drawn, and marks what was looked for.

#include <QTextBrowser>

#include "platform/qt/help_pictures.h"
#include "platform/qt/help_words.h"

class HojaAyuda : public QTextBrowser {
    Q_OBJECT
public:
    // The folders of the pages and of the deck images.
    HojaAyuda(const QString& paginas, const QStringList& barajas);

    // Letters, pictures and air of every page so many times as large as it was written.
    void PonAumento(double aumento);

    // From now on these words are marked on every page; none when the list is empty.
    void PonClaves(const QList<ayuda::Clave>& claves);
    // Brings the first mark into sight; without one the page stays where it is.
    void VeALaPrimera();

    QVariant loadResource(int tipo, const QUrl& nombre) override;

protected:
    bool event(QEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;

private:
    // What is read: a letter of the line at the head of the sheet, and how much of that line is above it.
    struct Lectura {
        int letra = -1;    // none at the head of the page
        double pasado = 0; // in heights of the line
        int corrido =
            -1; // where the scroll bar stood; the player has read on where it stands elsewhere
    };

    int Margen() const;
    void Rehaz();
    void TomaLectura();
    void VuelveALaLectura();
    void Marca();

    DibujosAyuda dibujos_;
    QList<ayuda::Clave> claves_;
    Lectura lectura_;
    QSize tamano_;
    double aumento_ = 1;
    double ratio_ = 0; // of the screen for which the page's pictures were drawn, 0 none yet
};
