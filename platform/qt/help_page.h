#pragma once
// The sheet of the help on which a page is read: it draws the program's own pictures (help_pictures.h) and marks
// what was looked for.

#include <QTextBrowser>

#include "platform/qt/help_pictures.h"
#include "platform/qt/help_words.h"

class HojaAyuda : public QTextBrowser {
    Q_OBJECT
public:
    // The folders of the pages and of the deck images.
    HojaAyuda(const QString& paginas, const QStringList& barajas);

    // From now on these words are marked on every page; none when the list is empty.
    void PonClaves(const QList<ayuda::Clave>& claves);
    // Brings the first mark into sight; without one the page stays where it is.
    void VeALaPrimera();

    QVariant loadResource(int tipo, const QUrl& nombre) override;

protected:
    bool event(QEvent* evento) override;

private:
    void Marca();

    DibujosAyuda dibujos_;
    QList<ayuda::Clave> claves_;
    double ratio_ = 0; // of the screen for which the page's pictures were drawn, 0 none yet
};
