#pragma once
// The pictures inside the help's pages that come from the program's own drawings, at the size and for the
// screen on which they are read: no file is kept for them.
//
//   carta:oros/sota      a card, 44 pixels wide; carta:oros/sota/90, so many wide. Palos oros, copas, espadas,
//                        bastos and diamantes, corazones, picas, treboles; as, sota, caballo, rey, jota, dama or a
//                        number; also carta:comodin and carta:dorso.
//   esquina:oros/sota    its upper left corner with number and palo, as in the deal by hand, 22 pixels wide or /so many.
//   pieza:boton5_arriba  a piece of the sheet as lamina::kPiezas names it, at its own size or /so many wide.
//   puntero:mano_verde   a pointer of the table.
//   foto:mesa.png/600    a picture among the pages, so many pixels wide, or as wide as the page when that is less. It is
//                        never drawn out: where it has fewer pixels than the screen would show, it is smaller.

#include <QImage>
#include <QString>
#include <QUrl>
#include <map>
#include <memory>

class Imagenes;

class DibujosAyuda {
public:
    // paginas: the folder of the pages; barajas: those of the deck images, the first that has one counts. What cannot
    // be read is left out.
    DibujosAyuda(const QString& paginas, const QStringList& barajas);
    ~DibujosAyuda();

    static constexpr int kSinTope = 10000;

    // Whether the address is one of these pictures.
    static bool EsSuyo(const QUrl& cual);
    // The picture for a screen with so many device pixels a pixel, marked with them, and aumento times as large as its
    // address says; null when there is none of that name. tope: the width of the page.
    QImage Dibujo(const QUrl& cual, double ratio, double aumento = 1, int tope = kSinTope);
    // Lets go of what was made ready for the sizes asked for so far.
    void Olvida();

private:
    // All in device pixels for each pixel of the address.
    QImage Carta(const QStringList& partes, double densidad);
    QImage Esquina(const QStringList& partes, double densidad);
    QImage Foto(const QStringList& partes, double densidad, double tope) const;
    Imagenes* Baraja(int cual, double densidad);

    QString paginas_;
    QStringList barajas_;
    std::map<std::pair<int, double>, std::unique_ptr<Imagenes>> listas_; // by deck and how dense
};
