#pragma once
// Message boxes and the splash, which are widgets of their own, as pictures.

#include <QImage>
#include <QString>
#include <vector>

struct CuadroSuelto {
    QString nombre;
    QImage imagen;
};

// The boxes of the three modes, short and long, and the splash; ratio: device pixels for each pixel.
std::vector<CuadroSuelto> CuadrosSueltos(double ratio);
