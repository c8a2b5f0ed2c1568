#pragma once
// The drawings that the program brings along, painted from their lines at the size in which they are wanted.

#include <QImage>
#include <QString>

// A drawing of assets/ by its folder and name, "sheet/ficha1", over fondo. Null when there is none.
QImage Dibujo(const QString& nombre, const QSize& pixeles, const QColor& fondo = Qt::transparent);

// Whether a file is, to the last byte, the deck image that the build has painted from the drawings.
bool EsBarajaDelPrograma(const QString& ruta, int columnas);
// The name of a card's drawing.
QString DibujoDeCarta(int columnas, int palo, int valor);
