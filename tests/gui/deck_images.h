#pragma once
// Deck images for the tests: every card is one colour that tells it from all others.

#include <QColor>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QString>

#include "platform/canvas.h"

inline QColor ColorDeCarta(int palo, int valor) {
    return QColor(40 + 50 * palo, 10 + 18 * valor, 255 - 15 * valor);
}

// A deck of four rows, each card k times 101 by 141.
inline QImage BarajaDeColores(int columnas, int k = 1) {
    QImage baraja(columnas * kAnchoCarta * k, 4 * kAltoCarta * k, QImage::Format_RGB888);
    QPainter p(&baraja);
    for (int palo = 1; palo <= 4; ++palo) {
        for (int valor = 1; valor <= columnas; ++valor)
            p.fillRect((valor - 1) * kAnchoCarta * k, (palo - 1) * kAltoCarta * k, kAnchoCarta * k,
                       kAltoCarta * k, ColorDeCarta(palo, valor));
    }
    return baraja;
}

// The files that a table needs: both decks, and the odds of the draw of Póker, a table without any, which is enough
// to play. False when they cannot be written.
inline bool PonFicherosDeMesa(const QString& carpeta) {
    QFile tabla(carpeta + QStringLiteral("/PkFDes.ZOV"));
    return BarajaDeColores(13).save(carpeta + QStringLiteral("/Baraja01.bmp")) &&
           BarajaDeColores(12).save(carpeta + QStringLiteral("/Baraja02.bmp")) &&
           tabla.open(QIODevice::WriteOnly);
}
