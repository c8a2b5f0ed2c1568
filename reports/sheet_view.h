#pragma once
// A printed page on paper: on the screen, on a printer, in a PDF file. One way of painting for all of them, through
// the canvas.

#include <QWidget>
#include <functional>
#include <vector>

#include "table/printed_page.h"

class QPagedPaintDevice;
class QPainter;

// The page's items in letters and lines of the painter's own resolution, from its origin; the paper is the caller's.
void PintaPaginaEn(QPainter& pintor, const PaginaImpresa& pagina);

// Every page on a sheet of its own, as large as the sheet's margins allow. False when the device cannot be painted on.
bool EscribeHojas(QPagedPaintDevice& papel, const std::vector<PaginaImpresa>& paginas);

// A file of such sheets, A4 on its side, as a page is broader than high. False when it cannot be written.
bool GuardaPdf(const QString& fichero, const QString& titulo,
               const std::vector<PaginaImpresa>& paginas);

// The room that a form with a sheet has, in pixels of its layout: no more than the table's window, nor than the screen.
QSize SitioParaHojas(const QWidget& forma);

// A sheet of paper with a page on it. A screen reader reads the page as text.
class HojaVista : public QWidget {
    Q_OBJECT
public:
    HojaVista(const QString& que, QWidget* padre);
    void Muestra(const PaginaImpresa& pagina);
    // The size of a sheet whose page has that size in points, drawn so much larger.
    static QSize TamanoDe(const PaginaImpresa& pagina, double escala);
    // How much larger a page may be drawn so that its sheet fits into a place: never less than half, nor more than a
    // quarter above its own size.
    static double EscalaPara(const PaginaImpresa& pagina, const QSize& sitio);

protected:
    void paintEvent(QPaintEvent* evento) override;

private:
    PaginaImpresa pagina_{1, 1};
};

// Left and Right, Up and Down, the page keys, Home and End turn pages wherever in the form the focus is.
class TeclasDePagina : public QObject {
    Q_OBJECT
public:
    enum class Paso { Principio, Atras, Adelante, Final };
    // Watches the form and every control in it.
    TeclasDePagina(QWidget& forma, std::function<void(Paso)> pasa);

protected:
    bool eventFilter(QObject* quien, QEvent* evento) override;

private:
    std::function<void(Paso)> pasa_;
};
